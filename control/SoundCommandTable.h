// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the table of commands (control/CommandTable.cpp) that are for sound.
#pragma once

#include "control/Commands.h"
#include "control/QVMovieController.h"
#include "control/VolumeSteps.h"
#include "platform/window/Events.h"

/// The controller's friend: its operations are nobody else's to call.
struct SoundCommandTable {
    using Self = QVMovieController;
    using enum KeyRepeat;
    using enum KeyTaker;

    static constexpr std::uint32_t none = 0;
    static constexpr std::uint32_t shift = platform::modifier::shift;
    static constexpr std::uint32_t control = platform::modifier::control;
    static constexpr std::uint32_t option = platform::modifier::option;

    static constexpr Operation shiftSound{"shiftSound", &Self::shiftSound, &Self::validateShiftSound};
    static constexpr Operation changeVolume{"changeVolume", &Self::changeVolume};
    static constexpr Operation cycleAudio{"cycleAudio", &Self::cycleAudio};

    static constexpr Command rows[] = {
        {.name = "volume-up",
         .action = action::volumeUp,
         .operation = changeVolume,
         .argument = volumeControl::up,
         .keys = {{{platform::functionKey::up, none, timed},
                   {platform::functionKey::mediaVolumeUp, none, timed, keyboardMap, motion::any,
                    CommandKey::Shown::no}}},
         .gesture = MouseGesture::wheelUp,
         .section = Section::volume,
         .menu = {"Volume Up"},
         .help = "Louder and softer"},
        {.name = "volume-down",
         .action = action::volumeDown,
         .operation = changeVolume,
         .argument = volumeControl::down,
         .keys = {{{platform::functionKey::down, none, timed},
                   {platform::functionKey::mediaVolumeDown, none, timed, keyboardMap, motion::any,
                    CommandKey::Shown::no}}},
         .gesture = MouseGesture::wheelDown,
         .section = Section::volume,
         .menu = {"Volume Down", Separator::after},
         .help = "Louder and softer"},
        // Their codes are sent, and no effect stands behind them: the keys are kept from the view.
        {.name = "option-up",
         .action = action::optionUp,
         .keys = {{{platform::functionKey::up, option, consumed}}},
         .section = Section::volume},
        {.name = "option-down",
         .action = action::optionDown,
         .keys = {{{platform::functionKey::down, option, consumed}}},
         .section = Section::volume},
        {.name = "normal-volume",
         .operation = changeVolume,
         .argument = volumeControl::atLeastNormal,
         .section = Section::volume,
         .menu = {"Normal Volume"}},
        {.name = "silent",
         .operation = changeVolume,
         .argument = volumeControl::silent,
         .section = Section::volume,
         .menu = {"Silent"}},
        {.name = "mute",
         .operation = changeVolume,
         .argument = volumeControl::mute,
         .keys = {{{u'm', none, consumed},
                   {platform::functionKey::mediaMute, none, consumed, keyboardMap, motion::any,
                    CommandKey::Shown::no}}},
         .gesture = MouseGesture::middleClick,
         .section = Section::volume,
         .menu = {"Mute", Separator::after},
         .help = "Mute"},
        // The argument is in milliseconds; 0 takes the delay back.
        {.name = "sound-earlier",
         .operation = shiftSound,
         .argument = -50,
         .keys = {{{u'-', control}}},
         .section = Section::volume,
         .menu = {"Sound Earlier"},
         .help = "Sound earlier and later"},
        {.name = "sound-later",
         .operation = shiftSound,
         .argument = 50,
         .keys = {{{u'+', control}, {u'=', control, acts, keyboardMap, motion::any, CommandKey::Shown::no}}},
         .section = Section::volume,
         .menu = {"Sound Later"},
         .help = "Sound earlier and later"},
        {.name = "sound-as-in-file",
         .operation = shiftSound,
         .argument = 0,
         .keys = {{{u'0', control, consumed}}},
         .section = Section::volume,
         .menu = {"Sound as in the File"},
         .help = "Sound at the times of the file"},
        // The argument is a track's number; the items are made when the menu opens.
        {.name = "audio-tracks",
         .operation = {changeAudioOperation, &Self::changeAudio, &Self::validateAudio, Feedback::no},
         .section = Section::volume,
         .menu = {.title = "Audio Tracks", .opens = MenuPlace::Opens::menu}},
        {.name = "next-audio",
         .operation = cycleAudio,
         .argument = 1,
         .keys = {{{u'a', none, consumed}, {u'#', none, consumed}}},
         .section = Section::volume,
         .help = "Next and previous audio track",
         .title = "Next Audio Track"},
        {.name = "previous-audio",
         .operation = cycleAudio,
         .argument = -1,
         .keys = {{{u'a', shift, consumed}}},
         .section = Section::volume,
         .help = "Next and previous audio track",
         .title = "Previous Audio Track"},
    };
};
