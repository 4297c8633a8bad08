// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MovieInformation.h"

#include "overlays/ClockText.h"
#include "platform/base/Localization.h"
#include "platform/movie/PlaybackFacts.h"
#include "playback/BitRateText.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "playback/StreamQuality.h"
#include "playback/TrackNames.h"
#include "subtitles/QVSubtitlesController.h"

#include <QLocale>

#include <cmath>
#include <utility>

using platform::localizedFormat;
using platform::localizedString;
using platform::MovieTrack;
using platform::PlaybackFacts;
using Group = MovieInformation::Group;

namespace {

void add(const char* label, const QString& value, Group& group) {
    if (!value.isEmpty())
        group.lines.push_back({localizedString(QString::fromLatin1(label)), value});
}

Group groupOf(const char* title) {
    return {localizedString(QString::fromLatin1(title)), {}};
}

QString count(std::int64_t value) {
    return QLocale().toString(static_cast<qlonglong>(value));
}

QString joined(QStringList parts) {
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QString sizeText(const QSize& size) {
    return size.isEmpty() ? QString() : QStringLiteral("%1 × %2").arg(size.width()).arg(size.height());
}

QString pictureSize(const PlaybackFacts& facts) {
    const QString stored = sizeText(facts.storedSize), displayed = sizeText(facts.displayedSize);
    return displayed.isEmpty() || displayed == stored
               ? stored
               : localizedFormat(QStringLiteral("%@, displayed as %@"), {stored, displayed});
}

QString frameRate(const PlaybackFacts& facts) {
    if (facts.frameRate <= 0)
        return {};
    const QString told = shortNumber(facts.frameRate, 3);
    // Measured, it wavers.
    const bool isAsTold = std::abs(facts.measuredFrameRate - facts.frameRate) < facts.frameRate / 50;
    return facts.measuredFrameRate <= 0 || isAsTold ? localizedFormat(QStringLiteral("%@ a second"), {told})
                                                    : localizedFormat(QStringLiteral("%@ a second, now %@"),
                                                                      {told, shortNumber(facts.measuredFrameRate, 1)});
}

QString dynamicRange(const QVMovie& movie, const PlaybackFacts& facts) {
    const double peak = movie.info().dynamicRange.peak;
    const QString light = peak > 0 ? QLocale().toString(std::llround(peak)) + QStringLiteral(" cd/m²") : QString();
    if (facts.transfer == QStringLiteral("pq"))
        return joined({QStringLiteral("HDR (PQ)"), light});
    if (facts.transfer == QStringLiteral("hlg"))
        return joined({QStringLiteral("HDR (HLG)"), light});
    return facts.transfer.isEmpty() ? QString() : localizedString(QStringLiteral("Standard"));
}

Group fileGroup(const QVMovie& movie, const PlaybackFacts& facts) {
    Group group = groupOf("File");
    add("Name", movie.displayName(), group);
    add("Container", facts.container, group);
    if (movie.durationInSeconds() > 0)
        add("Duration", stringWithTimeIntervalInSeconds(movie.durationInSeconds()), group);
    if (movie.info().fileSize >= 0)
        add("File size", QLocale().formattedDataSize(movie.info().fileSize), group);
    add("Bit rate", bitRateText(movie.info().bitRate), group);
    return group;
}

Group pictureGroup(const QVMovie& movie, const PlaybackFacts& facts) {
    Group group = groupOf("Picture");
    if (!movie.info().hasVideo)
        return group;
    add("Codec", facts.videoCodec, group);
    // What is not decoded yet is decoded by nothing.
    if (!facts.storedSize.isEmpty())
        add("Decoder",
            facts.hardwareDecoder.isEmpty() ? localizedString(QStringLiteral("Software"))
                                            : localizedFormat(QStringLiteral("Hardware (%@)"), {facts.hardwareDecoder}),
            group);
    add("Size", pictureSize(facts), group);
    add("Frame rate", frameRate(facts), group);
    add("Dynamic range", dynamicRange(movie, facts), group);
    add("Color", joined({facts.pixelFormat, facts.primaries}), group);
    add("Bit rate", bitRateText(facts.videoBitRate), group);
    return group;
}

Group soundGroup(const QVMovie& movie, const PlaybackFacts& facts) {
    Group group = groupOf("Sound");
    if (!movie.info().hasAudio)
        return group;
    add("Codec", facts.audioCodec, group);
    add("Channels", facts.channels, group);
    if (facts.sampleRate > 0)
        add("Sample rate", shortNumber(facts.sampleRate / 1000.0, 3) + QStringLiteral(" kHz"), group);
    add("Bit rate", bitRateText(facts.audioBitRate), group);
    add("Output", facts.audioOutput, group);
    return group;
}

Group tracksGroup(const QVMovie& movie, const QString& subtitles) {
    Group group = groupOf("Tracks");
    if (const MovieTrack* played = StreamQuality::find(movie.qualities(), movie.quality()))
        add("Quality", StreamQuality::nameOf(*played), group);
    for (const MovieTrack& track : StreamQuality::withSoundOf(movie.tracks(), movie.quality())) {
        const bool isPlayed = track.kind == MovieTrack::Kind::audio && track.id == movie.audioTrack();
        const QString name = TrackNames::nameOf(track);
        if (track.kind == MovieTrack::Kind::audio)
            add("Sound", isPlayed ? localizedFormat(QStringLiteral("%@ (playing)"), {name}) : name, group);
        else if (track.kind == MovieTrack::Kind::subtitles && !track.isExternal)
            add("Subtitles", joined({name, track.codec}), group);
    }
    add("Subtitles shown", subtitles, group);
    return group;
}

Group framesGroup(const QVMovie& movie, const PlaybackFacts& facts) {
    Group group = groupOf("Frames");
    if (!movie.info().hasVideo)
        return group;
    add("Shown", count(facts.framesShown), group);
    add("Late", count(facts.framesLate), group);
    add("Left out", count(facts.framesLeftOut), group);
    return group;
}

QString seconds(double value) {
    return localizedFormat(QStringLiteral("%@ s"), {QLocale().toString(value, 'f', 1)});
}

Group bufferGroup(const PlaybackFacts& facts) {
    Group group = groupOf("Buffer");
    if (facts.behindLive)
        add("Behind Live", seconds(*facts.behindLive), group);
    add("Ready", seconds(facts.bufferSeconds), group);
    if (facts.bufferSpeed > 0)
        add("Filling", bitRateText(facts.bufferSpeed * 8), group);
    return group;
}

} // namespace

void MovieInformation::ask(std::function<void(const Groups&)> completion) const {
    const std::shared_ptr<QVMovie> movie = _view.movie();
    if (!movie) {
        completion({});
        return;
    }
    const auto track = _subtitles.isSubtitlesOn() ? _subtitles.current() : nullptr;
    _view.facts([movie = std::weak_ptr(movie), title = track ? track->title() : QString(),
                 completion = std::move(completion)](const PlaybackFacts& facts) {
        const std::shared_ptr<QVMovie> shown = movie.lock();
        completion(shown ? groupsOf(*shown, title, facts) : Groups());
    });
}

MovieInformation::Groups MovieInformation::groupsOf(const QVMovie& movie, const QString& subtitles,
                                                    const PlaybackFacts& facts) {
    Groups groups{fileGroup(movie, facts),       pictureGroup(movie, facts), soundGroup(movie, facts),
                  tracksGroup(movie, subtitles), framesGroup(movie, facts),  bufferGroup(facts)};
    std::erase_if(groups, [](const Group& group) { return group.lines.empty(); });
    return groups;
}

QString MovieInformation::textOf(const Groups& groups) {
    QStringList blocks;
    for (const Group& group : groups) {
        QStringList lines{group.title};
        for (const Line& line : group.lines)
            lines << line.label + QStringLiteral(": ") + line.value;
        blocks << lines.join(u'\n');
    }
    return blocks.isEmpty() ? QString() : blocks.join(QStringLiteral("\n\n")) + u'\n';
}
