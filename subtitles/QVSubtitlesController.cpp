// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/QVSubtitlesController.h"

#include "platform/base/Localization.h"
#include "platform/base/Log.h"
#include "platform/base/PathNames.h"
#include "platform/base/UserDefaults.h"
#include "settings/PreferredLanguages.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "subtitles/QVSubtitle.h"
#include "subtitles/SubtitleFileName.h"
#include "subtitles/SubtitleView.h"

#include <algorithm>
#include <optional>
#include <tuple>
#include <utility>

namespace {

constexpr const char* className = "QVSubtitlesController";

} // namespace

QVSubtitlesController::QVSubtitlesController(const Environment& environment, SubtitleScene& scene)
    : _environment(environment)
    , _scene(scene)
    , _subtitlesOn(environment.settings.boolForKey(kQVDisplaySubtitles)) {
    platform::NotificationCenter& center = environment.notifications;
    _onMovie = center.observe<QVPlaylistMovieChangedNotification>(
        [this](const auto& notification) { currentMovieChanged(notification); });
    _onTime = center.observe<QVMovieInterestingTimeNotification>(
        [this](const auto& notification) { movieInterestingTime(notification); });
    _onPreferences = center.observe<QVPreferencesChangedNotification>(
        [this](const auto& notification) { preferencesChanged(notification); });
    _onTracks = center.observe<QVMovieTracksChangedNotification>(
        [this](const auto& notification) { tracksChanged(notification); });
}

QVSubtitlesController::~QVSubtitlesController() {
    for (const auto& track : {_current, _forced})
        if (track)
            track->setLoadingObserver(nullptr);
}

// Selecting

std::shared_ptr<QVSubtitles> QVSubtitlesController::preferredSubtitles() const {
    const auto first = [this](auto fits) {
        const auto found = std::ranges::find_if(_subtitles, [&](const auto& track) { return fits(*track); });
        return found == _subtitles.end() ? nullptr : *found;
    };
    std::shared_ptr<QVSubtitles> preferred;
    if (!_savedPath.isNull()) {
        preferred = first([this](const QVSubtitles& track) {
            return track.path() == _savedPath && track.streamIndex() == _savedIndex;
        });
    }
    if (!preferred)
        preferred = trackOfWantedLanguage();
    if (!preferred && _preferredType != -1) {
        preferred = first([this](const QVSubtitles& track) {
            return track.type() == _preferredType && track.streamIndex() == _preferredIndex;
        });
    }
    return preferred || _subtitles.empty() ? preferred : _subtitles.front();
}

/// None where no track is known to be of a wanted language.
std::shared_ptr<QVSubtitles> QVSubtitlesController::trackOfWantedLanguage() const {
    const QStringList wanted = QStringList(_chosenLanguage) + PreferredLanguages::of(_environment.settings);
    std::shared_ptr<QVSubtitles> best;
    std::tuple<int, bool, bool> bestRank;
    for (const auto& track : _subtitles) {
        const std::optional<int> language = PreferredLanguages::rank(track->language(), wanted);
        if (!language)
            continue;
        const std::tuple rank(*language, !track->isTextBased(), track->isForced());
        if (!best || rank < bestRank) {
            best = track;
            bestRank = rank;
        }
    }
    return best;
}

void QVSubtitlesController::setSavedPath(const QString& path, std::uint32_t index) {
    _savedPath = path;
    _savedIndex = index;
}

void QVSubtitlesController::setCurrent(const std::shared_ptr<QVSubtitles>& track) {
    if (_current && _current != track) {
        _current->setLoadingObserver(nullptr);
        _current->setShown(false);
    }
    _current = track;
    const auto found = std::ranges::find(_subtitles, track);
    _index = track && found != _subtitles.end() ? static_cast<std::uint32_t>(found - _subtitles.begin()) : none;
    trace("%@: Switching to subtitles stream: \"%@\"", className, track ? track->title() : QStringLiteral("(null)"));
    if (track) {
        _preferredType = track->type();
        _preferredIndex = track->streamIndex();
        // A cue that a worker reads after it was looked for would not be seen while no picture is due: while the movie
        // stands.
        track->setLoadingObserver([this] { loadingWentOn(); });
        track->preload();
        track->setShown(_subtitlesOn);
        // Only now the one before goes: both may wait for one archive to be unpacked, which ends when nobody does.
        if (track->isImageBased())
            keepLoaded(track);
        adoptAppearance(*track);
        _setView(viewFor(*track));
    }
    followAudio();
    showCueOfNow();
    announce();
}

/// Images are large: those of one track at a time are kept.
void QVSubtitlesController::keepLoaded(const std::shared_ptr<QVSubtitles>& track) {
    if (track == _cached)
        return;
    if (_cached)
        _cached->unload();
    _cached = track;
    _cachedMovie = _movie;
}

SubtitleView* QVSubtitlesController::viewFor(const QVSubtitles& track) const {
    return track.isImageBased() ? _imageView.get() : _textView.get();
}

void QVSubtitlesController::createView(const QVSubtitles& track) {
    if (track.isImageBased())
        _imageView = _scene.createImageView();
    else
        _textView = _scene.createTextView();
    SubtitleView* const view = viewFor(track);
    if (view)
        view->orderFront();
    adoptAppearance(track);
    _setView(view);
}

/// An index says how its images come and go, in place of the view's style.
void QVSubtitlesController::adoptAppearance(const QVSubtitles& track) {
    const std::optional<ImageAppearance> appearance = track.appearance();
    if (!appearance || !_imageView)
        return;
    _imageView->setMaxAlpha(appearance->alpha);
    _imageView->setFadingInInterval(appearance->fadeIn);
    _imageView->setFadingOutInterval(appearance->fadeOut);
}

void QVSubtitlesController::_setView(SubtitleView* view) {
    if (view != _view) {
        if (_view) {
            _view->setSubtitle(nullptr);
            _view->hide();
        }
        _view = view;
    }
    if (_view)
        _view->currentSubtitlesChanged(QVSubtitlesChangedNotification{_current});
}

void QVSubtitlesController::showCueOfNow() {
    std::shared_ptr<QVSubtitle> cue;
    if (const auto track = shownTrack()) {
        const std::shared_ptr<SubtitleOwner> movie = _scene.shownMovie();
        cue = track->subtitleForTime(movie ? movie->time() : 0);
    }
    give(cue);
}

void QVSubtitlesController::loadingWentOn() {
    showCueOfNow();
    if (_current && !_current->isLoading())
        _environment.notifications.post(QVSubtitlesLoadedNotification{_current});
}

void QVSubtitlesController::give(const std::shared_ptr<QVSubtitle>& cue) {
    // A view is not made before its first cue: its fonts would hold up the movie's first picture.
    if (cue && !_view)
        createView(*shownTrack());
    if (_view)
        _view->setSubtitle(cue);
}

void QVSubtitlesController::setCurrenWithIndex(std::int32_t index) {
    if (index < 0 || static_cast<std::uint32_t>(index) >= count()) {
        _index = none;
        setDisplaySubtitles(false);
        return;
    }
    switchDisplay(true);
    if (static_cast<std::uint32_t>(index) != _index) {
        // A copy: whoever follows the selection may change the list.
        const auto track = _subtitles[static_cast<std::size_t>(index)];
        setCurrent(track);
        _chosenLanguage = track->language();
    }
}

bool QVSubtitlesController::addFile(const QString& path) {
    const std::shared_ptr<QVSubtitles> track = _movie ? _movie->addSubtitles(path) : nullptr;
    if (!track)
        return false;
    _subtitles = _movie->subtitles();
    switchDisplay(true);
    setCurrent(track);
    _chosenLanguage = track->language();
    return true;
}

void QVSubtitlesController::cycleSubtitles(int direction) {
    if (_subtitles.empty())
        return;
    std::uint32_t next = _index;
    if (direction == 1)
        next = _subtitlesOn ? _index + 1 : 0;
    else if (direction == -1)
        next = _subtitlesOn ? _index - 1 : count() - 1;
    setCurrenWithIndex(static_cast<std::int32_t>(next));
}

// Display

void QVSubtitlesController::setDisplaySubtitles(bool flag) {
    // What comes back on shows a track: the one that was switched off, or one that was never selected.
    if (switchDisplay(flag) && flag && _index == none)
        setCurrent(_current ? _current : preferredSubtitles());
}

/// Whether the display was switched.
bool QVSubtitlesController::switchDisplay(bool flag) {
    if (_subtitles.empty() || flag == _subtitlesOn)
        return false;
    trace("%@: Turning subtitles %s", className, flag ? "ON" : "OFF");
    _subtitlesOn = flag;
    if (_current)
        _current->setShown(flag);
    followAudio();
    if (flag) {
        // The movie went on meanwhile.
        showCueOfNow();
        if (_view)
            _view->show();
    } else if (_view && !_forced) {
        _view->hide();
    }
    _environment.settings.setBool(flag, kQVDisplaySubtitles);
    announce();
    return true;
}

void QVSubtitlesController::announce() {
    _environment.notifications.post(QVSubtitlesChangedNotification{_current});
}

QString QVSubtitlesController::currentInfoAsString() const {
    QString info;
    if (_subtitles.empty())
        info = platform::localizedString(QStringLiteral("None"));
    else if (_subtitlesOn && _current)
        info = platform::formatted(QStringLiteral("%@ (%d/%d)"),
                                   {_current->title(), QString::number(_index + 1), QString::number(count())});
    else
        info = platform::localizedString(QStringLiteral("Off"));
    return platform::localizedFormat(QStringLiteral("Subtitles: %@"), {info});
}

QString QVSubtitlesController::lossesAsString() const {
    const int losses =
        _current && _subtitlesOn ? static_cast<int>(std::min<std::size_t>(_current->losses(), 1'000'000)) : 0;
    if (losses == 0)
        return {};
    const QString lost = platform::localizedFormat(_current->isTextBased() ? QStringLiteral("SubtitleLinesLost")
                                                                           : QStringLiteral("SubtitlePicturesLost"),
                                                   {QString::number(losses)}, losses);
    return _current->mode() == ReadingMode::repairing
               ? lost
               : lost + u' ' + platform::localizedString(QStringLiteral("SubtitleRepairMayHelp"));
}

// Following

void QVSubtitlesController::currentMovieChanged(const QVPlaylistMovieChangedNotification& notification) {
    // The old movie stays until none of its tracks is in use.
    const auto old = std::exchange(_movie, _scene.ownerOf(notification.movie));
    if (_movie)
        _movie->followReadingMode();
    _subtitles = _movie ? _movie->subtitles() : std::vector<std::shared_ptr<QVSubtitles>>();
    setCurrent(_subtitlesOn ? preferredSubtitles() : nullptr);
    // What another movie's images have been read is kept, but no more is read.
    if (_cached && _cachedMovie != _movie && _cached->isLoading()) {
        _cached->unload();
        _cached.reset();
        _cachedMovie.reset();
    }
}

void QVSubtitlesController::movieInterestingTime(const QVMovieInterestingTimeNotification& notification) {
    const auto track = shownTrack();
    if (!track)
        return;
    if (const std::shared_ptr<SubtitleOwner> movie = _scene.ownerOf(notification.movie); movie && movie == _movie)
        give(track->subtitleForTime(movie->time()));
}

/// The tracks of the movie are read in the mode that the setting asks for now; the selection stays where it can.
void QVSubtitlesController::followReadingMode() {
    if (!_movie)
        return;
    _movie->followReadingMode();
    _subtitles = _movie->subtitles();
    const auto same = std::ranges::find_if(_subtitles, [this](const auto& track) {
        return _current && track->path() == _current->path() && track->streamIndex() == _current->streamIndex();
    });
    const bool isSwitchedOff = !_subtitlesOn && _index == none;
    if (same != _subtitles.end())
        setCurrent(std::shared_ptr(*same));
    else
        setCurrent(_subtitlesOn ? preferredSubtitles() : nullptr);
    if (isSwitchedOff)
        _index = none;
}

/// Some tracks of a movie turn up while it plays; those that were there stay what they are.
void QVSubtitlesController::tracksChanged(const QVMovieTracksChangedNotification& notification) {
    if (!_movie || _scene.ownerOf(notification.movie) != _movie)
        return;
    const bool wereNone = _subtitles.empty();
    _subtitles = _movie->subtitles();
    if (wereNone && !_subtitles.empty() && _subtitlesOn)
        setCurrent(preferredSubtitles());
    else
        followAudio();
}

/// Without subtitles, those are shown that belong to the language that is spoken.
void QVSubtitlesController::followAudio() {
    std::shared_ptr<QVSubtitles> wanted;
    const QString spoken = _movie && !_subtitlesOn ? _movie->audioLanguage() : QString();
    const auto found = std::ranges::find_if(_subtitles, [&](const auto& track) {
        return !spoken.isEmpty() && track->isForced() && PreferredLanguages::rank(track->language(), {spoken});
    });
    if (found != _subtitles.end())
        wanted = *found;
    const auto before = std::exchange(_forced, wanted);
    if (before == wanted)
        return;
    if (before && before != shownTrack()) {
        before->setLoadingObserver(nullptr);
        before->setShown(false);
    }
    if (wanted) {
        wanted->setLoadingObserver([this] { loadingWentOn(); });
        wanted->preload();
        wanted->setShown(true);
        _setView(viewFor(*wanted));
    }
    showCueOfNow();
}

/// What is wanted now comes before what was taken by hand; without a track of these languages the selection stays.
void QVSubtitlesController::followPreferredLanguages() {
    _chosenLanguage.clear();
    const auto track = trackOfWantedLanguage();
    // What is switched off is chosen when it comes back.
    if (track && track != _current)
        setCurrent(_subtitlesOn ? track : nullptr);
}

void QVSubtitlesController::preferencesChanged(const QVPreferencesChangedNotification& notification) {
    if (notification.key == kQVDisplaySubtitles) {
        const bool isOn = _environment.settings.boolForKey(kQVDisplaySubtitles);
        // Without tracks there is nothing to switch; it is how the next movie will be shown.
        if (_subtitles.empty())
            _subtitlesOn = isOn;
        else
            setDisplaySubtitles(isOn);
    } else if (notification.key == kQVSubtitlesRepair) {
        followReadingMode();
    } else if (notification.key == kQVPreferredLanguages) {
        followPreferredLanguages();
    } else if (notification.key == kQVSubtitlesDefaultEncoding && _current) {
        _current->setEncoding(QVSubtitles::defaultEncoding(_environment.settings));
        if (_subtitlesOn) {
            // The cue is the same object with another text: it is taken away, and shown anew.
            give(nullptr);
            showCueOfNow();
        }
    } else if (notification.key == kQVSubtitlesDefaultFPS && _current && _current->isFrameBased()) {
        _current->setFrameRate(_environment.settings.integerForKey(kQVSubtitlesDefaultFPS));
        if (_subtitlesOn)
            showCueOfNow();
    }
}
