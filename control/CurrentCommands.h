// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "control/Commands.h"
#include "platform/base/NotificationCenter.h"

#include <span>
#include <string_view>
#include <vector>

namespace platform {
struct MenuItem;
} // namespace platform

/// The player's commands with the keys that they have now: those of the table, but for what the user changed
/// (kQVCommandKeys). It follows the setting; whoever shows or looks up keys does so after it, by the same notification,
/// and is therefore made later. What is damaged in the setting is left out and logged in one line. Main thread.
class CurrentCommands {
public:
    explicit CurrentCommands(const Environment& environment);

    /// In the table's order; the rows stay where they are when keys change.
    std::span<const Command> all() const { return _commands; }
    /// Null for names that no command has.
    const Command* withName(std::string_view name) const;

    /// Says beside the menu item which key the command has; one that the menu takes becomes the item's shortcut.
    void showKey(platform::MenuItem& item, std::string_view command) const;

private:
    void read();

    Environment _environment;
    std::vector<Command> _commands;
    platform::Subscription _changed;
};
