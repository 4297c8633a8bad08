// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/KeyBindings.h"

#include "control/KeyText.h"
#include "platform/window/Events.h"

#include <algorithm>
#include <ranges>
#include <utility>

namespace {

namespace fnkey = platform::functionKey;

bool contains(const std::vector<KeyChord>& keys, KeyChord key) {
    return std::ranges::find(keys, key) != keys.end();
}

const Command* named(std::span<const Command> table, std::string_view name) {
    const auto found = std::ranges::find(table, name, &Command::name);
    return found == table.end() ? nullptr : &*found;
}

/// The key of the command's row whose ways a new one takes: the first that is shown and that the key map or the view
/// acts on, since a menu's shortcut knows no repeats.
KeyChord modelKeyOf(const Command& command) {
    for (const CommandKey& key : command.keys)
        if (key.shown == CommandKey::Shown::yes &&
            (key.taker == KeyTaker::keyboardMap || key.taker == KeyTaker::movieView))
            return key.chord();
    return command.keys.front().chord();
}

/// The rows of the command that a key fills: its own in the table, else those of the model, which the key map acts on.
std::vector<CommandKey> rowsOf(KeyChord key, const Command& command) {
    std::vector<CommandKey> rows;
    std::ranges::copy_if(command.keys, std::back_inserter(rows),
                         [&](const CommandKey& row) { return row.chord() == key; });
    if (!rows.empty())
        return rows;
    const KeyChord model = modelKeyOf(command);
    if (!model.character)
        return {{key.character, key.modifiers, KeyRepeat::consumed}};
    for (CommandKey row : rowsOf(model, command)) {
        row.character = key.character;
        row.modifiers = key.modifiers;
        row.taker = KeyTaker::keyboardMap;
        // Whose key it shares is shown already.
        row.shown = command.keysOf.empty() ? CommandKey::Shown::yes : CommandKey::Shown::no;
        rows.push_back(row);
    }
    return rows;
}

std::uint8_t motionsOf(const std::vector<CommandKey>& rows) {
    std::uint8_t motions = 0;
    for (const CommandKey& row : rows)
        motions |= row.during;
    return motions;
}

} // namespace

KeyRefusal refusalOf(KeyChord key) {
    if (key.character == fnkey::escape)
        return KeyRefusal::escape;
    const bool isFunctionKey = key.character >= fnkey::f1 && key.character <= fnkey::f12;
    const bool closesWindow = key.character == fnkey::f1 + 3 && key.modifiers == platform::modifier::option;
    constexpr std::uint32_t consoles = platform::modifier::control | platform::modifier::option;
    return closesWindow || (isFunctionKey && (key.modifiers & consoles) == consoles) ? KeyRefusal::desktop
                                                                                     : KeyRefusal::none;
}

KeyBindings::KeyBindings(std::span<const Command> table)
    : _table(table) {}

void KeyBindings::read(const QVariant& setting, QStringList& leftOut) {
    _changed.clear();
    if (!setting.isValid())
        return;
    if (setting.typeId() != QMetaType::QVariantMap) {
        leftOut << QStringLiteral("all of it");
        return;
    }
    QVariantMap values = setting.toMap();
    // In the table's order: of two commands with the same key the first one has it.
    for (const Command& command : _table) {
        const QString name = QString::fromUtf8(command.name);
        if (!hasChangeableKeys(command) || !values.contains(name))
            continue;
        const QVariant value = values.take(name);
        if (value.typeId() != QMetaType::QVariantList && value.typeId() != QMetaType::QStringList) {
            leftOut << name;
            continue;
        }
        Keys keys;
        for (const QVariant& text : value.toList()) {
            const auto key = keyOfPortableText(text.toString());
            if (!key || refusalOf(*key) != KeyRefusal::none || contains(keys, *key) ||
                isGivenToAnother(*key, command) || keys.size() == maximumKeys)
                leftOut << name + u' ' + text.toString();
            else
                keys.push_back(*key);
        }
        _changed[command.name] = std::move(keys);
    }
    leftOut << values.keys();
    // What the table says already.
    for (const Command& command : _table)
        if (const auto changed = _changed.find(command.name); changed != _changed.end())
            set(command, Keys(changed->second));
}

QVariantMap KeyBindings::setting() const {
    QVariantMap values;
    for (const auto& [name, keys] : _changed) {
        QVariantList texts;
        for (const KeyChord key : keys)
            texts.append(portableKeyText(key));
        values.insert(QString::fromUtf8(name), texts);
    }
    return values;
}

KeyBindings::Keys KeyBindings::keysInTable(const Command& command) const {
    Keys keys;
    for (const CommandKey& key : command.keys)
        if (key.character && key.taker != KeyTaker::window && !contains(keys, key.chord()))
            keys.push_back(key.chord());
    return keys;
}

bool KeyBindings::isGivenToAnother(KeyChord key, const Command& command) const {
    return std::ranges::any_of(_changed, [&](const auto& changed) {
        return changed.first != command.name && changed.first != command.keysOf && contains(changed.second, key);
    });
}

std::vector<KeyChord> KeyBindings::keysOf(const Command& command) const {
    if (const auto changed = _changed.find(command.name); changed != _changed.end())
        return changed->second;
    Keys keys = keysInTable(command);
    std::erase_if(keys, [&](KeyChord key) { return isGivenToAnother(key, command); });
    return keys;
}

bool KeyBindings::isChanged(const Command& command) const {
    return keysOf(command) != keysInTable(command);
}

const Command* KeyBindings::holderOf(KeyChord key, const Command& other) const {
    const auto holds = [&](const Command& command) {
        return &command != &other && hasChangeableKeys(command) && contains(keysOf(command), key);
    };
    const auto found = std::ranges::find_if(_table, holds);
    return found == _table.end() ? nullptr : &*found;
}

/// Keys that are the table's again are no change.
void KeyBindings::set(const Command& command, Keys keys) {
    if (keys == keysInTable(command))
        _changed.erase(command.name);
    else
        _changed[command.name] = std::move(keys);
}

void KeyBindings::takeFromOthers(KeyChord key, const Command& command) {
    for (const Command& other : _table)
        if (const auto changed = _changed.find(other.name);
            other.name != command.name && changed != _changed.end() && contains(changed->second, key))
            take(key, other);
}

bool KeyBindings::give(KeyChord key, const Command& command) {
    Keys keys = keysOf(command);
    if (contains(keys, key))
        return true;
    if (refusalOf(key) != KeyRefusal::none || keys.size() == maximumKeys)
        return false;
    takeFromOthers(key, command);
    keys.push_back(key);
    set(command, std::move(keys));
    return true;
}

void KeyBindings::take(KeyChord key, const Command& command) {
    Keys keys = keysOf(command);
    std::erase(keys, key);
    set(command, std::move(keys));
}

void KeyBindings::reset(const Command& command) {
    for (const KeyChord key : keysInTable(command))
        takeFromOthers(key, command);
    _changed.erase(command.name);
}

/// Those of the table where the user changed nothing.
void KeyBindings::fill(Command& command) const {
    const Command* shared = named(_table, command.keysOf);
    if (shared ? !isChanged(*shared) : !isChanged(command))
        return;
    std::vector<CommandKey> rows;
    for (const KeyChord key : shared ? keysOf(*shared) : keysOf(command)) {
        // Whoever shares a key has it where the other one has no use for it.
        const std::uint8_t taken = shared ? motionsOf(rowsOf(key, *shared)) : std::uint8_t{0};
        for (CommandKey row : rowsOf(key, command)) {
            row.during = static_cast<std::uint8_t>(row.during & ~taken);
            if (row.during)
                rows.push_back(row);
        }
    }
    std::ranges::copy_if(command.keys, std::back_inserter(rows),
                         [](const CommandKey& key) { return key.character && key.taker == KeyTaker::window; });
    command.keys = {};
    std::ranges::copy(rows | std::views::take(command.keys.size()), command.keys.begin());
}

std::vector<Command> KeyBindings::commands() const {
    std::vector<Command> filled(_table.begin(), _table.end());
    for (Command& command : filled)
        fill(command);
    return filled;
}
