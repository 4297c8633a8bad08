// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/RemoteButtons.h"

#include <algorithm>
#include <iterator>

using platform::RemoteKey;

namespace {

constexpr double stepInterval = 0.2;
/// Not a whole second.
constexpr double fastMotionInterval = 0.99;

struct Row {
    std::int32_t button;
    QStringView cookies;
    const char* name;
    RemoteButtonMeaning playing = {};
    RemoteButtonMeaning resting = playing;
};

constexpr Row rows[] = {
    {remoteButton::volumeUp, u"14_12_11_6_5_", "Volume Up", {action::volumeUp, stepInterval}},
    {remoteButton::volumeDown, u"14_13_11_6_5_", "Volume Down", {action::volumeDown, stepInterval}},
    {remoteButton::menu, u"14_7_6_5_14_7_6_5_", "Menu", {action::nextSubtitles}},
    {remoteButton::playPause, u"14_8_6_5_14_8_6_5_", "Play/Pause", {action::playPause}},
    {remoteButton::right, u"14_9_6_5_14_9_6_5_", "Right", {action::jumpForward}},
    {remoteButton::left, u"14_10_6_5_14_10_6_5_", "Left", {action::jumpBackward}},
    {remoteButton::rightHolding,
     u"14_6_5_4_2_",
     "Right holding",
     {action::fastForward, fastMotionInterval},
     {action::stepForward, stepInterval}},
    {remoteButton::leftHolding,
     u"14_6_5_3_2_",
     "Left holding",
     {action::fastRewind, fastMotionInterval},
     {action::stepBackward, stepInterval}},
    {remoteButton::menuHolding, u"14_6_5_14_6_5_", "Menu holding", {action::quit}},
    {remoteButton::playSleepMode, u"18_14_6_5_18_14_6_5_", "Play (sleep mode)", {action::sleep}},
    {remoteButton::unknown, u"19_", "Unknown"},
};

const Row* rowOf(std::int32_t button) {
    const auto* row = std::ranges::find(rows, button, &Row::button);
    return row == std::end(rows) ? nullptr : row;
}

struct KeyRow {
    RemoteKey key;
    std::string_view command;
};

/// Digits as on the keyboard. The others by what stands on them, and the colours by what is wanted while one sits back.
constexpr KeyRow keyRows[] = {
    {RemoteKey::number0, "half-size"},
    {RemoteKey::number1, "normal-size"},
    {RemoteKey::number2, "double-size"},
    {RemoteKey::number3, "full-size"},
    {RemoteKey::number4, "fit-width"},
    {RemoteKey::number5, "fit-height"},
    {RemoteKey::red, "toggle-controller"},
    {RemoteKey::green, "next-screen"},
    {RemoteKey::yellow, "repair-subtitles"},
    {RemoteKey::blue, "next-looping"},
    {RemoteKey::fastForward, "forward"},
    {RemoteKey::rewind, "rewind"},
    {RemoteKey::next, "next-movie"},
    {RemoteKey::previous, "previous-movie"},
    {RemoteKey::stop, "stop"},
    {RemoteKey::play, "play-pause"},
    {RemoteKey::pause, "play-pause"},
    {RemoteKey::select, "play-pause"},
    {RemoteKey::subtitle, "next-subtitles"},
    {RemoteKey::info, "next-display"},
    {RemoteKey::channelUp, "next-movie"},
    {RemoteKey::channelDown, "previous-movie"},
    {RemoteKey::mute, "mute"},
};

} // namespace

std::optional<std::int32_t> remoteButtonWithCookies(QStringView cookies) {
    const auto* row = std::ranges::find(rows, cookies, &Row::cookies);
    return row == std::end(rows) ? std::nullopt : std::optional(row->button);
}

const char* remoteButtonName(std::int32_t button) {
    const Row* row = rowOf(button);
    return row ? row->name : "Unknown";
}

RemoteButtonMeaning remoteButtonMeaning(std::int32_t button, bool isPlaying) {
    const Row* row = rowOf(button);
    return !row ? RemoteButtonMeaning{} : isPlaying ? row->playing : row->resting;
}

const Command* commandOfRemoteKey(platform::RemoteKey key) {
    const auto* row = std::ranges::find(keyRows, key, &KeyRow::key);
    return row == std::end(keyRows) ? nullptr : commandWithName(row->command);
}
