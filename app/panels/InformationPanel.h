// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/MovieInformation.h"
#include "platform/base/RunLoop.h"

#include <QDialog>

#include <memory>
#include <vector>

class CurrentCommands;
class QGridLayout;
class QLabel;
class QScrollArea;

/// The panel that says how the movie plays, beside it: it is no modal one, and holds up nothing. While it is shown it
/// is renewed each second. Its texts can be selected; Ctrl+C and a button copy all of them, unless a part is selected.
/// Main thread.
class InformationPanel final : public QDialog {
public:
    /// All outlive it.
    InformationPanel(platform::RunLoop& loop, const MovieInformation& information, const CurrentCommands& commands);
    ~InformationPanel() override;

    /// Shows it above the window, or closes it.
    void toggleAbove(QWindow* window);
    /// What it says, as it is copied.
    QString text() const { return MovieInformation::textOf(_shown); }

private:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void renew();
    void show(const MovieInformation::Groups& groups);
    void layOut();
    void place(const QWindow& window);
    void copy() const;

    platform::RunLoop& _loop;
    const MovieInformation& _information;
    const CurrentCommands& _commands;
    MovieInformation::Groups _shown;
    QScrollArea* _area = nullptr;
    QGridLayout* _lines = nullptr;
    /// Of the lines, in their order.
    std::vector<QLabel*> _values;
    std::unique_ptr<platform::Timer> _renewal;
    /// What answers that come later look for.
    std::shared_ptr<InformationPanel*> _self = std::make_shared<InformationPanel*>(this);
};
