// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct CommandLine;

// What the program does, each in a file of its own. They make the platform's real objects and hand them on.

inline constexpr int exitSuccess = 0;
inline constexpr int exitFailure = 1;
inline constexpr int exitUsage = 2;

/// Prints what is in the files of the command line; answers the exit status.
int inspect(int& count, char** arguments, const CommandLine& line);
/// Plays them, here or in the player that runs already; answers the exit status.
int play(int& count, char** arguments, const CommandLine& line);
