// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the table of commands (control/CommandTable.cpp) that are for subtitles.
#pragma once

#include "control/CommandTerms.h"
#include "control/QVMovieController.h"
#include "platform/window/Events.h"

/// The controller's friend: its operations are nobody else's to call.
struct SubtitleCommandTable : CommandTerms {
    static constexpr Operation changeSubtitles{"changeSubtitles", &Self::changeSubtitles, &Self::validateSubtitles};
    static constexpr Operation cycleSubtitles{"cycleSubtitles", &Self::cycleSubtitles};
    static constexpr Operation changeSecond{changeSecondOperation, &Self::changeSecond, &Self::validateSecond};
    static constexpr Operation cycleSecond{"cycleSecondSubtitles", &Self::cycleSecond};
    static constexpr Operation toggleRepair{toggleRepairOperation, &Self::toggleRepair, &Self::validateRepair};
    static constexpr Operation addSubtitles{"addSubtitles", &Self::addSubtitles, &Self::validateAddSubtitles};
    static constexpr Operation shiftSubtitles{"shiftSubtitles", &Self::shiftSubtitles, &Self::validateSync};
    static constexpr Operation alignSubtitles{"alignSubtitles", &Self::alignSubtitles, &Self::validateSync};
    static constexpr Operation sizeSubtitles{"sizeSubtitles", &Self::sizeSubtitles};
    static constexpr Operation raiseSubtitles{"raiseSubtitles", &Self::raiseSubtitles};

    static constexpr Command rows[] = {
        // A position outside every list: no subtitles. The items of the tracks follow it.
        {.name = "no-subtitles",
         .operation = changeSubtitles,
         .argument = -1,
         .section = Section::subtitles,
         .menu = {"None", Separator::after, "next-subtitles"},
         .title = "No Subtitles"},
        {.name = "next-subtitles",
         .action = action::nextSubtitles,
         .operation = cycleSubtitles,
         .argument = 1,
         .keys = {{{u's'}}},
         .section = Section::subtitles,
         .help = "Next and previous subtitles",
         .title = "Next Subtitles"},
        {.name = "previous-subtitles",
         .action = action::previousSubtitles,
         .operation = cycleSubtitles,
         .argument = -1,
         .keys = {{{u's', shift}}},
         .section = Section::subtitles,
         .help = "Next and previous subtitles",
         .title = "Previous Subtitles"},

        // Their items follow those of the tracks. Those of the menu are made when it opens; a position outside the list
        // is for none.
        {.name = "second-subtitles",
         .operation = changeSecond,
         .argument = -1,
         .section = Section::subtitles,
         .menu = {.title = "Second Subtitles", .opens = MenuPlace::Opens::menu}},
        {.name = "next-second-subtitles",
         .operation = cycleSecond,
         .argument = 1,
         .keys = {{{u's', option}}},
         .section = Section::subtitles,
         .help = "Second subtitles at the top: next track, none",
         .title = "Next Second Subtitles"},
        {.name = "add-subtitles",
         .operation = addSubtitles,
         .keys = {{{u'e', control, consumed, KeyTaker::menu}}},
         .section = Section::subtitles,
         .menu = {"Add Subtitles...", Separator::after},
         .help = "Add a file of subtitles to the movie"},
        // The argument is in milliseconds; 0 takes the shift back.
        {.name = "subtitles-earlier",
         .operation = shiftSubtitles,
         .argument = -50,
         .keys = {{{u'z'}}},
         .section = Section::subtitles,
         .menu = {"Show Earlier"},
         .help = "Subtitles earlier and later",
         .title = "Show Subtitles Earlier"},
        {.name = "subtitles-later",
         .operation = shiftSubtitles,
         .argument = 50,
         .keys = {{{u'x'}, {u'z', shift}}},
         .section = Section::subtitles,
         .menu = {"Show Later"},
         .help = "Subtitles earlier and later",
         .title = "Show Subtitles Later"},
        {.name = "subtitles-as-in-file",
         .operation = shiftSubtitles,
         .argument = 0,
         .keys = {{{u'x', shift, consumed}}},
         .section = Section::subtitles,
         .menu = {"As in the File"},
         .help = "Subtitles at the times of their file",
         .title = "Subtitles at the Times of Their File"},
        // The argument is -1 for the first line, +1 for the last.
        {.name = "first-line-now",
         .operation = alignSubtitles,
         .argument = -1,
         .keys = {{{u'z', option, consumed}}},
         .section = Section::subtitles,
         .menu = {"First Line Is Spoken Now"},
         .help = "In step by two lines: press one while the first line is spoken, the other while the last one is"},
        {.name = "last-line-now",
         .operation = alignSubtitles,
         .argument = 1,
         .keys = {{{u'x', option, consumed}}},
         .section = Section::subtitles,
         .menu = {"Last Line Is Spoken Now", Separator::after},
         .help = "In step by two lines: press one while the first line is spoken, the other while the last one is"},
        {.name = "larger-subtitles",
         .operation = sizeSubtitles,
         .argument = 1,
         .keys = {{{u'+', option}, {u'=', option, acts, keyboardMap, motion::any, CommandKey::Shown::no}}},
         .section = Section::subtitles,
         .menu = {"Larger Text"},
         .help = "Subtitles larger and smaller",
         .title = "Larger Subtitles"},
        {.name = "smaller-subtitles",
         .operation = sizeSubtitles,
         .argument = -1,
         .keys = {{{u'-', option}}},
         .section = Section::subtitles,
         .menu = {"Smaller Text"},
         .help = "Subtitles larger and smaller",
         .title = "Smaller Subtitles"},
        {.name = "higher-subtitles",
         .operation = raiseSubtitles,
         .argument = 1,
         .keys = {{{platform::functionKey::pageUp, option}}},
         .section = Section::subtitles,
         .menu = {"Higher"},
         .help = "Subtitles higher and lower",
         .title = "Higher Subtitles"},
        {.name = "lower-subtitles",
         .operation = raiseSubtitles,
         .argument = -1,
         .keys = {{{platform::functionKey::pageDown, option}}},
         .section = Section::subtitles,
         .menu = {"Lower", Separator::after},
         .help = "Subtitles higher and lower",
         .title = "Lower Subtitles"},
        {.name = "repair-subtitles",
         .operation = toggleRepair,
         .keys = {{{u'r', none, consumed}}},
         .section = Section::subtitles,
         .menu = {"Repair", Separator::none},
         .help = "Repair damaged subtitles",
         .title = "Repair damaged subtitles"},
    };
};
