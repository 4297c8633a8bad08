# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of lumaro's command line for bash.
_lumaro() {
    local cur prev words cword
    _init_completion -n = || return
    case $prev in
    --images) _filedir -d; return ;;
    --fps) COMPREPLY=($(compgen -W '0 1 2 3 4 5' -- "$cur")); return ;;
    --set | --time-scale | --encoding) return ;;
    esac
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W '--set --append --software --inspect --images --time-scale --fps --encoding --help
            --version' -- "$cur"))
        return
    fi
    _filedir
}
complete -F _lumaro lumaro
