// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"

#include <QString>

#include <cstdint>

class QVSubtitlesController;

/// A subtitle track that a movie is to come back with. It is preferred until the tracks are known and one was selected,
/// which is later than the movie where subtitles are off. Main thread.
class HeldSubtitles {
public:
    /// The controller outlives it.
    HeldSubtitles(const Environment& environment, QVSubtitlesController& subtitles);

    /// The file of the track, and its place among the file's tracks; no path for none.
    void hold(const QString& path, std::uint32_t index);
    void drop() { hold(QString(), 0); }

private:
    QVSubtitlesController& _subtitles;
    platform::Subscription _onSelection;
};
