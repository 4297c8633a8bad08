// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/EmbeddedSubtitles.h"

#include "playback/TrackNames.h"

#include <algorithm>
#include <cmath>
#include <limits>

using platform::MovieTrack;
using platform::TrackSelection;

namespace {

/// That by which the track is remembered.
QString pathOf(const QUrl& movie) {
    return movie.isLocalFile() ? movie.toLocalFile() : movie.toString(QUrl::FullyEncoded);
}

std::int32_t inUnits(double seconds, std::int32_t timeScale) {
    constexpr double largest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(std::round(seconds * timeScale), 0.0, largest));
}

void adopt(const CueShift& shift, TrackSelection& selection) {
    selection.subtitleDelay = shift.delay / 1000.0;
    selection.subtitleSpeed = shift.speed;
}

} // namespace

EmbeddedSubtitles::EmbeddedSubtitles(const platform::UserDefaults& settings, platform::MovieToolkit& toolkit,
                                     platform::Movie& movie, SubtitleOwner& owner, const MovieTrack& track)
    : QVSubtitles(settings, pathOf(movie.url()), owner, typeInMovie, 1.0F, Loading::atOnce)
    , _toolkit(toolkit)
    , _movie(movie)
    , _track(track) {}

void EmbeddedSubtitles::setShown(bool isShown) {
    TrackSelection selection = _movie.selection();
    // Another one may have been selected meanwhile.
    if (!isShown && (!_isShown || selection.subtitles != _track.id))
        return;
    _isShown = isShown;
    selection.subtitles = isShown ? _track.id : 0;
    const bool isText = _track.content == MovieTrack::Content::text;
    selection.drawn = isText ? TrackSelection::Drawn::asText : TrackSelection::Drawn::inPicture;
    adopt(shift(), selection);
    _movie.select(selection);
}

void EmbeddedSubtitles::setShift(const CueShift& shift) {
    QVSubtitles::setShift(shift);
    _cue = nullptr;
    TrackSelection selection = _movie.selection();
    adopt(shift, selection);
    if (_isShown)
        _movie.select(selection);
}

void EmbeddedSubtitles::textChanged() {
    if (_isShown && _observer)
        _observer();
}

void EmbeddedSubtitles::setSecond(bool isSecond, std::function<void()> changed) {
    TrackSelection selection = _movie.selection();
    _cue = nullptr;
    _secondChanged = std::move(changed);
    if (isSecond) {
        selection.secondSubtitles = _track.id;
        const bool isAlone = selection.subtitles == 0 && selection.subtitleFile.isEmpty();
        if (isAlone)
            adopt(shift(), selection);
    } else if (selection.secondSubtitles == _track.id) {
        selection.secondSubtitles = 0;
    }
    _movie.select(selection);
}

void EmbeddedSubtitles::secondTextChanged() {
    if (_secondChanged)
        _secondChanged();
}

std::shared_ptr<QVSubtitle> EmbeddedSubtitles::secondCueForTime(std::int32_t) {
    if (!_secondChanged)
        return nullptr;
    if (const platform::SubtitleText& text = _movie.secondSubtitleText(); !_cue || text != _text) {
        _text = text;
        _cue = std::make_shared<QVSubtitle>(text.text, inUnits(text.start, _movie.timeScale()),
                                            inUnits(text.end, _movie.timeScale()));
    }
    return _text.text.isEmpty() ? nullptr : _cue;
}

std::shared_ptr<QVSubtitle> EmbeddedSubtitles::subtitleForTime(std::int32_t time) {
    if (!_isShown)
        return nullptr;
    if (const platform::SubtitleText& text = _movie.subtitleText(); !_cue || text != _text) {
        const auto inMovie = [this](double seconds) {
            return inUnits(shift().movieTime(seconds * 1000) / 1000, _movie.timeScale());
        };
        _text = text;
        _cue = std::make_shared<QVSubtitle>(text.text, inMovie(text.start), inMovie(text.end));
    }
    // After a jump the text of the place before is still there for a moment.
    const bool isDue = !_text.text.isEmpty() && time >= _cue->start() && time <= _cue->end();
    return isDue ? _cue : nullptr;
}

void EmbeddedSubtitles::findEnds(EndsFound found) {
    if (_ends) {
        found(_ends);
        return;
    }
    _search = _toolkit.subtitleEndsAsync(
        _movie.url(), _track.id, [this, found = std::move(found)](const std::optional<platform::SubtitleEnds>& ends) {
            _ends = ends;
            found(ends);
        });
}

QString EmbeddedSubtitles::title() const {
    return TrackNames::nameOf(_track);
}

QString EmbeddedSubtitles::language() const {
    return TrackNames::languageOf(_track);
}
