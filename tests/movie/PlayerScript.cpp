// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/movie/PlayerScript.h"

#include <sstream>
#include <utility>

using namespace platform;

namespace {

template <class... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};

std::string with(const char* word, auto number) {
    std::ostringstream text;
    text << word << ' ' << number;
    return text.str();
}

std::string nameOf(PlayerTimer timer) {
    const char* const names[playerTimerCount] = {"keyframe", "failure", "growth", "scrub", "text", "step"};
    return names[static_cast<std::size_t>(timer)];
}

std::string textOf(const PlayerEffect& effect, const PlayerState& state) {
    using namespace playerEffect;
    return std::visit(Overloaded{
                          [](const LoadFile& e) { return with("load", e.start); },
                          [](const StopFile&) { return std::string("stop"); },
                          [](const SendSeek& e) {
                              return with("seek", e.seek.seconds) +
                                     (e.seek.kind == SeekPlanner::Kind::keyframe ? " keyframe" : " exact");
                          },
                          [](const UseMoreThreads&) { return std::string("more threads"); },
                          [](const SendStep& e) { return with("step", e.direction); },
                          [](const SetPaused& e) { return std::string(e.paused ? "pause" : "go"); },
                          [](const SetSpeed& e) { return with("speed", e.speed); },
                          [](const SetRepeated& e) {
                              return e.seconds ? with("repeat", e.seconds->first) + with(" to", e.seconds->second)
                                               : std::string("repeat nothing");
                          },
                          [](const SetVolume& e) { return with("volume", e.volume); },
                          [](const SetMuted& e) { return std::string(e.muted ? "mute" : "unmute"); },
                          [&](const SelectVideo&) { return with("video", state.tracks.video.value_or(-1)); },
                          [&](const SelectAudio&) { return with("audio", state.tracks.audio.value_or(-1)); },
                          [&](const SelectSubtitles&) {
                              return with("subtitles", state.tracks.subtitles) +
                                     state.tracks.subtitleFile.toStdString() +
                                     (state.tracks.drawn == TrackSelection::Drawn::inPicture ? " drawn" : "");
                          },
                          [&](const SelectSecondSubtitles&) { return with("second", state.tracks.secondSubtitles); },
                          [](const SetDelays& e) {
                              return with("delays", e.audio) + with("", e.subtitles) +
                                     (e.subtitleSpeed == 1 ? std::string() : with(" x", e.subtitleSpeed));
                          },
                          [](const ArmTimer& e) { return with(("arm " + nameOf(e.timer)).c_str(), e.seconds); },
                          [](const CancelTimer& e) { return "cancel " + nameOf(e.timer); },
                          [](const CancelTimers&) { return std::string("cancel all"); },
                          [](const UseCoreFrame&) { return std::string("use frame"); },
                          [](const SkipFrame&) { return std::string("skip frame"); },
                          [](const DropHeldFrame&) { return std::string("drop frame"); },
                      },
                      effect);
}

std::string textOf(const PlayerReport& report) {
    using namespace playerReport;
    return std::visit(Overloaded{
                          [](const FrameChanged&) { return std::string("frame"); },
                          [](const FrameDue&) { return std::string("due"); },
                          [](const StateChanged&) { return std::string("state"); },
                          [](const ShowedFrame& r) { return with("frame", r.time); },
                          [](const Jumped&) { return std::string("jump"); },
                          [](const ReachedEnd&) { return std::string("end"); },
                          [](const Grew& r) { return with("lasts", r.duration); },
                          [](const Failed& r) { return with("failed", r.error); },
                      },
                      report);
}

} // namespace

PlayerScript PlayerScript::showing(const LoadedMovie& movie, std::int32_t time) {
    PlayerScript player;
    player(playerEvent::CoreReady{});
    player(playerEvent::Load{movie, time});
    player(playerEvent::FileStarted{1});
    player(playerEvent::PlaybackRestarted{});
    return player;
}

std::string PlayerScript::operator()(const PlayerEvent& event) {
    const PlayerTransition next = transition(_state, event);
    _state = next.state;
    std::string text;
    for (const PlayerEffect& effect : next.effects)
        text += (text.empty() ? "" : ", ") + textOf(effect, _state);
    const char* separator = text.empty() ? "| " : " | ";
    for (const PlayerReport& report : next.reports)
        text += std::exchange(separator, ", ") + textOf(report);
    return text;
}
