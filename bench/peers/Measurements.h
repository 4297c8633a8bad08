// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bench/peers/Players.h"
#include "tools/screen/MediaFixture.h"
#include "tools/screen/XProbe.h"
#include "tools/screen/XvfbServer.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace bench {

// How often and how long. Every round measures each player once, each round beginning with another.
struct Plan {
    std::set<std::string> rows; // of rowNames
    int startRounds = 11;
    int playRounds = 3;
    double playSeconds = 12;
    double pausedSeconds = 10;
    int jumpRounds = 4;
    int changeRounds = 4;
    int openRounds = 5;
    int files = 1000;

    static Plan quick();
};
inline const std::set<std::string> rowNames = {"start", "cpu",   "memory",    "paused",     "jump",   "open",
                                               "osd",   "fade",  "subtitles", "track",      "change", "drag",
                                               "long",  "large", "switch",    "interlaced", "audio"};

// What was measured: a player's samples for a figure.
class Samples {
public:
    void add(const std::string& figure, const std::string& player, double value);
    // The median, or no value (NaN) when there is no sample.
    double median(const std::string& figure, const std::string& player) const;
    bool has(const std::string& figure) const { return _values.contains(figure); }
    // All of them, for a look at how they spread.
    std::string listing(const std::string& figure) const;

private:
    std::map<std::string, std::map<std::string, std::vector<double>>> _values;
};

// Runs the players on a screen of its own, one at a time, and watches that screen.
class Measurements {
public:
    // The folder takes movies and the players' settings.
    Measurements(Plan plan, const std::filesystem::path& folder);

    const Samples& run();

private:
    void measureStart();
    void measureStartWithTrack();
    void measurePlaying();
    void measureJumps();
    void measureChanges();
    void measureOpening();
    void measureTimeDisplay();
    void measureSubtitles();
    void measureFade();
    void measureDrag();
    void measureLongStart();
    void measureLargePictures();
    void measureSubtitleSwitch();
    void measureAudioSwitch();
    void measureInterlaced();

    // A player that shows the movie. Throws std::runtime_error with its words when it does not.
    std::unique_ptr<harness::ChildProcess> startPlaying(const Player& player) { return startPlaying(player, {_movie}); }
    std::unique_ptr<harness::ChildProcess> startPlaying(const Player& player, const std::vector<std::string>& movies,
                                                        const std::vector<std::string>& options = {});
    double processorSharePlaying(const Player& player, const std::string& movie,
                                 const std::vector<std::string>& options);
    // How many white pixels there are in the part of the screen.
    std::ptrdiff_t whiteIn(const harness::Region& part);
    // Whether white letters come into the part of the screen, where nothing but the plain movie is.
    bool textAppears(const harness::Region& part);
    bool showsText(const Player& player, const harness::Region& part, const std::string& plainMovie,
                   const std::vector<std::string>& options);
    void playFading(const Player& player, const std::string& movie, bool fading);
    void playWithPreferences(const Player& player, const std::string& movie, bool dragging);
    void playOnce(const Player& player);
    void changeThrice(const Player& player, const std::vector<std::string>& movies);
    void jumpThrice(const Player& player, bool exactly, int round);
    void endAndClear(std::unique_ptr<harness::ChildProcess>& process);
    double openWithLumaro(const std::vector<std::string>& files);
    std::vector<const Player*> turnOf(int round) const;
    bool wants(const std::string& row) const { return _plan.rows.contains(row); }

    Plan _plan;
    std::filesystem::path _folder;
    harness::MediaFixture _media;
    std::string _movie;
    std::string _plainMovie;
    harness::XvfbServer _server;
    harness::XProbe _probe;
    std::vector<Player> _players;
    Samples _samples;
};

} // namespace bench
