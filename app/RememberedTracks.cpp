// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RememberedTracks.h"

#include "platform/base/PropertyValue.h"
#include "playback/QVMovie.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

using namespace platform;

namespace {

// Members of the record.
const QString addedKey = QStringLiteral("AddedSubtitles");
const QString soundKey = QStringLiteral("AudioDelay"); // milliseconds
const QString shiftsKey = QStringLiteral("SubtitleShifts");
// Members of a track's shift.
const QString delayKey = QStringLiteral("Delay"); // milliseconds
const QString speedKey = QStringLiteral("Speed");

constexpr int maximumFiles = 100;

/// Its place among those of its file, and the file.
QString nameOf(const QVSubtitles& track) {
    return QString::number(track.streamIndex()) + u' ' + track.path();
}

void insertUnlessEmpty(const QString& key, const QVariant& value, bool isEmpty, QVariantMap& record) {
    if (isEmpty)
        record.remove(key);
    else
        record.insert(key, value);
}

} // namespace

namespace RememberedTracks {

void keep(const QVMovie& movie, QVariantMap& record) {
    QVariantList added;
    for (const QString& path : movie.addedSubtitles())
        added.append(path);
    insertUnlessEmpty(addedKey, added, added.isEmpty(), record);
    QVariantMap shifts;
    for (const auto& track : movie.subtitles()) {
        if (const CueShift& shift = track->shift(); !shift.isNone())
            shifts.insert(nameOf(*track), QVariantMap{{delayKey, shift.delay}, {speedKey, shift.speed}});
    }
    const auto delay = static_cast<int>(std::lround(movie.selection().audioDelay * 1000));
    insertUnlessEmpty(soundKey, delay, delay == 0, record);
    insertUnlessEmpty(shiftsKey, shifts, shifts.isEmpty(), record);
}

void restore(QVMovie& movie, const QVariantMap& record) {
    const QVariantList added = record.value(addedKey).toList();
    for (const QVariant& path : added.first(std::min<qsizetype>(added.size(), maximumFiles))) {
        if (const QString text = propertyValue::toString(path); QFileInfo(text).isFile())
            movie.addSubtitles(text);
    }
    if (const std::int32_t delay = propertyValue::toInteger(record.value(soundKey)); delay != 0)
        movie.setAudioDelay(delay);
    const QVariantMap shifts = propertyValue::toDictionary(record.value(shiftsKey));
    for (const auto& track : movie.subtitles()) {
        const QVariantMap stored = propertyValue::toDictionary(shifts.value(nameOf(*track)));
        if (stored.isEmpty())
            continue;
        if (const auto shift = CueShift::from(propertyValue::toInteger(stored.value(delayKey)),
                                              propertyValue::toDouble(stored.value(speedKey))))
            track->setShift(*shift);
    }
}

} // namespace RememberedTracks
