// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/QVSubtitles.h"

#include "platform/base/PathNames.h"
#include "platform/base/RegularFile.h"
#include "settings/QVUserDefaults.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"
#include "subtitles/CueSearch.h"
#include "subtitles/text/CueText.h"
#include "subtitles/text/LineReader.h"
#include "subtitles/text/SubtitleText.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>
#include <utility>

namespace {

constexpr float sFrameRateList[] = {0.0F, 23.976F, 24.0F, 25.0F, 29.97F, 30.0F};
/// For a movie without a rate of its own.
constexpr float usualFrameRate = 25.0F;
constexpr std::uint32_t noIndex = 0x7FFFFFFF;
/// What is larger, or has more cues, is no text that somebody wrote, and would stop the player for seconds.
constexpr qsizetype largestFile = 256 * 1024 * 1024;
constexpr std::size_t mostCues = 2'000'000;

} // namespace

QVSubtitles::QVSubtitles(QString path, SubtitleOwner& owner, Type type, float timeScaleAdjustment)
    : _path(std::move(path))
    , _type(type)
    , _owner(&owner)
    , _fps(QVUserDefaults::standardUserDefaults().integerForKey(kQVSubtitlesDefaultFPS))
    , _timeScaleAdjustment(timeScaleAdjustment) {}

std::int32_t QVSubtitles::truncated(float value) {
    // The first value that does not fit; the largest that does is no float.
    constexpr float tooMuch = 2147483648.0F;
    if (std::isnan(value))
        return 0;
    if (value >= tooMuch)
        return std::numeric_limits<std::int32_t>::max();
    if (value <= -tooMuch)
        return std::numeric_limits<std::int32_t>::min();
    return static_cast<std::int32_t>(value);
}

QVSubtitles::~QVSubtitles() {
    stopWorker();
}

std::uint32_t QVSubtitles::defaultEncoding() {
    const QVariant stored = QVUserDefaults::standardUserDefaults().objectForKey(kQVSubtitlesDefaultEncoding);
    return static_cast<std::uint32_t>(stored.toLongLong());
}

std::unique_lock<std::mutex> QVSubtitles::lockWorker() {
    return _guards ? std::unique_lock(_guards->worker) : std::unique_lock<std::mutex>();
}

std::unique_lock<std::mutex> QVSubtitles::lockSubtitles() const {
    return _guards ? std::unique_lock(_guards->sub) : std::unique_lock<std::mutex>();
}

void QVSubtitles::preload() {
    if (_subtitles)
        return;
    _encoding = defaultEncoding();
    _decoder = platform::TextDecoder(_encoding);
    _fps = std::max(0, truncated(QVUserDefaults::standardUserDefaults().floatForKey(kQVSubtitlesDefaultFPS)));
    if (isThreaded() && !_guards)
        _guards = std::make_unique<Guards>();
    constexpr std::size_t usualCount = 100;
    try {
        _subtitles.emplace();
        _subtitles->subtitles.reserve(usualCount);
        _subtitles->ends.reserve(usualCount);
    } catch (const std::bad_alloc&) {
        _subtitles.reset();
        logAlways("ERROR: %@: Unable to allocate storage for subtitles. Memory full?", className());
        return;
    }
    _abort = false;
    _loading = isThreaded();
    if (isThreaded())
        _worker = std::thread([this] { _workerThread(); });
    else
        _preload();
}

void QVSubtitles::_workerThread() {
    const auto guard = lockWorker();
    try {
        _preload();
    } catch (const std::bad_alloc&) {
        logAlways("ERROR: %@: Unable to allocate storage for subtitles. Memory full?", className());
        finishLoading();
    }
    _loading = false;
}

void QVSubtitles::waitForLoading() {
    if (_worker.joinable())
        _worker.join();
}

void QVSubtitles::stopWorker() {
    _abort = true;
    // Waiting for its end, not for its lock alone: one that has not begun yet would begin on an emptied track.
    if (_worker.joinable())
        _worker.join();
    _abort = false;
}

void QVSubtitles::_preload() {
    std::optional<QByteArray> bytes = platform::readRegularFile(_path, largestFile);
    if (!bytes) {
        logAlways("ERROR: %@: Unable to open subtitles file \"%@\" for reading.", className(),
                  platform::lastPathComponent(_path));
        reset();
        return;
    }
    const bool cut = bytes->size() == largestFile;
    trace("%@: Begin parsing subtitles file \"%@\"%@.", className(), platform::lastPathComponent(_path),
          isThreaded() ? " threaded" : "");
    readAll(std::move(*bytes), _encoding);
    if (cut || _subtitles->subtitles.size() >= mostCues)
        logAlways("WARNING: %@: \"%@\" is too large, its end is left out.", className(),
                  platform::lastPathComponent(_path));
}

void QVSubtitles::readAll(QByteArray bytes, std::uint32_t encoding) {
    SubtitleText text = SubtitleText::fromBytes(std::move(bytes), encoding);
    _encoding = text.encoding;
    _decoder = platform::TextDecoder(text.decodeWith);
    const auto cues = std::make_shared<TextCues>();
    cues->bytes = std::move(text.bytes);
    const std::string_view view(cues->bytes.constData(), static_cast<std::size_t>(cues->bytes.size()));
    if (text.decodeWith == platform::textEncoding::utf8 && CueText::isValidUTF8(view))
        cues->validUTF8 = view;
    _subtitles->texts = cues;
    LineReader lines(view);
    do {
        if (std::shared_ptr<QVSubtitle> subtitle = readSubtitle(lines))
            appendSubtitle(std::move(subtitle));
    } while (!lines.isAtEnd() && !_abort && _subtitles->subtitles.size() < mostCues);
    cues->validUTF8 = {};
    if (!cues->bytesInUse)
        cues->bytes = QByteArray();
    finishLoading();
}

void QVSubtitles::finishLoading() {
    _previous.reset();
    _pendingText = PendingText();
    trace("%@: End parsing subtitles, %d entries loaded.", className(), count());
    reset();
}

std::shared_ptr<QVSubtitle> QVSubtitles::readSubtitle(LineReader&) {
    logAlways("ERROR: [QVSubtitles readSubtitle:] must be implemented by the subclasses!");
    return nullptr;
}

void QVSubtitles::appendPiece(std::string_view piece, PendingText& text) {
    const std::string_view all = _subtitles->texts->validUTF8;
    const bool follows = text.utf8.empty() ? text.copy.isEmpty() : text.utf8.data() + text.utf8.size() == piece.data();
    if (follows && CueText::endsBetweenCharacters(piece, all)) {
        text.utf8 =
            std::string_view(text.utf8.empty() ? piece.data() : text.utf8.data(), text.utf8.size() + piece.size());
        return;
    }
    if (!text.utf8.empty())
        appendBytes(std::exchange(text.utf8, {}), text.copy);
    appendBytes(piece, text.copy);
}

std::shared_ptr<QVSubtitle> QVSubtitles::makeSubtitle(const PendingText& text, std::int32_t start, std::int32_t end) {
    const std::shared_ptr<TextCues>& cues = _subtitles->texts;
    const std::string_view utf8 = CueText::trimmed(text.utf8);
    cues->bytesInUse |= !utf8.empty();
    QVSubtitle& subtitle = utf8.empty() ? cues->subtitles.emplace_back(CueText::trimmed(text.copy), start, end)
                                        : cues->subtitles.emplace_back(utf8, start, end);
    return {cues, &subtitle};
}

void QVSubtitles::appendSubtitle(std::shared_ptr<QVSubtitle> subtitle) {
    const auto guard = lockSubtitles();
    Cues& cues = *_subtitles;
    // Reading this cue may have changed the end of the one before it, and of no other.
    if (!cues.ends.empty())
        cues.ends.back() = cues.subtitles.back()->end();
    cues.ends.push_back(subtitle->end());
    cues.subtitles.push_back(std::move(subtitle));
}

void QVSubtitles::reset() {
    _resetAsked = true;
}

void QVSubtitles::placeCursor(std::size_t index) {
    _index = static_cast<std::uint32_t>(index);
    _prevEnd = CueSearch::endBefore(_subtitles->ends, index);
    _current = _subtitles->subtitles[index];
}

/// Carries out a reset that was asked for, and takes the first cue once there is one.
void QVSubtitles::followWorker() {
    if (_current && !_resetAsked)
        return;
    const auto guard = lockSubtitles();
    _resetAsked = false;
    if (_subtitles && !_subtitles->subtitles.empty())
        placeCursor(0);
}

void QVSubtitles::unload() {
    stopWorker();
    _index = noIndex;
    _prevEnd = 0;
    _current.reset();
    _previous.reset();
    _subtitles.reset();
}

std::shared_ptr<QVSubtitle> QVSubtitles::subtitleForTime(std::int32_t time) {
    followWorker();
    if (!_current)
        return nullptr;
    if (_current->end() < time) {
        const auto guard = lockSubtitles();
        placeCursor(CueSearch::forward(_subtitles->ends, _index, time));
    } else if (_prevEnd > time) {
        const auto guard = lockSubtitles();
        placeCursor(CueSearch::backward(_subtitles->ends, _index, time));
    }
    if (time < _current->start() && _index > 0 && _prevEnd == time) {
        // The last moment of a cue before a gap: a seek finds it as playing does, from both sides.
        const auto guard = lockSubtitles();
        placeCursor(_index - 1);
    }
    if (time < _current->start() || time > _current->end() || (onlyForced() && !_current->forced()))
        return nullptr;
    return _current;
}

std::shared_ptr<QVSubtitle> QVSubtitles::current() {
    followWorker();
    return _current;
}

std::size_t QVSubtitles::count() const {
    const auto guard = lockSubtitles();
    return _subtitles ? _subtitles->subtitles.size() : 0;
}

std::vector<std::shared_ptr<QVSubtitle>> QVSubtitles::cues() const {
    const auto guard = lockSubtitles();
    return _subtitles ? _subtitles->subtitles : std::vector<std::shared_ptr<QVSubtitle>>();
}

void QVSubtitles::setFrameRate(std::int32_t choice) {
    const auto worker = lockWorker();
    if (!isFrameBased() || choice == _fps || count() == 0)
        return;
    const float ratio = actualFrameRate(_fps) / actualFrameRate(choice);
    const auto guard = lockSubtitles();
    for (std::size_t index = 0; index < _subtitles->subtitles.size(); ++index) {
        QVSubtitle& subtitle = *_subtitles->subtitles[index];
        subtitle.setStart(truncated(static_cast<float>(subtitle.start()) * ratio));
        subtitle.setEnd(truncated(static_cast<float>(subtitle.end()) * ratio));
        _subtitles->ends[index] = subtitle.end();
    }
    _fps = choice;
    if (_current)
        placeCursor(_index);
}

void QVSubtitles::setEncoding(std::uint32_t encoding) {
    // Pictures have no texts, and waiting for their worker would hold up the player.
    if (isImageBased())
        return;
    const auto worker = lockWorker();
    if (encoding == platform::textEncoding::automatic)
        readAgain();
    else if (encoding != _encoding && count() > 0)
        decodeAgain(encoding);
}

void QVSubtitles::decodeAgain(std::uint32_t encoding) {
    platform::TextDecoder decoder(encoding);
    const auto guard = lockSubtitles();
    for (const std::shared_ptr<QVSubtitle>& subtitle : _subtitles->subtitles) {
        const auto bytes = platform::lossyData(subtitle->text(), _encoding);
        if (!bytes)
            continue;
        QString text = QLatin1String("");
        const std::string_view view(bytes->constData(), static_cast<std::size_t>(bytes->size()));
        subtitle->setText(decoder.append(view, text) ? text : QString());
    }
    _encoding = encoding;
}

/// The cues of the file itself take the place of those loaded; the cursor stays on its place. What was read in a wrong
/// encoding may have had no cue at all.
void QVSubtitles::readAgain() {
    if (isThreaded() || !isTextBased() || !_subtitles)
        return;
    Cues kept = std::move(*_subtitles);
    const std::uint32_t before = std::exchange(_encoding, platform::textEncoding::automatic);
    _subtitles.emplace();
    _preload();
    _resetAsked = false;
    if (_subtitles->subtitles.empty()) {
        // The file is gone: the texts stay as they were.
        _subtitles = std::move(kept);
        _encoding = before;
        return;
    }
    if (_current)
        placeCursor(std::min<std::size_t>(_index, _subtitles->subtitles.size() - 1));
}

QString QVSubtitles::title() const {
    return platform::lastPathComponent(path());
}

QString QVSubtitles::description() const {
    return QStringLiteral("<%1>: %2, count = %3").arg(QString::fromLatin1(className()), title()).arg(count());
}

std::int32_t QVSubtitles::ajustToMovieTimeScale(std::int32_t value) const {
    return truncated(static_cast<float>(value) * _timeScaleAdjustment);
}

float QVSubtitles::actualFrameRate(std::int32_t choice) const {
    if (choice >= 1 && choice < static_cast<std::int32_t>(std::size(sFrameRateList)))
        return sFrameRateList[choice];
    const float rate = _owner ? _owner->frameRate() : 0.0F;
    return std::isfinite(rate) && rate > 0 ? rate : usualFrameRate;
}
