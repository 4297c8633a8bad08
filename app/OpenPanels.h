// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/FileIntake.h"
#include "context/Environment.h"
#include "platform/desktop/FileChoice.h"
#include "playlist/OpenPanel.h"

#include <QString>
#include <QStringList>

#include <cstdint>

class LaunchSteps;

/// Asks the user what to open, and hands the answer to the intake: the open panel, for files and for folders, and the
/// two Open URL panels. Alt held at the answer, or the panel's check box, adds to the list. Main thread.
class OpenPanels final : public OpenPanel {
public:
    /// All outlive the panels.
    struct Collaborators {
        platform::Desktop& desktop;
        FileIntake& files;
        LaunchSteps& steps;
    };
    /// `types` as FileIntake takes them.
    OpenPanels(const Environment& environment, const Collaborators& collaborators, QStringList types);

    void doOpen() override { open(platform::FileQuestion::Kind::files); }
    void doOpenFolder() { open(platform::FileQuestion::Kind::folders); }
    /// The panel for one address (0), or for several (1).
    void doOpenURL(std::int32_t type);

private:
    void open(platform::FileQuestion::Kind kind);
    platform::FileQuestion question(platform::FileQuestion::Kind kind) const;
    QString folder() const;
    QStringList atTheirWord(const QStringList& chosen) const;
    Adding adding(bool isAddingChosen) const;

    Environment _environment;
    Collaborators _with;
    QStringList _types;
    QString _folder; // where the user chose last in this run
};
