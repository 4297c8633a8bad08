// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/screen/ChildProcess.h"
#include "tools/screen/XProbe.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace bench {

struct KeyPress {
    harness::KeySym key = 0;
    std::vector<harness::KeySym> modifiers;
};

// A player that is compared: how it is started and which of its keys do what.
class Player {
public:
    enum class Kind { mpv, vlc, lumaro };

    // Its settings, which it keeps between starts, lie in a folder of its own inside the given one.
    Player(Kind kind, const std::filesystem::path& folder);

    Kind kind() const { return _kind; }
    const std::string& name() const { return _name; }
    std::filesystem::path configFolder() const { return _folder / "config"; }
    // Full screen, software output, no sound.
    std::unique_ptr<harness::ChildProcess> start(const std::string& display, const std::vector<std::string>& files,
                                                 const std::vector<std::string>& options = {}) const;
    // Asks it to quit, waits, and kills it when it does not.
    static void end(std::unique_ptr<harness::ChildProcess>& process);

    KeyPress pauseKey() const;
    // Ten seconds forward as the player does it by itself; exactly ten seconds.
    KeyPress jumpKey() const;
    KeyPress exactJumpKey() const;
    // The next track of the subtitles inside the movie.
    KeyPress nextSubtitlesKey() const;
    KeyPress nextAudioKey() const;
    // The next movie of the list.
    KeyPress nextKey() const;

    // With these options it shows the time over the picture as long as it plays; shows the subtitles that stand beside
    // the movie.
    std::vector<std::string> timeDisplayOptions() const;
    // With these the first track inside a movie is shown from the beginning; fields become pictures of their own.
    std::vector<std::string> firstTrackOptions() const;
    std::vector<std::string> deinterlacingOptions() const;
    // With these it plays its sound, on the server that PULSE_SERVER names.
    std::vector<std::string> soundOptions() const;
    std::vector<std::string> subtitleOptions(const std::filesystem::path& movie) const;

private:
    Kind _kind;
    std::string _name;
    std::filesystem::path _folder;
};

} // namespace bench
