// SPDX-License-Identifier: GPL-3.0-or-later
// What the commands of the subtitles menu do, and the menu itself; and how sound is brought in step.
#include "context/FeedbackDisplay.h"
#include "control/ApplicationServices.h"
#include "control/CurrentCommands.h"
#include "control/DelayText.h"
#include "control/QVMovieController.h"
#include "platform/base/Localization.h"
#include "platform/base/UserDefaults.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "settings/QVOverlayStyleDefaults.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "subtitles/QVSubtitlesController.h"
#include "subtitles/SecondSubtitles.h"

#include <algorithm>
#include <cmath>

using platform::MenuItem;

namespace {

/// The two fixed items of the subtitles menu: the one that turns subtitles off, and a separator. The tracks follow, and
/// what can be done with them.
constexpr int fixedSubtitlesItems = 2;

// Points of the style.
constexpr std::int32_t smallestText = 8;
constexpr std::int32_t largestText = 200;
/// Percent of the screen's height.
constexpr std::int32_t heightStep = 2;
constexpr std::int32_t greatestHeight = 60;

} // namespace

void QVMovieController::changeSubtitles(std::int32_t position, Feedback) {
    _with.subtitles.setCurrenWithIndex(position);
    sayLosses();
}

void QVMovieController::cycleSubtitles(std::int32_t direction, Feedback feedback) {
    _with.subtitles.cycleSubtitles(direction);
    if (feedback != Feedback::yes)
        return;
    _with.feedback.postFeedback(_with.subtitles.currentInfoAsString());
    sayLosses();
}

/// What was lost of the track that the user chose: now, or when a worker has read it.
void QVMovieController::sayLosses() {
    const std::shared_ptr<QVSubtitles> track = _with.subtitles.current();
    const bool isLoading = track && track->isLoading();
    _chosenSubtitles = isLoading ? track : nullptr;
    const QString losses = isLoading ? QString() : _with.subtitles.lossesAsString();
    if (!losses.isEmpty())
        _with.feedback.postFeedback(_with.subtitles.currentInfoAsString() + u'\n' + losses);
}

void QVMovieController::changeSecond(std::int32_t position, Feedback) {
    if (_with.secondSubtitles.select(position))
        _with.feedback.postFeedback(_with.secondSubtitles.currentInfoAsString());
    else
        post("SecondSubtitlesRefused");
}

void QVMovieController::cycleSecond(std::int32_t direction, Feedback) {
    _with.secondSubtitles.cycle(direction);
    _with.feedback.postFeedback(_with.secondSubtitles.currentInfoAsString());
}

bool QVMovieController::validateSecond(MenuItem& item) const {
    const auto tracks = _with.secondSubtitles.tracks();
    const auto& current = _with.secondSubtitles.current();
    if (item.tag < 0) {
        item.state = !tracks.empty() && !current;
        return !tracks.empty();
    }
    const auto position = static_cast<std::size_t>(item.tag);
    item.state = position < tracks.size() && tracks[position] == current;
    return position < tracks.size() && tracks[position] != _with.subtitles.shownTrack();
}

void QVMovieController::fillSecondMenu(platform::Menu& menu) {
    menu.removeAllItems();
    const auto tracks = _with.secondSubtitles.tracks();
    const QString none = tracks.empty() ? QStringLiteral("None") : QStringLiteral("Off");
    _with.commands.showKey(
        menu.addItem(platform::localizedString(none), QString::fromLatin1(changeSecondOperation), -1),
        "next-second-subtitles");
    if (!tracks.empty())
        menu.addSeparator();
    int position = 0;
    for (const auto& track : tracks)
        menu.addItem(track->title(), QString::fromLatin1(changeSecondOperation), position++);
}

void QVMovieController::toggleRepair(std::int32_t, Feedback feedback) {
    const bool isOn = !_environment.settings.boolForKey(kQVSubtitlesRepair);
    _environment.settings.setBool(isOn, kQVSubtitlesRepair);
    _environment.notifications.post(QVPreferencesChangedNotification{kQVSubtitlesRepair, {}});
    if (feedback == Feedback::yes)
        post(isOn ? "Repair: On" : "Repair: Off");
}

void QVMovieController::addSubtitles(std::int32_t, Feedback) {
    _with.application.addSubtitles();
}

void QVMovieController::shiftSubtitles(std::int32_t milliseconds, Feedback) {
    _with.feedback.postFeedback(milliseconds == 0 ? _sync.reset() : _sync.shiftBy(milliseconds));
}

void QVMovieController::alignSubtitles(std::int32_t line, Feedback) {
    _sync.lineIsNow(line < 0 ? SubtitleSync::Line::first : SubtitleSync::Line::last,
                    [this](const QString& said) { _with.feedback.postFeedback(said); });
}

/// In steps of a tenth, as the user's own style: the preferences show it, and take it back.
void QVMovieController::sizeSubtitles(std::int32_t direction, Feedback) {
    const auto style =
        QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(_environment.settings, kQVSubtitlesOverlayStyle);
    if (!style)
        return;
    auto accessor = *style;
    const std::int32_t size = accessor.values().textFontSize;
    const std::int32_t step = std::max(1, static_cast<std::int32_t>(std::lround(size / 10.0)));
    const std::int32_t changed = std::clamp(size + direction * step, smallestText, largestText);
    accessor.set(&OverlayStyle::textFontSize, changed);
    _environment.notifications.post(QVPreferencesChangedNotification{kQVSubtitlesOverlayStyle, {kTextFontSize}});
    post("Subtitle size: %d", QString::number(changed));
}

void QVMovieController::raiseSubtitles(std::int32_t direction, Feedback) {
    const std::int32_t height = _environment.settings.integerForKey(kQVSubtitlesHeight);
    const std::int32_t changed = std::clamp(height + direction * heightStep, 0, greatestHeight);
    _environment.settings.setInteger(changed, kQVSubtitlesHeight);
    _environment.notifications.post(QVPreferencesChangedNotification{kQVSubtitlesHeight, {}});
    post("Subtitle height: %d", QString::number(changed));
}

bool QVMovieController::validateSubtitles(MenuItem& item) const {
    const bool hasTracks = _with.subtitles.count() > 0;
    item.state = hasTracks && static_cast<std::uint32_t>(item.tag) == _with.subtitles.index();
    return hasTracks;
}

bool QVMovieController::validateRepair(MenuItem& item) const {
    item.state = _environment.settings.boolForKey(kQVSubtitlesRepair);
    return true;
}

bool QVMovieController::validateAddSubtitles(MenuItem&) const {
    return _listedMovie.lock() != nullptr;
}

bool QVMovieController::validateSync(MenuItem&) const {
    return _with.subtitles.current() != nullptr;
}

/// Tracks may have been added.
void QVMovieController::subtitlesChanged() {
    const std::shared_ptr<QVMovie> movie = _listedMovie.lock();
    if (movie && movie->subtitles().size() != _listedTracks)
        listSubtitles(movie);
}

void QVMovieController::listSubtitles(const std::shared_ptr<QVMovie>& movie) {
    _listedMovie = movie;
    _listedTracks = movie ? movie->subtitles().size() : 0;
    platform::Menu& menu = _with.subtitlesMenu;
    menu.removeAllItemsBut(fixedSubtitlesItems);
    if (menu.count() > 0)
        menu.itemAt(0).title =
            platform::localizedString(_listedTracks > 0 ? QStringLiteral("Off") : QStringLiteral("None"));
    if (menu.count() < fixedSubtitlesItems)
        menu.addSeparator();
    if (_listedTracks > 0) {
        int index = 0;
        for (const auto& track : movie->subtitles())
            menu.addItem(track->title(), QStringLiteral("changeSubtitles"), index++);
        menu.addSeparator();
    }
    for (const Command& command : commands()) {
        const bool isFixed = command.operation.perform == &QVMovieController::changeSubtitles;
        if (command.section != Section::subtitles || command.menu.title.empty() || isFixed)
            continue;
        const auto latin = [](std::string_view text) {
            return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
        };
        const QString title = platform::localizedString(latin(command.menu.title));
        if (command.menu.opens == MenuPlace::Opens::menu)
            menu.addSubmenu(title).setFiller([this](platform::Menu& opened) { fillSecondMenu(opened); });
        else
            _with.commands.showKey(menu.addItem(title, latin(command.operation.name), command.argument), command.name);
        if (command.menu.separator == Separator::after)
            menu.addSeparator();
    }
}

void QVMovieController::shiftSound(std::int32_t milliseconds, Feedback) {
    const std::shared_ptr<QVMovie> movie = _with.view.movie();
    if (!movie)
        return;
    const auto delay = static_cast<std::int32_t>(std::lround(movie->selection().audioDelay * 1000));
    movie->setAudioDelay(milliseconds == 0 ? 0 : delay + milliseconds);
    post("Sound delay: %@", delayText(static_cast<std::int32_t>(std::lround(movie->selection().audioDelay * 1000))));
}

bool QVMovieController::validateShiftSound(MenuItem&) const {
    return _with.view.movie() != nullptr;
}
