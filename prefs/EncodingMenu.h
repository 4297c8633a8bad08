// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMenu>
#include <QString>
#include <QStringList>

#include <functional>

class QPushButton;

/// A pop-up of the recently used encodings' names, with a submenu of all. The button shows the chosen name. Only what
/// is on the screen: which names there are is decided by its owner. Main thread.
class EncodingMenu final : public QObject {
public:
    using Chosen = std::function<void(const QString& title)>;

    /// `onRecent` hears of an item of the pop-up that was chosen, already selected, `onAvailable` of one of the
    /// submenu.
    EncodingMenu(QPushButton& button, Chosen onRecent, Chosen onAvailable);

    /// Fills the pop-up, sorted, and the submenu, likewise.
    void fill(const QStringList& recent, const QStringList& available);

    bool hasItemWithTitle(const QString& title) const;
    /// Puts it at the place that it takes in the order of the names.
    void insertItem(const QString& title);
    void removeItemWithTitle(const QString& title);
    /// An unknown title is shown, but no item is selected.
    void selectItemWithTitle(const QString& title);
    QString titleOfSelectedItem() const;
    QStringList itemTitles() const;

    /// "More Encodings": its items are found by their texts. A part of a name that is typed while it is open leaves
    /// those that have it.
    QMenu& submenu() { return _submenu; }
    /// Turns the check mark of the submenu's item on or off, where there is one.
    void setChecked(const QString& title, bool checked);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void addRecent(const QString& title, QAction* before);
    void setFilter(const QString& text);
    QAction* itemWithTitle(const QMenu& menu, const QString& title) const;

    QPushButton& _button;
    Chosen _onRecent;
    Chosen _onAvailable;
    QMenu _menu;
    QMenu _submenu;
    QAction* _separator = nullptr;
    QAction* _filterItem = nullptr;
    QString _filter;
    QString _selected;
};
