// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace platform {

/// What a panel for files is to ask. The texts are the user's own language's.
struct FileQuestion {
    /// A new file is one to be written: the panel asks whether one that is there may be replaced.
    enum class Kind { files, folders, newFile };
    Kind kind = Kind::files;
    QString title;
    QString accept;
    QString cancel;
    /// The files offered at first, as extensions without dots, and what they are called; all files with none. The user
    /// may ask for all files instead.
    QStringList extensions;
    QString nameOfTypes;
    QString nameOfAllFiles;
    /// Where the panel begins; its own choice when empty.
    QString folder;
    /// The text of a check box in the panel, off at first; none where it is empty.
    QString option;
    /// The name that is offered for a new file.
    QString name = {};
};

/// What was chosen: paths, or the addresses of what is no local file. Empty when the panel was cancelled.
struct FileChoice {
    QStringList chosen;
    bool isOptionOn = false;
};

} // namespace platform
