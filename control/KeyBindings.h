// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "control/Commands.h"

#include <QStringList>
#include <QVariant>

#include <map>
#include <span>
#include <string_view>
#include <vector>

/// Why a key cannot be given to a command.
enum class KeyRefusal {
    none,
    escape,  // closes dialogs and menus, and ends the player
    desktop, // the desktop's own
};
KeyRefusal refusalOf(KeyChord key);

/// The keys of a table of commands, as the user changed them: a value. Only what the user changed is held. A key that
/// the user gave to one command is taken from the one that has it in the table, for as long as it stays there.
///
/// A key that is new to a command acts as the table's first key of it does: held, it repeats in the same way, and it
/// means two commands in turn where that one does (Space plays, pauses, and goes back to normal speed).
class KeyBindings {
public:
    /// The keys of the table, which must outlive this.
    explicit KeyBindings(std::span<const Command> table);

    /// Takes what a setting holds: a dictionary from the names of commands to lists of their keys in portable text.
    /// What is damaged is left out; `leftOut` gets a word for each.
    void read(const QVariant& setting, QStringList& leftOut);
    /// The same again, without what the table says already.
    QVariantMap setting() const;

    /// The keys of the command now, without those that cannot be changed (Escape).
    std::vector<KeyChord> keysOf(const Command& command) const;
    bool isChanged(const Command& command) const;
    bool isAnyChanged() const { return !_changed.empty(); }
    /// The other command that has the key now; null for none. A command that does nothing is none.
    const Command* holderOf(KeyChord key, const Command& other) const;

    /// The command gets the key, which nobody else has from then on. Not one that is refused, and not beyond
    /// maximumKeys: false then.
    bool give(KeyChord key, const Command& command);
    void take(KeyChord key, const Command& command);
    /// The command gets the table's keys again, also from whoever was given them.
    void reset(const Command& command);
    void resetAll() { _changed.clear(); }

    /// The table with these keys.
    std::vector<Command> commands() const;

    friend bool operator==(const KeyBindings& one, const KeyBindings& other) { return one._changed == other._changed; }

private:
    using Keys = std::vector<KeyChord>;

    Keys keysInTable(const Command& command) const;
    bool isGivenToAnother(KeyChord key, const Command& command) const;
    void takeFromOthers(KeyChord key, const Command& command);
    void set(const Command& command, Keys keys);
    void fill(Command& command) const;

    std::span<const Command> _table;
    /// By the names of the commands.
    std::map<std::string_view, Keys> _changed;
};
