// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StorageTroubles.h"

#include "context/FeedbackDisplay.h"
#include "context/Notifications.h"
#include "platform/base/Localization.h"
#include "platform/desktop/Desktop.h"

#include <QStringList>

namespace {

using platform::localizedString;
using Kind = platform::StorageTrouble::Kind;

/// What else the beginning of a movie has to say comes first. Seconds.
constexpr double delay = 3;

QString messageOfSettings(const platform::StorageTrouble& trouble) {
    return trouble.kind == Kind::damaged ? localizedString(QStringLiteral("SettingsDamagedMessage"))
                                         : localizedString(QStringLiteral("SettingsUnreadableMessage"));
}

QString detailsOfSettings(const platform::StorageTrouble& trouble) {
    return trouble.kind == Kind::damaged
               ? platform::localizedFormat(QStringLiteral("SettingsDamagedDetails"), {trouble.aside})
               : platform::localizedFormat(QStringLiteral("SettingsUnreadableDetails"), {trouble.path});
}

QString messageOfMovies(const platform::StorageTrouble& trouble) {
    switch (trouble.kind) {
    case Kind::damaged:
        return localizedString(QStringLiteral("PlacesDamagedMessage"));
    case Kind::later:
        return localizedString(QStringLiteral("PlacesOfLaterVersionMessage"));
    case Kind::unreadable:
        break;
    }
    return localizedString(QStringLiteral("PlacesUnreadableMessage"));
}

} // namespace

StorageTroubles::StorageTroubles(const Environment& environment, platform::Desktop& desktop, FeedbackDisplay& feedback,
                                 const platform::SettingsStorage& movies)
    : _environment(environment)
    , _desktop(desktop)
    , _feedback(feedback)
    , _movies(movies) {
    _onMovie = environment.notifications.observe<QVPlaylistMovieChangedNotification>([this](const auto& notification) {
        if (notification.movie && !_timer)
            _timer = _environment.loop.schedule(delay, false, [this] { sayAboveMovie(); });
    });
}

void StorageTroubles::sayAtLaunch(Launch launch) {
    const auto trouble = _environment.settings.trouble();
    if (!trouble || launch == Launch::withMovies)
        return;
    _wereSettingsSaid = true;
    _desktop.runAlert({messageOfSettings(*trouble), detailsOfSettings(*trouble), localizedString(QStringLiteral("OK")),
                       QString(), QString()});
}

void StorageTroubles::sayAboveMovie() {
    QStringList lines;
    if (const auto trouble = _environment.settings.trouble(); trouble && !_wereSettingsSaid)
        lines.append(messageOfSettings(*trouble));
    if (const auto trouble = _movies.trouble())
        lines.append(messageOfMovies(*trouble));
    if (!lines.isEmpty())
        _feedback.postFeedback(lines.join(u'\n'));
}
