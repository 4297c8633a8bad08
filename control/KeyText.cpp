// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/KeyText.h"

#include "platform/base/Localization.h"
#include "platform/window/Events.h"

#include <algorithm>

namespace {

namespace fnkey = platform::functionKey;

struct KeyName {
    char16_t character;
    QStringView portable;
    QStringView readable;
};

constexpr KeyName keyNames[] = {
    {fnkey::up, u"Up", u"\u2191"},
    {fnkey::down, u"Down", u"\u2193"},
    {fnkey::left, u"Left", u"\u2190"},
    {fnkey::right, u"Right", u"\u2192"},
    {fnkey::f1, u"F1", u"F1"},
    {fnkey::f1 + 1, u"F2", u"F2"},
    {fnkey::f1 + 2, u"F3", u"F3"},
    {fnkey::f1 + 3, u"F4", u"F4"},
    {fnkey::f1 + 4, u"F5", u"F5"},
    {fnkey::f1 + 5, u"F6", u"F6"},
    {fnkey::f1 + 6, u"F7", u"F7"},
    {fnkey::f1 + 7, u"F8", u"F8"},
    {fnkey::f1 + 8, u"F9", u"F9"},
    {fnkey::f1 + 9, u"F10", u"F10"},
    {fnkey::f1 + 10, u"F11", u"F11"},
    {fnkey::f12, u"F12", u"F12"},
    {fnkey::insert, u"Ins", u"Insert"},
    {fnkey::remove, u"Del", u"Delete"},
    {fnkey::home, u"Home", u"Home"},
    {fnkey::end, u"End", u"End"},
    {fnkey::pageUp, u"PgUp", u"Page Up"},
    {fnkey::pageDown, u"PgDown", u"Page Down"},
    {fnkey::mediaPlay, u"Media Play", u"Media Play"},
    {fnkey::mediaStop, u"Media Stop", u"Media Stop"},
    {fnkey::mediaNext, u"Media Next", u"Media Next"},
    {fnkey::mediaPrevious, u"Media Previous", u"Media Previous"},
    {fnkey::mediaVolumeUp, u"Volume Up", u"Media Volume Up"},
    {fnkey::mediaVolumeDown, u"Volume Down", u"Media Volume Down"},
    {fnkey::mediaMute, u"Volume Mute", u"Media Mute"},
    {fnkey::backspace, u"Backspace", u"Backspace"},
    {fnkey::enter, u"Return", u"Return"},
    {fnkey::escape, u"Esc", u"Esc"},
    {fnkey::tab, u"Tab", u"Tab"},
    {fnkey::space, u"Space", u"Space"},
    {u'-', u"-", u"\u2212"},
};

struct ModifierName {
    std::uint32_t mask;
    QStringView portable;
    QStringView readable;
};

/// In the order in which they are written.
constexpr ModifierName modifierNames[] = {
    {platform::modifier::command, u"Meta+", u"Super+"},
    {platform::modifier::control, u"Ctrl+", u"Ctrl+"},
    {platform::modifier::option, u"Alt+", u"Alt+"},
    {platform::modifier::shift, u"Shift+", u"Shift+"},
};

/// As the user's keyboard has it; the name itself where no translation says otherwise.
QString shown(QStringView name) {
    const QString key = QStringLiteral("KeyName ") + name.toString();
    const QString text = platform::localizedString(key);
    return text == key ? name.toString() : text;
}

QString asItIs(QStringView name) {
    return name.toString();
}

QString keyText(KeyChord key, QStringView KeyName::*form, QStringView ModifierName::*modifierForm,
                QString (*written)(QStringView)) {
    QString text;
    for (const ModifierName& modifier : modifierNames)
        if (key.modifiers & modifier.mask)
            text += written(modifier.*modifierForm);
    const auto* name = std::ranges::find(keyNames, key.character, &KeyName::character);
    return text + (name != std::end(keyNames) ? written(name->*form) : QString(QChar(key.character).toUpper()));
}

} // namespace

QString portableKeyText(KeyChord key) {
    return keyText(key, &KeyName::portable, &ModifierName::portable, asItIs);
}

QString readableKeyText(KeyChord key) {
    return keyText(key, &KeyName::readable, &ModifierName::readable, shown);
}

std::optional<KeyChord> keyOfPortableText(const QString& text) {
    KeyChord key;
    QStringView rest(text);
    for (const ModifierName& modifier : modifierNames) {
        // A plus that ends the text is the key itself.
        if (rest.startsWith(modifier.portable, Qt::CaseInsensitive) && rest.size() > modifier.portable.size()) {
            key.modifiers |= modifier.mask;
            rest = rest.mid(modifier.portable.size());
        }
    }
    for (const KeyName& name : keyNames) {
        if (rest.compare(name.portable, Qt::CaseInsensitive) == 0) {
            key.character = name.character;
            return key;
        }
    }
    const QChar typed = rest.size() == 1 ? rest.front().toLower() : QChar();
    if (!typed.isPrint() || typed.isSpace() || typed.isSurrogate() || typed.category() == QChar::Other_PrivateUse)
        return std::nullopt;
    key.character = typed.unicode();
    return key;
}
