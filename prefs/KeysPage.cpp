// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/KeysPage.h"

#include "control/KeyText.h"
#include "platform/base/Localization.h"
#include "platform/base/UserDefaults.h"
#include "platform/window/qt/QtEvents.h"
#include "prefs/PressedKey.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"

#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>
#include <ui_Keys.h>
#include <utility>

namespace {

QString localized(std::string_view key) {
    return platform::localizedString(QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size())));
}

QString titleOf(const Command& command) {
    QString title = localized(keyTitleOf(command));
    // What asks for more before it acts ends in dots, spaced as the language has it.
    for (const QStringView dots : {u"...", u"\u2026"})
        if (title.endsWith(dots))
            title.chop(dots.size());
    return title.trimmed();
}

QString readableTexts(const std::vector<KeyChord>& keys) {
    QStringList texts;
    for (const KeyChord key : keys)
        texts << readableKeyText(key);
    return texts.join(QStringLiteral(", "));
}

/// Those that stay what they are, too (Escape).
QString keysOf(const Command& command, const KeyBindings& bindings) {
    std::vector<KeyChord> keys = bindings.keysOf(command);
    for (const CommandKey& key : command.keys)
        if (key.character && key.taker == KeyTaker::window)
            keys.push_back(key.chord());
    return readableTexts(keys);
}

QString said(const char* format, const QStringList& arguments) {
    return platform::localizedFormat(QString::fromUtf8(format), arguments);
}

} // namespace

KeysPage::KeysPage(const Environment& environment, Choose choose)
    : _environment(environment)
    , _choose(std::move(choose))
    , _controls(std::make_unique<Ui::Keys>())
    , _widget(new QWidget)
    , _bindings(commands()) {
    _controls->setupUi(_widget);
    listCommands();
    connectControls();
    leaveConflict();
    readSetting();
    _changed = environment.notifications.observe<QVPreferencesChangedNotification>([this](const auto& changed) {
        if (changed.key == kQVCommandKeys)
            readSetting();
    });
}

KeysPage::~KeysPage() = default;

void KeysPage::connectControls() {
    const auto& c = *_controls;
    // Nothing moves when they come and go.
    for (QPushButton* button : {c._keysTakeOver, c._keysLeave}) {
        QSizePolicy policy = button->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        button->setSizePolicy(policy);
    }
    connect(c._keysSearch, &QLineEdit::textChanged, this, [this](const QString& words) { search(words); });
    connect(c._keysCommands, &QTreeWidget::currentItemChanged, this, [this] {
        leaveConflict();
        showKeysOfCommand();
    });
    connect(c._keysOfCommand, &QListWidget::currentRowChanged, this,
            [this](int row) { _controls->_keysRemove->setEnabled(row >= 0); });
    connect(c._keysAdd, &QPushButton::clicked, this, [this] { setRecording(true); });
    c._keysAdd->installEventFilter(this);
    connect(c._keysRemove, &QPushButton::clicked, this, [this] { removeKey(); });
    connect(c._keysReset, &QPushButton::clicked, this, [this] {
        if (const Command* command = markedCommand())
            change([command](KeyBindings& keys) { keys.reset(*command); });
    });
    connect(c._keysResetAll, &QPushButton::clicked, this,
            [this] { change([](KeyBindings& keys) { keys.resetAll(); }); });
    connect(c._keysUndo, &QPushButton::clicked, this, [this] { undo(); });
    connect(c._keysTakeOver, &QPushButton::clicked, this, [this] {
        const Command* command = markedCommand();
        if (command && _conflict)
            give(*_conflict, *command);
        _controls->_keysAdd->setFocus();
    });
    connect(c._keysLeave, &QPushButton::clicked, this, [this] {
        leaveConflict();
        _controls->_keysAdd->setFocus();
    });
}

void KeysPage::listCommands() {
    QTreeWidget& tree = *_controls->_keysCommands;
    QFont bold;
    bold.setBold(true);
    for (const Section section : sections) {
        auto* heading = new QTreeWidgetItem(&tree, {localized(sectionTitle(section))});
        heading->setFlags(Qt::ItemIsEnabled);
        heading->setFirstColumnSpanned(true);
        heading->setFont(0, bold);
        for (const Command& command : commands())
            if (command.section == section && hasChangeableKeys(command)) {
                auto* item = new QTreeWidgetItem(heading, {titleOf(command)});
                item->setToolTip(0, localized(command.help));
                _items.emplace_back(item, &command);
            }
    }
    tree.expandAll();
    tree.header()->setStretchLastSection(false);
    tree.header()->setSectionResizeMode(0, QHeaderView::Stretch);
    tree.header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    tree.setCurrentItem(_items.front().first);
}

void KeysPage::readSetting() {
    KeyBindings stored(commands());
    QStringList leftOut; // is logged elsewhere
    stored.read(_environment.settings.objectForKey(kQVCommandKeys), leftOut);
    if (stored != _bindings) {
        _before.clear();
        _bindings = std::move(stored);
    }
    showKeys();
}

void KeysPage::showKeys() {
    for (const auto& [item, command] : _items) {
        item->setText(1, keysOf(*command, _bindings));
        QFont font = _controls->_keysCommands->font();
        font.setBold(_bindings.isChanged(*command));
        item->setFont(0, font);
        item->setFont(1, font);
    }
    search(_controls->_keysSearch->text());
    _controls->_keysResetAll->setEnabled(_bindings.isAnyChanged());
    _controls->_keysUndo->setEnabled(!_before.empty());
}

void KeysPage::showKeysOfCommand() {
    const Command* command = markedCommand();
    QListWidget& list = *_controls->_keysOfCommand;
    list.clear();
    if (command)
        for (const KeyChord key : _bindings.keysOf(*command))
            list.addItem(readableKeyText(key));
    list.setCurrentRow(list.count() - 1);
    _controls->_keysAdd->setEnabled(command);
    _controls->_keysRemove->setEnabled(list.count() > 0);
    _controls->_keysReset->setEnabled(command && _bindings.isChanged(*command));
}

/// Leaves the commands that have every word in their title, their help or their keys.
void KeysPage::search(const QString& words) {
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    QTreeWidgetItem* first = nullptr;
    for (const auto& [item, command] : _items) {
        const QString text = item->text(0) + u'\n' + item->toolTip(0) + u'\n' + item->text(1);
        const bool isFound =
            std::ranges::all_of(wanted, [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
        item->setHidden(!isFound);
        if (isFound && !first)
            first = item;
    }
    QTreeWidget& tree = *_controls->_keysCommands;
    QFont bold;
    bold.setBold(true);
    for (int section = 0; section < tree.topLevelItemCount(); ++section) {
        QTreeWidgetItem* heading = tree.topLevelItem(section);
        int hidden = 0;
        for (int row = 0; row < heading->childCount(); ++row)
            hidden += heading->child(row)->isHidden();
        heading->setHidden(hidden == heading->childCount());
    }
    if (first && (!tree.currentItem() || tree.currentItem()->isHidden()))
        tree.setCurrentItem(first);
    showKeysOfCommand();
}

const Command* KeysPage::markedCommand() const {
    const QTreeWidgetItem* marked = _controls->_keysCommands->currentItem();
    for (const auto& [item, command] : _items)
        if (item == marked && !item->isHidden())
            return command;
    return nullptr;
}

void KeysPage::say(const QString& text) {
    _controls->_keysMessage->setText(text);
    _controls->_keysMessage->setAccessibleName(text);
}

// Adding a key by pressing it

void KeysPage::setRecording(bool isRecording) {
    _isRecording = isRecording;
    const Command* command = markedCommand();
    if (!isRecording || !command)
        return;
    leaveConflict();
    _controls->_keysAdd->setFocus();
    say(said("Press a key for “%@”. Esc goes back.", {titleOf(*command)}));
}

bool KeysPage::eventFilter(QObject* watched, QEvent* event) {
    if (watched != _controls->_keysAdd || !_isRecording)
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::ShortcutOverride: // no letter with Alt goes to another control meanwhile
        event->accept();
        return true;
    case QEvent::KeyRelease:
        return true;
    case QEvent::KeyPress:
        if (const auto* press = static_cast<QKeyEvent*>(event);
            !press->isAutoRepeat() && !platform::qtEvents::isModifierAlone(*press))
            record(*press);
        return true;
    case QEvent::FocusOut:
        setRecording(false);
        say({});
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void KeysPage::record(const QKeyEvent& event) {
    setRecording(false);
    const Command* command = markedCommand();
    const std::optional<KeyChord> key = pressedKey(event);
    if (!key || !command)
        say(localized("Lumaro does not know this key."));
    else
        offer(*key, *command);
}

void KeysPage::offer(KeyChord key, const Command& command) {
    const std::vector<KeyChord> keys = _bindings.keysOf(command);
    if (const KeyRefusal refusal = refusalOf(key); refusal == KeyRefusal::escape) {
        say(localized("Esc closes windows and ends Lumaro; that can’t be changed."));
    } else if (refusal == KeyRefusal::desktop) {
        say(said("%@ belongs to the desktop.", {readableKeyText(key)}));
    } else if (std::ranges::find(keys, key) != keys.end()) {
        say(said("%@ means “%@” already.", {readableKeyText(key), titleOf(command)}));
    } else if (keys.size() >= maximumKeys) {
        say(said("“%@” has as many keys as it can have; remove one first.", {titleOf(command)}));
    } else if (const Command* holder = _bindings.holderOf(key, command)) {
        _conflict = key;
        say(said("%@ means “%@” already.", {readableKeyText(key), titleOf(*holder)}));
        _controls->_keysTakeOver->show();
        _controls->_keysLeave->show();
        _controls->_keysTakeOver->setFocus();
    } else {
        give(key, command);
    }
}

void KeysPage::give(KeyChord key, const Command& command) {
    change([&](KeyBindings& keys) { keys.give(key, command); });
    say(said("%@ means “%@” now.", {readableKeyText(key), titleOf(command)}));
}

void KeysPage::leaveConflict() {
    _conflict.reset();
    say({});
    _controls->_keysTakeOver->hide();
    _controls->_keysLeave->hide();
}

// Changing

void KeysPage::removeKey() {
    const Command* command = markedCommand();
    const int row = _controls->_keysOfCommand->currentRow();
    if (!command || row < 0)
        return;
    const KeyChord key = _bindings.keysOf(*command)[static_cast<std::size_t>(row)];
    change([&](KeyBindings& keys) { keys.take(key, *command); });
}

void KeysPage::change(const std::function<void(KeyBindings&)>& change) {
    leaveConflict();
    KeyBindings changed = _bindings;
    change(changed);
    _before.push_back(std::exchange(_bindings, std::move(changed)));
    store();
}

void KeysPage::undo() {
    if (_before.empty())
        return;
    leaveConflict();
    _bindings = std::move(_before.back());
    _before.pop_back();
    store();
}

void KeysPage::store() {
    QWidget* focused = _widget->window()->focusWidget();
    _choose(_bindings.isAnyChanged() ? QVariant(_bindings.setting()) : QVariant(), kQVCommandKeys);
    // A button that has nothing more to do gives the keyboard on; not to the other end of the page.
    if (focused && !focused->isEnabled())
        _controls->_keysCommands->setFocus();
}
