// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RememberedTracks.h"

#include "platform/base/PathNames.h"
#include "platform/base/PropertyValue.h"
#include "playback/QVMovie.h"

#include <algorithm>
#include <cmath>

using namespace platform;

namespace {

// Members of the record.
const QString addedKey = QStringLiteral("AddedSubtitles");
const QString soundKey = QStringLiteral("AudioDelay"); // milliseconds
const QString shiftsKey = QStringLiteral("SubtitleShifts");
const QString secondKey = QStringLiteral("SecondSubtitles"); // as nameOf
// Members of a track's shift.
const QString delayKey = QStringLiteral("Delay"); // milliseconds
const QString speedKey = QStringLiteral("Speed");

constexpr int maximumFiles = 100;

/// Its place among those of its file, and the file.
QString nameOf(const QVSubtitles& track) {
    return QString::number(track.streamIndex()) + u' ' + storedPath(track.path());
}

void insertUnlessEmpty(const QString& key, const QVariant& value, bool isEmpty, QVariantMap& record) {
    if (isEmpty)
        record.remove(key);
    else
        record.insert(key, value);
}

void restoreShift(QVSubtitles& track, const QVariantMap& record) {
    const QVariantMap shifts = propertyValue::toDictionary(record.value(shiftsKey));
    const QVariantMap stored = propertyValue::toDictionary(shifts.value(nameOf(track)));
    if (stored.isEmpty())
        return;
    if (const auto shift = CueShift::from(propertyValue::toInteger(stored.value(delayKey)),
                                          propertyValue::toDouble(stored.value(speedKey))))
        track.setShift(*shift);
}

} // namespace

namespace RememberedTracks {

void keep(const QVMovie& movie, const QStringList& awaited, QVariantMap& record) {
    QVariantList added;
    for (const QString& path : awaited + movie.addedSubtitles())
        added.append(storedPath(path));
    insertUnlessEmpty(addedKey, added, added.isEmpty(), record);
    QVariantMap shifts = awaited.isEmpty() ? QVariantMap() : propertyValue::toDictionary(record.value(shiftsKey));
    for (const auto& track : movie.subtitles()) {
        if (const CueShift& shift = track->shift(); !shift.isNone())
            shifts.insert(nameOf(*track), QVariantMap{{delayKey, shift.delay}, {speedKey, shift.speed}});
    }
    const auto delay = static_cast<int>(std::lround(movie.selection().audioDelay * 1000));
    insertUnlessEmpty(secondKey, movie.secondTrack(), movie.secondTrack().isEmpty(), record);
    insertUnlessEmpty(soundKey, delay, delay == 0, record);
    insertUnlessEmpty(shiftsKey, shifts, shifts.isEmpty(), record);
}

QStringList addedFiles(const QVariantMap& record) {
    const QVariantList added = record.value(addedKey).toList();
    QStringList paths;
    for (const QVariant& text : added.first(std::min<qsizetype>(added.size(), maximumFiles)))
        paths.append(pathFromStored(propertyValue::toString(text)));
    return paths;
}

void restore(QVMovie& movie, const QVariantMap& record) {
    if (const std::int32_t delay = propertyValue::toInteger(record.value(soundKey)); delay != 0)
        movie.setAudioDelay(delay);
    movie.setSecondTrack(propertyValue::toString(record.value(secondKey)));
    for (const auto& track : movie.subtitles())
        restoreShift(*track, record);
}

void restoreFiles(QVMovie& movie, const QStringList& readable, const QVariantMap& record) {
    for (const QString& path : readable)
        movie.addSubtitles(path);
    for (const auto& track : movie.subtitles())
        if (readable.contains(track->path()))
            restoreShift(*track, record);
}

} // namespace RememberedTracks
