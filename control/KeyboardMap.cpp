// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/KeyboardMap.h"

#include "context/CommandTarget.h"
#include "control/VolumeSteps.h"
#include "playback/QVMovieView.h"

using platform::KeyEvent;
using Kind = KeyCommand::Kind;

namespace {

/// A held arrow doubles the speed at most once in this many seconds.
constexpr double doublingInterval = 0.8;

/// For keys whose automatic repeats do nothing.
KeyCommand once(const KeyEvent& event, KeyCommand command) {
    return event.isRepeat ? KeyCommand{Kind::consume} : command;
}

KeyCommand sizeCommand(const KeyEvent& event, std::int32_t size, std::string_view feedback) {
    return event.isRepeat ? KeyCommand{Kind::passOn} : KeyCommand{Kind::movieSize, size, feedback};
}

KeyCommand fastMotionCommand(const KeyEvent& event, const KeyboardState& state, Kind kind) {
    if (!state.isPlaying)
        return {Kind::passOn};
    const auto& last = kind == Kind::fastRewind ? state.lastRewind : state.lastForward;
    if (event.isRepeat && (!last || state.now - *last <= doublingInterval))
        return {Kind::consume};
    return {kind};
}

KeyCommand leftCommand(const KeyEvent& event, const KeyboardState& state) {
    if (event.modifierFlags & platform::modifier::command)
        return {Kind::playPrevious}; // repeats step on through the list
    if (event.modifierFlags & platform::modifier::option)
        return once(event, {Kind::gotoBeginning, 0, "Movie: Beginning"});
    if (event.modifierFlags & platform::modifier::control)
        return {Kind::performAction, action::jumpBackward};
    return fastMotionCommand(event, state, Kind::fastRewind);
}

KeyCommand rightCommand(const KeyEvent& event, const KeyboardState& state) {
    if (event.modifierFlags & platform::modifier::command)
        return once(event, {Kind::playNext});
    if (event.modifierFlags & platform::modifier::option)
        return once(event, {Kind::gotoEnd, 0, "Movie: End"});
    if (event.modifierFlags & platform::modifier::control)
        return {Kind::performAction, action::jumpForward};
    return fastMotionCommand(event, state, Kind::fastForward);
}

KeyCommand spaceCommand(const KeyEvent& event, const KeyboardState& state) {
    if (!state.isPlaying || state.rate == 1.0F)
        return {Kind::passOn}; // the view plays or pauses
    return once(event, {Kind::restorePlayback, 0, "Movie: Play"});
}

} // namespace

KeyCommand keyCommand(const KeyEvent& event, const KeyboardState& state) {
    if (event.type == KeyEvent::Type::up)
        return {Kind::stopRepeating};
    if (event.charactersIgnoringModifiers.isEmpty())
        return {Kind::passOn};

    const bool option = (event.modifierFlags & platform::modifier::option) != 0;
    const std::int32_t direction = (event.modifierFlags & platform::modifier::shift) ? -1 : 1;

    switch (event.charactersIgnoringModifiers.front().toLower().unicode()) {
    case u'0':
        return sizeCommand(event, movieSize::half, "Size: Half");
    case u'1':
        return sizeCommand(event, movieSize::normal, "Size: Normal");
    case u'2':
        return sizeCommand(event, movieSize::twice, "Size: Double");
    case u'3':
    case u'f':
        return sizeCommand(event, movieSize::fitScreen, "Size: Full");
    case u'4':
    case u'w':
        return sizeCommand(event, movieSize::fitWidth, "Size: Fit Width");
    case u'5':
    case u'h':
        return sizeCommand(event, movieSize::fitHeight, "Size: Fit Height");
    case u'+':
    case u'=':
        return {Kind::movieSize, movieSize::bigger, "Size: Bigger"};
    case u'-':
        return {Kind::movieSize, movieSize::smaller, "Size: Smaller"};
    case u's':
        return {Kind::cycleSubtitles, direction};
    case u'd':
        return {Kind::cycleDisplays, direction};
    case u'c':
        return once(event, {Kind::toggleController});
    case u'l':
        return once(event, {Kind::toggleLooping, direction});
    case u'm':
        return once(event, {Kind::volumeControl, volumeControl::mute});
    case platform::functionKey::tab:
        return once(event, {Kind::performAction, direction < 0 ? action::previousScreen : action::nextScreen});
    case platform::functionKey::space:
        return spaceCommand(event, state);
    case platform::functionKey::up:
        return once(event, option ? KeyCommand{Kind::performAction, action::optionUp}
                                  : KeyCommand{Kind::repeatAction, action::volumeUp});
    case platform::functionKey::down:
        return once(event, option ? KeyCommand{Kind::performAction, action::optionDown}
                                  : KeyCommand{Kind::repeatAction, action::volumeDown});
    case platform::functionKey::left:
        return leftCommand(event, state);
    case platform::functionKey::right:
        return rightCommand(event, state);
    default:
        return {Kind::passOn};
    }
}
