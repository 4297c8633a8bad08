// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "control/KeyBindings.h"
#include "platform/base/NotificationCenter.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QKeyEvent;
class QTreeWidgetItem;
class QWidget;

namespace Ui {
class Keys;
} // namespace Ui

/// The page of the preferences on which commands get other keys (resources/interface/Keys.ui): the commands by section,
/// those that a search leaves, with the keys of the marked one, which are added by pressing them. A key that means
/// another command already is given only when the user says so. Changes are stored and announced at once; the page
/// follows those that come from elsewhere. Main thread.
class KeysPage final : public QObject {
public:
    /// Stores what the user chose and announces it.
    using Choose = std::function<void(const QVariant& value, const QString& key)>;
    KeysPage(const Environment& environment, Choose choose);
    KeysPage(const KeysPage&) = delete;
    KeysPage& operator=(const KeysPage&) = delete;
    ~KeysPage() override;

    /// Belongs to whoever it is given to, and goes before the page's object or with it.
    QWidget* widget() const { return _widget; }

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void connectControls();
    void listCommands();
    void readSetting();
    void showKeys();
    void showKeysOfCommand();
    void search(const QString& words);
    const Command* markedCommand() const;

    void setRecording(bool isRecording);
    void record(const QKeyEvent& event);
    void offer(KeyChord key, const Command& command);
    void give(KeyChord key, const Command& command);
    void removeKey();
    void leaveConflict();
    /// Stores and announces what `change` made of the keys; what was before can be had again.
    void change(const std::function<void(KeyBindings&)>& change);
    void undo();
    void store();
    void say(const QString& text);

    Environment _environment;
    Choose _choose;
    std::unique_ptr<Ui::Keys> _controls;
    QWidget* _widget;
    KeyBindings _bindings;
    std::vector<KeyBindings> _before;
    std::vector<std::pair<QTreeWidgetItem*, const Command*>> _items;
    bool _isRecording = false;
    /// The key that another command has, until the user decides.
    std::optional<KeyChord> _conflict;
    platform::Subscription _changed;
};
