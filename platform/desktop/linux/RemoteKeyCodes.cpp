// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/RemoteKeyCodes.h"

#include <QRegularExpression>

#include <linux/input.h>

#include <algorithm>
#include <array>

namespace platform {

namespace {

constexpr std::int32_t volumeUp[] = {14, 12, 11, 6, 5};
constexpr std::int32_t volumeDown[] = {14, 13, 11, 6, 5};
constexpr std::int32_t menu[] = {14, 7, 6, 5, 14, 7, 6, 5};
constexpr std::int32_t playPause[] = {14, 8, 6, 5, 14, 8, 6, 5};
constexpr std::int32_t right[] = {14, 9, 6, 5, 14, 9, 6, 5};
constexpr std::int32_t left[] = {14, 10, 6, 5, 14, 10, 6, 5};
constexpr std::int32_t rightHolding[] = {14, 6, 5, 4, 2};
constexpr std::int32_t leftHolding[] = {14, 6, 5, 3, 2};
constexpr std::int32_t menuHolding[] = {14, 6, 5, 14, 6, 5};
constexpr std::int32_t playSleepMode[] = {18, 14, 6, 5, 18, 14, 6, 5};

struct Row {
    std::uint16_t keyCode;
    RemoteKeyMeaning meaning;
};

/// The keys for moving about mean what they do on the keyboard: up and down are the volume. A power key means nothing,
/// for nobody expects a player to switch the computer off.
constexpr Row rows[] = {
    {KEY_VOLUMEUP, {volumeUp}},
    {KEY_VOLUMEDOWN, {volumeDown}},
    {KEY_UP, {volumeUp}},
    {KEY_DOWN, {volumeDown}},
    {KEY_MENU, {menu, menuHolding}},
    {KEY_PLAYPAUSE, {playPause, playSleepMode}},
    {KEY_RIGHT, {right, rightHolding}},
    {KEY_LEFT, {left, leftHolding}},
    {KEY_SLEEP, {playSleepMode}},
    {KEY_NUMERIC_0, {{}, {}, RemoteKey::number0}},
    {KEY_NUMERIC_1, {{}, {}, RemoteKey::number1}},
    {KEY_NUMERIC_2, {{}, {}, RemoteKey::number2}},
    {KEY_NUMERIC_3, {{}, {}, RemoteKey::number3}},
    {KEY_NUMERIC_4, {{}, {}, RemoteKey::number4}},
    {KEY_NUMERIC_5, {{}, {}, RemoteKey::number5}},
    {KEY_NUMERIC_6, {{}, {}, RemoteKey::number6}},
    {KEY_NUMERIC_7, {{}, {}, RemoteKey::number7}},
    {KEY_NUMERIC_8, {{}, {}, RemoteKey::number8}},
    {KEY_NUMERIC_9, {{}, {}, RemoteKey::number9}},
    // Many tables of the kernel name the digits of a keyboard.
    {KEY_0, {{}, {}, RemoteKey::number0}},
    {KEY_1, {{}, {}, RemoteKey::number1}},
    {KEY_2, {{}, {}, RemoteKey::number2}},
    {KEY_3, {{}, {}, RemoteKey::number3}},
    {KEY_4, {{}, {}, RemoteKey::number4}},
    {KEY_5, {{}, {}, RemoteKey::number5}},
    {KEY_6, {{}, {}, RemoteKey::number6}},
    {KEY_7, {{}, {}, RemoteKey::number7}},
    {KEY_8, {{}, {}, RemoteKey::number8}},
    {KEY_9, {{}, {}, RemoteKey::number9}},
    {KEY_RED, {{}, {}, RemoteKey::red}},
    {KEY_GREEN, {{}, {}, RemoteKey::green}},
    {KEY_YELLOW, {{}, {}, RemoteKey::yellow}},
    {KEY_BLUE, {{}, {}, RemoteKey::blue}},
    {KEY_FASTFORWARD, {{}, {}, RemoteKey::fastForward}},
    {KEY_REWIND, {{}, {}, RemoteKey::rewind}},
    {KEY_NEXT, {{}, {}, RemoteKey::next}},
    {KEY_NEXTSONG, {{}, {}, RemoteKey::next}},
    {KEY_PREVIOUS, {{}, {}, RemoteKey::previous}},
    {KEY_PREVIOUSSONG, {{}, {}, RemoteKey::previous}},
    {KEY_STOP, {{}, {}, RemoteKey::stop}},
    {KEY_STOPCD, {{}, {}, RemoteKey::stop}},
    {KEY_PLAY, {{}, {}, RemoteKey::play}},
    {KEY_PLAYCD, {{}, {}, RemoteKey::play}},
    {KEY_PAUSE, {{}, {}, RemoteKey::pause}},
    {KEY_PAUSECD, {{}, {}, RemoteKey::pause}},
    {KEY_OK, {{}, {}, RemoteKey::select}},
    {KEY_SELECT, {{}, {}, RemoteKey::select}},
    {KEY_ENTER, {{}, {}, RemoteKey::select}},
    {KEY_KPENTER, {{}, {}, RemoteKey::select}},
    {KEY_SUBTITLE, {{}, {}, RemoteKey::subtitle}},
    {KEY_INFO, {{}, {}, RemoteKey::info}},
    {KEY_CHANNELUP, {{}, {}, RemoteKey::channelUp}},
    {KEY_CHANNELDOWN, {{}, {}, RemoteKey::channelDown}},
    {KEY_MUTE, {{}, {}, RemoteKey::mute}},
};

/// What the driver of the Macintosh's receiver calls right and left. Elsewhere these keys turn pages.
constexpr Row appleRows[] = {{KEY_FORWARD, {right, rightHolding}}, {KEY_BACK, {left, leftHolding}}};

const RemoteKeyMeaning* meaningIn(std::span<const Row> table, std::uint16_t keyCode) {
    const auto row = std::ranges::find(table, keyCode, &Row::keyCode);
    return row == table.end() ? nullptr : &row->meaning;
}

} // namespace

std::optional<RemoteKind> remoteKindOf(const InputDeviceFacts& facts) {
    if (facts.belongsToReceiver)
        return RemoteKind::infrared;
    if (facts.driver == u"appleir")
        return RemoteKind::appleInfrared;
    static const QRegularExpression remote(QStringLiteral("remote"), QRegularExpression::CaseInsensitiveOption);
    if (facts.hasKeys && !facts.isKeyboard && !facts.isPointer && facts.name.contains(remote))
        return RemoteKind::named;
    return std::nullopt;
}

std::vector<RemoteEvent> burstOf(RemoteElements elements, bool pressed) {
    std::vector<RemoteEvent> events;
    for (const std::int32_t element : elements)
        events.push_back({element, 0});
    if (pressed && !events.empty())
        events.front().value = 1;
    return events;
}

const RemoteKeyMeaning* remoteKeyMeaning(RemoteKind kind, std::uint16_t keyCode) {
    if (kind == RemoteKind::appleInfrared) {
        if (const RemoteKeyMeaning* meaning = meaningIn(appleRows, keyCode))
            return meaning;
    }
    return meaningIn(rows, keyCode);
}

std::optional<std::int32_t> remoteIdentityOf(std::uint32_t scanCode) {
    // The 32 bits of the NEC protocol as the kernel puts them together: the maker's two bytes, the identity that
    // pairing changes, the button.
    constexpr std::uint32_t maker = 0x87EE;
    if (scanCode >> 16 != maker)
        return std::nullopt;
    return static_cast<std::int32_t>(scanCode >> 8 & 0xFF);
}

} // namespace platform
