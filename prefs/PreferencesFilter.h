// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QRect>
#include <QString>

#include <vector>

class QLabel;
class QLineEdit;
class QTabWidget;
class QWidget;

/// A frame around what was found, that follows it when the page is laid out anew. Takes no part in anything else.
class FoundMark;

/// The field that finds a control of the preferences by its words: those of its label, its tip, its items, its group
/// and its page, in the user's language, in any order and by any part of them, whatever their case and accents. What
/// fits best is shown as one types: its page is opened, scrolled to it, and it is marked. Up and Down go to the others,
/// Return to the control itself; Escape empties the
/// field. Main thread.
class PreferencesFilter final : public QObject {
public:
    /// Puts the field beside the names of the pages; Ctrl+F goes to it. What is on the pages is read anew with each
    /// letter. The pages outlive it.
    explicit PreferencesFilter(QTabWidget& pages);
    ~PreferencesFilter() override;

    /// Forgets what was looked for.
    void clear();

private:
    struct Found {
        QPointer<QWidget> control;
        int depth; // 0 where its own words tell, more where those around it have to
    };
    bool eventFilter(QObject* watched, QEvent* event) override;
    void find();
    /// So many places on or back, around the end.
    void go(qsizetype by);
    void writeResult();

    QTabWidget& _pages;
    QLineEdit* _field;
    QLabel* _result; // "2 of 5", or that there is nothing
    std::vector<Found> _found;
    std::size_t _place = 0;
    QPointer<FoundMark> _mark;
};
