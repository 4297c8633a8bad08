// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace platform {
class UserDefaults;
} // namespace platform

/// How a subtitle file is read that breaks the rules of its format.
enum class ReadingMode {
    /// To the letter: what breaks the rules is left out, or ends the track.
    strict,
    /// As it was meant: what can be made out is shown.
    repairing,
};

/// The mode that the setting QVSubtitlesRepair asks for. Main thread.
ReadingMode readingMode(const platform::UserDefaults& settings);
