// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Takes the files of subtitles among those that are handed over. Main thread.
class SubtitleTaker {
public:
    virtual ~SubtitleTaker() = default;

    /// Whether a file, which need not be there, is called like one; a plain text may be anything.
    virtual bool isCalledSubtitles(const QString& path) const = 0;
    /// Whether a movie is shown that they can be added to.
    virtual bool hasMovie() const = 0;
    /// Adds them to it, and shows the first that can be read. Where their drive does not answer at once, that is done
    /// once it does, if the movie is still shown.
    virtual void add(const QStringList& paths) = 0;
    /// The same once the movie of this path or address is shown.
    virtual void holdFor(const QStringList& paths, const QString& movie) = 0;
};
