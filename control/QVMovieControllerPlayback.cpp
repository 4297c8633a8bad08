// SPDX-License-Identifier: GPL-3.0-or-later
// Speed, places in the movie, and stills of it.
#include "control/QVMovieController.h"

#include "context/FeedbackDisplay.h"
#include "control/ApplicationServices.h"
#include "control/CurrentCommands.h"
#include "control/MenuTitles.h"
#include "control/SpeedSteps.h"
#include "overlays/ClockText.h"
#include "platform/base/Localization.h"
#include "platform/desktop/Desktop.h"
#include "playback/Chapters.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "playback/StillSaving.h"

#include <algorithm>
#include <cmath>

using platform::localizedString;

namespace {

std::int32_t speedOf(const QVMovieView& view) {
    return static_cast<std::int32_t>(std::lround(view.speed() * 100));
}

} // namespace

void QVMovieController::changeSpeed(std::int32_t argument, Feedback feedback) {
    const std::int32_t speed = steppedSpeed(argument, speedOf(_with.view));
    _with.view.setSpeed(speed / 100.0);
    if (feedback == Feedback::yes)
        post("Speed: %@", speedText(speed));
}

bool QVMovieController::validateSpeed(platform::MenuItem& item) const {
    const std::int32_t speed = speedOf(_with.view);
    const bool isStep = item.action == QLatin1String(changeSpeedOperation);
    item.state = !isStep && item.tag == speed;
    return !isStep || steppedSpeed(item.tag, speed) != speed;
}

void QVMovieController::fillSpeedMenu(platform::Menu& menu) {
    menu.removeAllItems();
    for (const std::int32_t speed : offeredSpeeds) {
        platform::MenuItem& item = menu.addItem(speedText(speed), QString::fromLatin1(setSpeedOperation), speed);
        if (speed == 100)
            _with.commands.showKey(item, "original-speed");
    }
    menu.addSeparator();
    for (const char* name : {"faster", "slower", "twice-as-fast", "half-as-fast"}) {
        const Command& command = *commandWithName(name);
        _with.commands.showKey(menu.addItem(localizedString(QString::fromUtf8(command.title)),
                                            QString::fromLatin1(changeSpeedOperation), command.argument),
                               name);
    }
}

void QVMovieController::gotoChapter(std::int32_t position, Feedback) {
    const auto movie = _with.view.movie();
    if (!movie || position < 0 || position >= static_cast<std::int32_t>(movie->info().chapters.size()))
        return;
    const auto& chapters = movie->info().chapters;
    _with.view.setTime(chapters[static_cast<std::size_t>(position)].start);
    _with.feedback.postFeedback(Chapters::text(chapters, position));
}

void QVMovieController::stepChapter(std::int32_t direction, Feedback feedback) {
    const auto movie = _with.view.movie();
    if (!movie || movie->info().chapters.empty()) {
        post("No Chapters");
        return;
    }
    const auto found = Chapters::stepped(movie->info().chapters, movie->time(), movie->timeScale(), direction);
    if (found)
        gotoChapter(*found, feedback);
    else
        _with.desktop.beep();
}

bool QVMovieController::validateChapter(platform::MenuItem& item) const {
    const auto movie = _with.view.movie();
    const bool hasChapters = movie && !movie->info().chapters.empty();
    const bool isPlace = item.action == QLatin1String(gotoChapterOperation);
    item.state = isPlace && hasChapters && item.tag == Chapters::positionAt(movie->info().chapters, movie->time());
    return hasChapters;
}

void QVMovieController::fillChaptersMenu(platform::Menu& menu) {
    menu.removeAllItems();
    const auto movie = _with.view.movie();
    const QString operation = QString::fromLatin1(gotoChapterOperation);
    if (!movie || movie->info().chapters.empty()) {
        menu.addItem(localizedString(QStringLiteral("No Chapters")), operation, 0);
        return;
    }
    int position = 0;
    for (const platform::Chapter& chapter : movie->info().chapters) {
        const QString time = stringWithTimeIntervalInSeconds(chapter.start / movie->timeScale());
        const QString name = chapter.title.isEmpty() ? Chapters::text(movie->info().chapters, position)
                                                     : shortenedInTheMiddle(chapter.title);
        menu.addItem(time + QStringLiteral("   ") + name, operation, position++);
    }
}

/// The first press says where it begins, the second where it ends, the third ends it.
void QVMovieController::repeatSection(std::int32_t, Feedback) {
    const auto movie = _with.view.movie();
    if (!movie) {
        _with.desktop.beep();
        return;
    }
    const auto clock = [&](std::int32_t time) {
        return preciseClockText(static_cast<double>(time) / movie->timeScale(), 1);
    };
    if (_with.view.repeated()) {
        _with.view.repeat(std::nullopt);
        post("Repeat: Off");
    } else if (_sectionBegin && _sectionOf.lock() == movie) {
        const auto [from, until] = std::minmax({*_sectionBegin, movie->time()}); // a list: values, no references
        if (from == until) {
            _with.desktop.beep();
            return;
        }
        _with.view.repeat(platform::MoviePlayer::Section{from, until});
        _with.feedback.postFeedback(
            platform::localizedFormat(QStringLiteral("Repeat: %@ – %@"), {clock(from), clock(until)}));
        _sectionBegin.reset();
    } else {
        _sectionBegin = movie->time();
        _sectionOf = movie;
        post("Repeat from %@", clock(*_sectionBegin));
    }
}

bool QVMovieController::validateRepeating(platform::MenuItem& item) const {
    const auto movie = _with.view.movie();
    item.state = movie && _with.view.repeated();
    const bool isBegun = movie && _sectionBegin && _sectionOf.lock() == movie;
    item.title = localizedString(item.state ? QStringLiteral("Repeat Section")
                                 : isBegun  ? QStringLiteral("Repeat until Here")
                                            : QStringLiteral("Repeat from Here"));
    return movie != nullptr;
}

void QVMovieController::goToTime(std::int32_t, Feedback) {
    const auto movie = _with.view.movie();
    if (!movie) {
        _with.desktop.beep();
        return;
    }
    const double scale = movie->timeScale();
    const std::optional<double> seconds =
        _with.application.askForTime(movie->time() / scale, movie->duration() / scale);
    // Another movie may have begun meanwhile.
    if (!seconds || _with.view.movie() != movie)
        return;
    _with.view.setTime(static_cast<std::int32_t>(std::lround(*seconds * scale)));
    post("Time: %@", preciseClockText(*seconds, 1));
}

void QVMovieController::saveStill(std::int32_t, Feedback) {
    _with.stills.save();
}

bool QVMovieController::validateHasMovie(platform::MenuItem&) const {
    return _with.view.movie() != nullptr;
}
