// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPair>
#include <QString>
#include <QStringList>

#include <cstdint>

/// What the program was asked on its command line.
struct CommandLine {
    enum class Mode { play, inspect, help, version };
    Mode mode = Mode::play;
    bool append = false;
    bool software = false;
    /// Settings for this run, as they were given.
    QList<QPair<QString, QString>> settings;
    /// Of --inspect.
    QString imagesFolder;
    std::int32_t timeScale = 600;
    std::int32_t frameRateChoice = 0;
    std::int64_t encoding = 0;
    /// Absolute paths, and URLs as they were given.
    QStringList files;
    /// Not empty when the command line is wrong: what to tell the user.
    QString error;

    /// Arguments without the program's name; relative paths are taken from `folder`.
    static CommandLine parse(const QStringList& arguments, const QString& folder);
    static QString helpText();
};
