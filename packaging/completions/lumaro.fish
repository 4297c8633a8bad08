# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of lumaro's command line for fish.
complete -c lumaro -l set -x -d 'A setting for this run only, KEY=VALUE'
complete -c lumaro -l append -d 'Add to the playlist instead of replacing it'
complete -c lumaro -l software -d 'Draw without OpenGL'
complete -c lumaro -l inspect -d 'Print what is in the files as JSON'
complete -c lumaro -l images -x -a '(__fish_complete_directories)' -d 'Write the pictures of bitmap subtitles there'
complete -c lumaro -l time-scale -x -d 'Units a second of the times of subtitles'
complete -c lumaro -l fps -x -a '0 1 2 3 4 5' -d 'Frame rate of subtitles by frames'
complete -c lumaro -l encoding -x -d 'Text encoding of subtitles'
complete -c lumaro -l help -d 'Print the options'
complete -c lumaro -l version -d 'Print the version'
