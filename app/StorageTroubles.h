// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"
#include "platform/base/UserDefaults.h"

#include <memory>

namespace platform {
class Desktop;
} // namespace platform

class FeedbackDisplay;

/// Says, once in a run, that the settings or what is remembered of movies could not be read, and what became of the
/// file. Main thread.
class StorageTroubles {
public:
    /// All outlive it. `movies` is where that is remembered; it is asked once the first movie stands.
    StorageTroubles(const Environment& environment, platform::Desktop& desktop, FeedbackDisplay& feedback,
                    const platform::SettingsStorage& movies);

    /// Whether the launch shows a movie that was asked for, or left: then nothing stands in its way.
    enum class Launch : bool { withMovies, empty };
    /// Of the settings, in an alert where nothing else is to be seen. All else is said above the first movie.
    void sayAtLaunch(Launch launch);

private:
    void sayAboveMovie();

    Environment _environment;
    platform::Desktop& _desktop;
    FeedbackDisplay& _feedback;
    const platform::SettingsStorage& _movies;
    bool _wereSettingsSaid = false;
    std::unique_ptr<platform::Timer> _timer;
    platform::Subscription _onMovie;
};
