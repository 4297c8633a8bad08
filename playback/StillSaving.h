// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"

#include <QImage>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace platform {
class MoviePlayer;
template <class Value>
class Delivery;
} // namespace platform

class FeedbackDisplay;
class QVMovieView;

/// Saves pictures of the movie as PNG files, named after the movie and the time, in a folder of the user's; on a
/// thread, each whole or not at all, and never over another file. Says where they are. Main thread.
class StillSaving {
public:
    /// All outlive it. `folder` names where the pictures go; it is made where it is missing.
    StillSaving(const Environment& environment, QVMovieView& view, FeedbackDisplay& feedback,
                std::function<QString()> folder);
    StillSaving(const StillSaving&) = delete;
    StillSaving& operator=(const StillSaving&) = delete;
    ~StillSaving();

    /// The picture that is shown, in the movie's own size, without what is shown over it.
    void save();

private:
    using Saved = platform::Delivery<QString>;
    void write(const QImage& picture, const QString& name);
    void say(const char* format, const QString& path);

    Environment _environment;
    QVMovieView& _view;
    FeedbackDisplay& _feedback;
    std::function<QString()> _folder;
    std::vector<std::shared_ptr<Saved>> _underWay;
    /// Whether it still lives, for the player, which answers later.
    std::shared_ptr<char> _alive = std::make_shared<char>();
};

/// The file's name without its number and ending: what the movie is called, and the time as "0.12.34.560".
QString stillName(const QString& movie, double seconds);
/// Writes the picture; answers the file's path, or nothing where that failed. Blocks; any thread.
QString writeStill(const QImage& picture, const QString& folder, const QString& name);
