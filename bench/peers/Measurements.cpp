// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/peers/Measurements.h"

#include "bench/peers/Movies.h"
#include "bench/peers/ProcessFigures.h"
#include "bench/peers/SoundServer.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <stdexcept>

using harness::ChildProcess;
using harness::Seconds;
using harness::waitUntil;

namespace bench {

namespace {

constexpr Seconds lookEvery{0.0005};
constexpr double warmUp = 2;

constexpr harness::Region top{0, 0, screenWidth, screenHeight / 3};
constexpr harness::Region topLeft{0, 0, screenWidth / 2, screenHeight / 3};
constexpr harness::Region topRight{screenWidth / 2, 0, screenWidth / 2, screenHeight / 3};
constexpr harness::Region bottom{0, screenHeight * 2 / 3, screenWidth, screenHeight / 3};

double now() {
    return Seconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void pause(double seconds) {
    std::this_thread::sleep_for(Seconds(seconds));
}

double medianOf(std::vector<double> values) {
    if (values.empty())
        return std::numeric_limits<double>::quiet_NaN();
    std::ranges::sort(values);
    const std::size_t half = values.size() / 2;
    return values.size() % 2 ? values[half] : (values[half - 1] + values[half]) / 2;
}

// Everything fades in and out for nearly a second each.
void writeSlowFades(const std::filesystem::path& configFolder) {
    const std::filesystem::path folder = configFolder / "lumaro";
    std::filesystem::create_directories(folder);
    std::ofstream file(folder / "org.lumaro.Lumaro.plist");
    file << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict><key>QVOverlayStyles</key><dict>";
    for (const char* style : {"OSD", "Feedback", "Subtitles"})
        file << "<key>" << style
             << "</key><dict><key>FadingInInterval</key><real>0.9</real><key>FadingOutInterval</key><real>0.9</real>"
                "<key>FadingDelayInterval</key><real>0.1</real></dict>";
    file << "</dict></dict></plist>\n";
}

// Pressed every second: the display comes and goes in turn, and a message comes when the display does and goes by
// itself.
void pressForFades(harness::XProbe& probe, int turn) {
    if (turn % 2 == 0) {
        probe.tap(XK_d, {XK_Shift_L});
        probe.tap(XK_m);
    } else {
        probe.tap(XK_d);
    }
}

} // namespace

Plan Plan::quick() {
    Plan plan;
    plan.startRounds = 3;
    plan.playRounds = 1;
    plan.playSeconds = 5;
    plan.jumpRounds = 1;
    plan.changeRounds = 1;
    plan.openRounds = 1;
    return plan;
}

void Samples::add(const std::string& figure, const std::string& player, double value) {
    _values[figure][player].push_back(value);
}

double Samples::median(const std::string& figure, const std::string& player) const {
    const auto players = _values.find(figure);
    if (players == _values.end() || !players->second.contains(player))
        return medianOf({});
    return medianOf(players->second.at(player));
}

std::string Samples::listing(const std::string& figure) const {
    std::string text = figure + ":";
    if (const auto players = _values.find(figure); players != _values.end())
        for (const auto& [player, values] : players->second) {
            text += "\n    " + player + ":";
            for (const double value : values) {
                char number[32];
                std::snprintf(number, sizeof number, " %.4g", value);
                text += number;
            }
        }
    return text;
}

Measurements::Measurements(Plan plan, const std::filesystem::path& folder)
    : _plan(std::move(plan))
    , _folder(folder)
    , _media(folder / "media")
    , _movie(makeMovie(_media).string())
    , _plainMovie(makePlainMovie(_media).string())
    , _server(screenWidth, screenHeight)
    , _probe(_server.display()) {
    for (const Player::Kind kind : {Player::Kind::mpv, Player::Kind::vlc, Player::Kind::lumaro})
        _players.emplace_back(kind, folder / "users");
}

const Samples& Measurements::run() {
    for (const Player& player : _players) { // Programs and movie into memory, first settings written.
        auto process = startPlaying(player);
        endAndClear(process);
    }
    if (wants("start"))
        measureStart();
    if (wants("track"))
        measureStartWithTrack();
    if (wants("cpu") || wants("memory") || wants("paused"))
        measurePlaying();
    if (wants("jump"))
        measureJumps();
    if (wants("change"))
        measureChanges();
    if (wants("open"))
        measureOpening();
    if (wants("osd"))
        measureTimeDisplay();
    if (wants("subtitles"))
        measureSubtitles();
    if (wants("fade"))
        measureFade();
    if (wants("drag"))
        measureDrag();
    if (wants("long"))
        measureLongStart();
    if (wants("large"))
        measureLargePictures();
    if (wants("switch"))
        measureSubtitleSwitch();
    if (wants("audio"))
        measureAudioSwitch();
    if (wants("interlaced"))
        measureInterlaced();
    return _samples;
}

std::vector<const Player*> Measurements::turnOf(int round) const {
    std::vector<const Player*> turn;
    for (std::size_t i = 0; i < _players.size(); ++i)
        turn.push_back(&_players[(i + std::size_t(round)) % _players.size()]);
    return turn;
}

std::unique_ptr<ChildProcess> Measurements::startPlaying(const Player& player, const std::vector<std::string>& movies,
                                                         const std::vector<std::string>& options) {
    auto process = player.start(_server.display(), movies, options);
    if (!waitUntil([this] { return showsMovie(_probe); }, harness::defaultTimeout, lookEvery))
        throw std::runtime_error(player.name() + " shows no movie: " + process->errorOutput());
    return process;
}

void Measurements::endAndClear(std::unique_ptr<ChildProcess>& process) {
    Player::end(process);
    if (!waitUntil([this] { return !showsMovie(_probe); }))
        throw std::runtime_error("the screen is not cleared");
    pause(0.3);
}

void Measurements::measureStart() {
    for (int round = 0; round < _plan.startRounds; ++round)
        for (const Player* player : turnOf(round)) {
            const double before = now();
            auto process = startPlaying(*player);
            _samples.add("start", player->name(), (now() - before) * 1000);
            pause(0.2);
            endAndClear(process);
        }
}

void Measurements::measureStartWithTrack() {
    // No text comes with the first picture: what is measured is the reading.
    const std::string withTrack =
        withSubtitles(_movie, _folder / "long track", {.count = 2000, .first = 10'000, .every = 25, .shown = 20})
            .string();
    const Player& player = _players.back();
    // The difference is small beside how starts spread.
    for (int round = 0; round < 2 * _plan.startRounds; ++round)
        for (const bool track : {round % 2 == 0, round % 2 != 0}) {
            const double before = now();
            auto process = startPlaying(player, {track ? withTrack : _movie});
            _samples.add("track", track ? player.name() : "no track", (now() - before) * 1000);
            pause(0.2);
            endAndClear(process);
        }
}

void Measurements::measureLongStart() {
    const std::string movie = makeLongMovie(_media, _plainMovie, _folder / "long").string();
    for (int round = 0; round < _plan.startRounds; ++round)
        for (const Player* player : turnOf(round)) {
            const double before = now();
            auto process = startPlaying(*player, {movie});
            _samples.add("long", player->name(), (now() - before) * 1000);
            pause(0.2);
            endAndClear(process);
        }
}

void Measurements::measureLargePictures() {
    const std::string movie = makeLargeMovie(_media).string();
    for (int round = 0; round < _plan.playRounds; ++round)
        for (const Player* player : turnOf(round)) {
            auto process = startPlaying(*player, {movie});
            pause(warmUp / 2);
            std::set<int> seen;
            waitUntil(
                [&] {
                    if (const auto frame = frameOnScreen(_probe))
                        seen.insert(*frame);
                    return false;
                },
                Seconds(5), Seconds(0.008));
            endAndClear(process);
            if (seen.empty())
                throw std::runtime_error(player->name() + " shows no frame of the large movie");
            const int gone = *seen.rbegin() - *seen.begin() + 1;
            _samples.add("large", player->name(), 100.0 * (gone - int(seen.size())) / gone);
        }
}

void Measurements::measurePlaying() {
    for (int round = 0; round < _plan.playRounds; ++round)
        for (const Player* player : turnOf(round))
            playOnce(*player);
}

void Measurements::playOnce(const Player& player) {
    auto process = startPlaying(player);
    pause(warmUp);
    const pid_t server = childNamed("Xvfb").value_or(0);
    const double before = now(), serverBefore = millisecondsRun(server);
    const auto ticksBefore = processorTicks(process->pid());
    pause(_plan.playSeconds);
    const auto ticks = processorTicks(process->pid()) - ticksBefore;
    const double seconds = now() - before;
    _samples.add("cpu", player.name(), double(ticks) / ticksPerSecond() / seconds);
    _samples.add("server", player.name(), (millisecondsRun(server) - serverBefore) / 1000 / seconds);
    const Memory memory = memoryOf(process->pid());
    _samples.add("resident", player.name(), memory.residentMegabytes);
    _samples.add("proportional", player.name(), memory.proportionalMegabytes);

    // A player that leaves pictures out uses less: how many does it show?
    int pictures = 0;
    std::optional<int> last;
    waitUntil(
        [&] {
            const auto frame = frameOnScreen(_probe);
            pictures += frame && frame != last;
            last = frame ? frame : last;
            return false;
        },
        Seconds(2), Seconds(0.004));
    _samples.add("pictures", player.name(), (pictures - 1) / 2.0); // The first was there already.

    if (wants("paused")) {
        _probe.tap(player.pauseKey().key, player.pauseKey().modifiers);
        pause(2);
        const auto frame = frameOnScreen(_probe);
        const auto pausedTicks = processorTicks(process->pid());
        const double pausedRun = millisecondsRun(process->pid()), serverRun = millisecondsRun(server);
        pause(_plan.pausedSeconds);
        _samples.add("paused ticks", player.name(), double(processorTicks(process->pid()) - pausedTicks));
        _samples.add("paused run", player.name(), millisecondsRun(process->pid()) - pausedRun);
        _samples.add("paused server", player.name(), millisecondsRun(server) - serverRun);
        if (frameOnScreen(_probe) != frame)
            throw std::runtime_error(player.name() + " does not pause");
    }
    endAndClear(process);
}

void Measurements::measureJumps() {
    for (int round = 0; round < _plan.jumpRounds; ++round)
        for (const Player* player : turnOf(round)) {
            jumpThrice(*player, false, round);
            if (player->kind() == Player::Kind::mpv)
                jumpThrice(*player, true, round);
        }
}

void Measurements::jumpThrice(const Player& player, bool exactly, int round) {
    const std::string name = player.kind() == Player::Kind::mpv && exactly ? "mpv exact" : player.name();
    const KeyPress key = exactly ? player.exactJumpKey() : player.jumpKey();
    auto process = startPlaying(player);
    // Not always as far from a keyframe; and from a standing picture, so that no player decodes anything else.
    pause(0.8 + 0.37 * (round % 8));
    _probe.tap(player.pauseKey().key, player.pauseKey().modifiers);
    for (int jump = 0; jump < 3; ++jump) {
        pause(0.8);
        std::optional<int> from;
        waitUntil([&] { return (from = frameOnScreen(_probe)).has_value(); });
        const double before = now();
        double first = 0, exact = 0;
        _probe.tap(key.key, key.modifiers);
        waitUntil(
            [&] {
                const auto frame = frameOnScreen(_probe);
                if (!frame || !from)
                    return false;
                const double passed = now() - before;
                const double gone = *frame - *from;
                // Keyframes are 8.3 s apart: the last before the new place lies at least 1.7 s ahead.
                if (first == 0 && gone > 1.3 * framesPerSecond)
                    first = passed;
                if (gone >= 9.7 * framesPerSecond && gone <= 10.2 * framesPerSecond)
                    exact = passed;
                return exact > 0;
            },
            Seconds(2.5), lookEvery);
        if (first > 0)
            _samples.add("jump first", name, first * 1000);
        if (exact > 0)
            _samples.add("jump exact", name, exact * 1000);
    }
    endAndClear(process);
}

void Measurements::measureChanges() {
    // Files of their own: no player may know that it plays the same one again.
    std::vector<std::string> movies = {_movie};
    for (const char* name : {"second", "third", "fourth"}) {
        movies.push_back((_folder / (std::string(name) + ".mp4")).string());
        std::filesystem::copy_file(_movie, movies.back(), std::filesystem::copy_options::overwrite_existing);
        std::filesystem::permissions(movies.back(), std::filesystem::perms::others_read,
                                     std::filesystem::perm_options::add);
    }
    for (int round = 0; round < _plan.changeRounds; ++round)
        for (const Player* player : turnOf(round))
            changeThrice(*player, movies);
}

void Measurements::changeThrice(const Player& player, const std::vector<std::string>& movies) {
    auto process = startPlaying(player, movies);
    for (std::size_t change = 1; change < movies.size(); ++change) {
        constexpr int farIn = 2 * framesPerSecond;
        waitUntil([&] { return frameOnScreen(_probe).value_or(0) > farIn; });
        int black = 0;
        bool isBlack = false;
        const double before = now();
        _probe.tap(player.nextKey().key, player.nextKey().modifiers);
        const bool changed = waitUntil(
            [&] {
                const bool blackNow = !showsMovie(_probe);
                black += blackNow && !isBlack;
                isBlack = blackNow;
                const auto frame = frameOnScreen(_probe);
                return frame && *frame < farIn / 2;
            },
            Seconds(5), lookEvery);
        if (!changed)
            throw std::runtime_error(player.name() + " shows no next movie: " + process->errorOutput());
        _samples.add("change", player.name(), (now() - before) * 1000);
        _samples.add("change black", player.name(), black);
    }
    endAndClear(process);
}

double Measurements::openWithLumaro(const std::vector<std::string>& files) {
    const double before = now();
    auto process =
        _players.back().start(_server.display(), files, {"--set", "QVEnableTrace=1", "--set", "QVPlaylistAutoPlay=0"});
    if (!process->waitForErrorLine("QVPlaylistController: All movies are opened.", 0, Seconds(60)))
        throw std::runtime_error("Lumaro opens no files: " + process->errorOutput());
    const double taken = (now() - before) * 1000;
    Player::end(process);
    return taken;
}

void Measurements::measureOpening() {
    const std::filesystem::path many = _folder / "many";
    for (int round = 0; round < _plan.openRounds; ++round) {
        std::filesystem::remove_all(many);
        const auto forPeer = makeManyMovies(_media, many / "a", _plan.files);
        const auto forLumaro = makeManyMovies(_media, many / "b", _plan.files);
        const auto openSerially = [&] {
            ChildProcess::Options options;
            options.arguments = {LUMARO_OPEN_SERIALLY};
            options.arguments.insert(options.arguments.end(), forPeer.begin(), forPeer.end());
            ChildProcess process(options);
            if (process.waitForExit(Seconds(120)) != 0)
                throw std::runtime_error("opening serially: " + process.errorOutput());
            _samples.add("open", "libavformat", std::stod(process.output()));
        };
        if (round % 2 == 0)
            openSerially();
        // What a start with one file takes is no part of it, however the work is spread over threads.
        const double one = openWithLumaro({forPeer.front()});
        _samples.add("open", "Lumaro", openWithLumaro(forLumaro) - one);
        if (round % 2 == 1)
            openSerially();
    }
    std::filesystem::remove_all(many);
}

double Measurements::processorSharePlaying(const Player& player, const std::string& movie,
                                           const std::vector<std::string>& options) {
    auto process = startPlaying(player, {movie}, options);
    pause(warmUp);
    const double before = now();
    const auto ticksBefore = processorTicks(process->pid());
    pause(_plan.playSeconds);
    const auto ticks = processorTicks(process->pid()) - ticksBefore;
    const double seconds = now() - before;
    endAndClear(process);
    return double(ticks) / ticksPerSecond() / seconds;
}

std::ptrdiff_t Measurements::whiteIn(const harness::Region& part) {
    const auto isWhite = [](std::uint32_t pixel) { return (pixel & 0xE0E0E0) == 0xE0E0E0; };
    return std::ranges::count_if(_probe.picture(part).pixels, isWhite);
}

bool Measurements::textAppears(const harness::Region& part) {
    return waitUntil([&] { return whiteIn(part) > 200; }, Seconds(5), Seconds(0.05));
}

void Measurements::measureSubtitleSwitch() {
    const std::string movie = makeTwoTracks(_media, _plainMovie, _folder / "two tracks").string();
    for (int round = 0; round < _plan.jumpRounds; ++round)
        for (const Player* player : turnOf(round)) {
            auto process = startPlaying(*player, {movie}, player->firstTrackOptions());
            if (!textAppears(bottom))
                throw std::runtime_error(player->name() + " shows no subtitles: " + process->errorOutput());
            pause(1.5 + 0.11 * round);
            const std::ptrdiff_t oneLine = whiteIn(bottom);
            const KeyPress key = player->nextSubtitlesKey();
            const double before = now();
            _probe.tap(key.key, key.modifiers);
            // Reading the screen takes a few milliseconds, the same for all.
            if (waitUntil([&] { return whiteIn(bottom) > 3 * oneLine; }, Seconds(5), lookEvery))
                _samples.add("switch", player->name(), (now() - before) * 1000);
            endAndClear(process);
        }
}

void Measurements::measureAudioSwitch() {
    const std::string movie = makeTwoSounds(_media, _plainMovie).string();
    SoundServer sound(_folder / "sound");
    ::setenv("PULSE_SERVER", sound.address().c_str(), 1); // for the players
    for (int round = 0; round < _plan.jumpRounds; ++round)
        for (const Player* player : turnOf(round)) {
            auto process = startPlaying(*player, {movie}, player->soundOptions());
            pause(2.5 + 0.11 * round);
            const KeyPress key = player->nextAudioKey();
            const double before = now();
            _probe.tap(key.key, key.modifiers);
            if (const auto heard = sound.toneAfter(before, Seconds(5)))
                _samples.add("audio", player->name(), (*heard - before) * 1000);
            endAndClear(process);
        }
    ::unsetenv("PULSE_SERVER");
}

void Measurements::measureInterlaced() {
    const std::string movie = makeInterlacedMovie(_media).string();
    for (int round = 0; round < _plan.playRounds; ++round)
        for (const Player* player : turnOf(round))
            _samples.add("interlaced", player->name(),
                         processorSharePlaying(*player, movie, player->deinterlacingOptions()));
}

bool Measurements::showsText(const Player& player, const harness::Region& part, const std::string& plainMovie,
                             const std::vector<std::string>& options) {
    auto process = startPlaying(player, {plainMovie}, options);
    const bool shows = textAppears(part);
    endAndClear(process);
    return shows;
}

void Measurements::measureTimeDisplay() {
    std::set<std::string> showing;
    for (const Player& player : _players)
        if (showsText(player, top, _plainMovie, player.timeDisplayOptions()))
            showing.insert(player.name());
    for (int round = 0; round < _plan.playRounds; ++round)
        for (const Player* player : turnOf(round))
            if (showing.contains(player->name()))
                _samples.add("osd", player->name(),
                             processorSharePlaying(*player, _movie, player->timeDisplayOptions()));
}

void Measurements::measureSubtitles() {
    const std::string plain = withSubtitles(_plainMovie, _folder / "subtitled", {}).string();
    const std::string movie = withSubtitles(_movie, _folder / "subtitled", {}).string();
    std::set<std::string> showing;
    for (const Player& player : _players)
        if (showsText(player, bottom, plain, player.subtitleOptions(plain)))
            showing.insert(player.name());
    for (int round = 0; round < _plan.playRounds; ++round)
        for (const Player* player : turnOf(round))
            if (showing.contains(player->name()))
                _samples.add("subtitles", player->name(),
                             processorSharePlaying(*player, movie, player->subtitleOptions(movie)));
}

void Measurements::measureFade() {
    const Player player(Player::Kind::lumaro, _folder / "users of fades");
    writeSlowFades(player.configFolder());
    const std::string plain = withSubtitles(_plainMovie, _folder / "fading", {.shown = 1000}).string();
    const std::string movie = withSubtitles(_movie, _folder / "fading", {.shown = 1000}).string();
    {
        auto process = startPlaying(player, {plain});
        pressForFades(_probe, 0);
        if (!textAppears(topLeft) || !textAppears(topRight))
            throw std::runtime_error("no overlay fades in: " + process->errorOutput());
        endAndClear(process);
    }
    for (int round = 0; round < _plan.playRounds; ++round) {
        playFading(player, movie, round % 2 == 0);
        playFading(player, movie, round % 2 != 0);
    }
}

void Measurements::playFading(const Player& player, const std::string& movie, bool fading) {
    auto process = startPlaying(player, {fading ? movie : _movie});
    pause(warmUp);
    std::set<int> seen;
    int taps = 0;
    const double before = now();
    const auto ticksBefore = processorTicks(process->pid());
    waitUntil(
        [&] {
            if (fading && now() - before > taps)
                pressForFades(_probe, taps++);
            if (const auto frame = frameOnScreen(_probe))
                seen.insert(*frame);
            return false;
        },
        Seconds(_plan.playSeconds), Seconds(0.004));
    const auto ticks = processorTicks(process->pid()) - ticksBefore;
    const double seconds = now() - before;
    endAndClear(process);
    if (seen.empty())
        throw std::runtime_error(player.name() + " shows no frame while overlays fade");
    const std::string name = fading ? player.name() : "none fading";
    _samples.add("fade", name, double(ticks) / ticksPerSecond() / seconds);
    _samples.add("fade left out", name, *seen.rbegin() - *seen.begin() + 1 - int(seen.size()));
}

} // namespace bench
