// SPDX-License-Identifier: GPL-3.0-or-later
// A slider of the preferences restyles a subtitle of two lines over a playing movie: is a picture left out for it?
#include "bench/peers/Measurements.h"
#include "bench/peers/Movies.h"
#include "bench/peers/ProcessFigures.h"

#include <stdexcept>

using harness::Seconds;
using harness::waitUntil;

namespace bench {

namespace {

// As often as a pointer that is moved tells it.
constexpr double stepEvery = 1.0 / 60;
// So many steps to and fro.
constexpr int stepsOneWay = 30;

double now() {
    return Seconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

void Measurements::measureDrag() {
    const Player player(Player::Kind::lumaro, _folder / "users of sliders");
    const std::string movie =
        withSubtitles(makeFastMovie(_media), _folder / "dragging", {.count = 1, .shown = 30'000}).string();
    for (int round = 0; round < _plan.playRounds; ++round) {
        playWithPreferences(player, movie, round % 2 == 0);
        playWithPreferences(player, movie, round % 2 != 0);
    }
}

void Measurements::playWithPreferences(const Player& player, const std::string& movie, bool dragging) {
    auto process = startPlaying(player, {movie});
    const auto pause = [](double seconds) { std::this_thread::sleep_for(Seconds(seconds)); };
    constexpr double settling = 2;
    pause(settling);
    const harness::WindowId window = _probe.windowAt(screenWidth / 2, screenHeight / 2);
    _probe.tap(XK_comma, {XK_Control_L});
    if (!waitUntil([&] { return _probe.windowAt(screenWidth / 2, screenHeight / 2) != window; }))
        throw std::runtime_error("no preferences: " + process->errorOutput());
    pause(settling / 2);
    // The page of subtitles, and the blur of their shadow.
    _probe.tap(XK_s, {XK_Alt_L});
    _probe.tap(XK_b, {XK_Alt_L});
    pause(settling);
    std::set<int> seen;
    int steps = 0;
    const double before = now();
    const auto ticksBefore = processorTicks(process->pid());
    waitUntil(
        [&] {
            if (dragging && now() - before > steps * stepEvery)
                _probe.tap(steps++ / stepsOneWay % 2 == 0 ? XK_Right : XK_Left);
            if (const auto frame = fastFrameOnScreen(_probe))
                seen.insert(*frame);
            return false;
        },
        Seconds(_plan.playSeconds), Seconds(0.002));
    const auto ticks = processorTicks(process->pid()) - ticksBefore;
    const double seconds = now() - before;
    _probe.tap(XK_Escape);
    endAndClear(process);
    if (seen.empty())
        throw std::runtime_error(player.name() + " shows no frame beside its preferences");
    const std::string name = dragging ? player.name() : "resting";
    _samples.add("drag", name, double(ticks) / ticksPerSecond() / seconds);
    _samples.add("drag left out", name, (*seen.rbegin() - *seen.begin() + 1 - int(seen.size())) / seconds);
}

} // namespace bench
