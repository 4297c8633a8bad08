// SPDX-License-Identifier: GPL-3.0-or-later
// The short words in which the tables of commands (control/CommandTable.cpp) are written.
#pragma once

#include "control/Commands.h"
#include "control/QVMovieController.h"
#include "platform/window/Events.h"

#include <cstdint>

struct CommandTerms {
    using Self = QVMovieController;
    using enum KeyRepeat;
    using enum KeyTaker;

    static constexpr std::uint32_t none = 0;
    static constexpr std::uint32_t shift = platform::modifier::shift;
    static constexpr std::uint32_t control = platform::modifier::control;
    static constexpr std::uint32_t option = platform::modifier::option;
    static constexpr std::uint32_t command = platform::modifier::command;
};
