// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/QVSubtitles.h"

#include "platform/base/PathNames.h"
#include "platform/base/UserDefaults.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "subtitles/CueTiming.h"
#include "subtitles/SubtitleFileName.h"

#include <algorithm>
#include <new>
#include <utility>

QVSubtitles::QVSubtitles(const platform::UserDefaults& settings, QString path, SubtitleOwner& owner, Type type,
                         float timeScaleAdjustment, Loading loading)
    : _settings(settings)
    , _path(std::move(path))
    , _type(type)
    , _owner(owner)
    , _fps(settings.integerForKey(kQVSubtitlesDefaultFPS))
    , _timeScaleAdjustment(timeScaleAdjustment)
    , _subGuard(loading == Loading::onWorker ? std::make_unique<std::mutex>() : nullptr) {}

QVSubtitles::~QVSubtitles() = default;

std::uint32_t QVSubtitles::defaultEncoding(const platform::UserDefaults& settings) {
    return static_cast<std::uint32_t>(settings.objectForKey(kQVSubtitlesDefaultEncoding).toLongLong());
}

std::unique_lock<std::mutex> QVSubtitles::lockSubtitles() const {
    return _subGuard ? std::unique_lock(*_subGuard) : std::unique_lock<std::mutex>();
}

// Loading

void QVSubtitles::preload() {
    const ReadingMode mode = readingMode(_settings);
    if (_subtitles && mode != _mode)
        unload();
    if (_subtitles)
        return;
    _mode = mode;
    forgetLosses();
    _encoding = defaultEncoding(_settings);
    _fps = std::max(0, CueTiming::truncated(_settings.floatForKey(kQVSubtitlesDefaultFPS)));
    try {
        _subtitles.emplace();
    } catch (const std::bad_alloc&) {
        logMemoryFull();
        return;
    }
    _preload();
}

void QVSubtitles::logMemoryFull() const {
    logAlways("ERROR: %@: Unable to allocate storage for subtitles. Memory full?", className());
}

void QVSubtitles::appendSubtitle(std::shared_ptr<QVSubtitle> subtitle) {
    const auto guard = lockSubtitles();
    _subtitles->append(std::move(subtitle));
}

void QVSubtitles::setCues(CueList cues) {
    const auto guard = lockSubtitles();
    _subtitles = std::move(cues);
    _resetAsked = true;
}

void QVSubtitles::finishLoading() {
    trace("%@: End parsing subtitles, %d entries loaded.", className(), count());
    reset();
}

void QVSubtitles::unload() {
    _cursor.clear();
    _current.reset();
    _subtitles.reset();
}

CueList QVSubtitles::takeCues() {
    return std::exchange(*_subtitles, CueList());
}

void QVSubtitles::replaceCues(CueList cues) {
    _subtitles = std::move(cues);
    _resetAsked = false;
    if (!_current)
        return;
    if (_subtitles->count() > 0) {
        placeCursor(std::min(_cursor.index(), _subtitles->count() - 1));
    } else {
        _cursor.clear();
        _current.reset();
    }
}

std::size_t QVSubtitles::count() const {
    const auto guard = lockSubtitles();
    return _subtitles ? _subtitles->count() : 0;
}

std::vector<std::shared_ptr<QVSubtitle>> QVSubtitles::cues() const {
    const auto guard = lockSubtitles();
    return _subtitles ? _subtitles->subtitles() : std::vector<std::shared_ptr<QVSubtitle>>();
}

// Looking up

void QVSubtitles::reset() {
    _resetAsked = true;
}

void QVSubtitles::placeCursor(std::size_t index) {
    if (_subtitles->isInOrder())
        _cursor.place(_subtitles->ends(), index);
    else
        _cursor.placeInDisorder(index);
    _current = _subtitles->subtitles()[index];
}

/// Carries out a reset that was asked for, and takes the first cue once there is one.
void QVSubtitles::followLoading() {
    if (_current && !_resetAsked)
        return;
    const auto guard = lockSubtitles();
    resetCursor();
}

/// Within the guard.
void QVSubtitles::resetCursor() {
    _resetAsked = false;
    if (_subtitles && _subtitles->count() > 0) {
        placeCursor(0);
    } else {
        _cursor.clear();
        _current.reset();
    }
}

void QVSubtitles::moveCursor(std::int32_t time) {
    const auto guard = lockSubtitles();
    // A worker may have put others in the place of the cues since.
    if (_resetAsked)
        resetCursor();
    if (!_current)
        return;
    if (!_subtitles->isInOrder()) {
        placeCursor(_subtitles->indexFor(time));
        return;
    }
    // It may have been placed before the cues came into order.
    placeCursor(_cursor.index());
    const auto& subtitles = _subtitles->subtitles();
    _cursor.search(_subtitles->ends(), time, [&subtitles](std::size_t index) { return subtitles[index]->start(); });
    _current = subtitles[_cursor.index()];
}

void QVSubtitles::findEnds(EndsFound found) {
    const auto all = isLoading() ? std::vector<std::shared_ptr<QVSubtitle>>() : cues();
    if (all.empty()) {
        found(std::nullopt);
        return;
    }
    const auto lineOf = [this](const QVSubtitle& cue) {
        constexpr qsizetype maximumText = 4096;
        return platform::SubtitleLine{static_cast<double>(cue.start()) / _owner.timeScale(),
                                      cue.beginningOfText(maximumText)};
    };
    const auto [first, last] = std::ranges::minmax_element(all, {}, &QVSubtitle::start);
    found(platform::SubtitleEnds{lineOf(**first), lineOf(**last)});
}

std::int32_t QVSubtitles::shifted(std::int32_t movieTime) const {
    if (_shift.isNone())
        return movieTime;
    const double unitsPerMillisecond = _owner.timeScale() / 1000.0;
    return CueTiming::nearest(_shift.cueTime(movieTime / unitsPerMillisecond) * unitsPerMillisecond);
}

std::shared_ptr<QVSubtitle> QVSubtitles::subtitleForTime(std::int32_t movieTime) {
    const std::int32_t time = shifted(movieTime);
    followLoading();
    if (!_current)
        return nullptr;
    if (!_cursor.staysFor(time, _current->start(), _current->end()))
        moveCursor(time);
    if (!_current || time < _current->start() || time > _current->end() || (onlyForced() && !_current->forced()))
        return nullptr;
    return _current;
}

std::shared_ptr<QVSubtitle> QVSubtitles::current() {
    followLoading();
    return _current;
}

// Timing

void QVSubtitles::setFrameRate(std::int32_t choice) {
    if (!isFrameBased() || choice == _fps || count() == 0)
        return;
    const auto guard = lockSubtitles();
    _subtitles->scaleTimes(actualFrameRate(_fps) / actualFrameRate(choice));
    _fps = choice;
    if (_current && !_resetAsked)
        placeCursor(_cursor.index());
}

std::int32_t QVSubtitles::ajustToMovieTimeScale(std::int32_t value) const {
    return CueTiming::truncated(static_cast<float>(value) * _timeScaleAdjustment);
}

std::int32_t QVSubtitles::nearestMovieTime(double value) const {
    return CueTiming::nearest(value * static_cast<double>(_timeScaleAdjustment));
}

float QVSubtitles::actualFrameRate(std::int32_t choice) const {
    return CueTiming::frameRate(choice, _owner.frameRate());
}

// Naming

QString QVSubtitles::title() const {
    // As it is shown: what is no text has a mark in its place.
    return QString::fromUtf8(platform::bytesOfPath(platform::lastPathComponent(path())));
}

QString QVSubtitles::language() const {
    return SubtitleFileName::languageOf(platform::lastPathComponent(path()), _owner.fileName());
}

QString QVSubtitles::formatName() const {
    switch (_type) {
    case typeSubRip:
        return QStringLiteral("SubRip");
    case typeMicroDVD:
        return QStringLiteral("MicroDVD");
    case typeVobSub:
        return QStringLiteral("VobSub");
    case typeTMPlayer:
        return QStringLiteral("TMPlayer");
    default:
        return {};
    }
}

bool QVSubtitles::isForced() const {
    return SubtitleFileName::isForced(platform::lastPathComponent(path()), _owner.fileName());
}

QString QVSubtitles::description() const {
    return QStringLiteral("<%1>: %2, count = %3").arg(QString::fromLatin1(className()), title()).arg(count());
}
