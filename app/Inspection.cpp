// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Inspection.h"

#include "app/CueImages.h"
#include "app/OpeningFiles.h"
#include "context/Environment.h"
#include "platform/base/NumberText.h"
#include "platform/desktop/UserActivity.h"
#include "platform/movie/MovieToolkit.h"
#include "playback/QVMovie.h"
#include "playback/SubtitleDiscovery.h"
#include "subtitles/formats/SubtitleFormats.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

/// Stands in for a movie: no pictures, and the time scale asked for.
class NoMovie final : public SubtitleOwner {
public:
    explicit NoMovie(std::int32_t timeScale)
        : _timeScale(timeScale) {}
    std::int32_t timeScale() const override { return _timeScale; }
    float frameRate() override { return 0; }
    std::int32_t time() const override { return 0; }

private:
    std::int32_t _timeScale;
};

/// Nobody watches what is only looked into.
class NoUser final : public platform::UserActivity {
    void setUserActive(bool) override {}
};

QJsonValue typeName(const QVSubtitles& track) {
    switch (track.type()) {
    case QVSubtitles::typeSubRip:
        return QStringLiteral("SubRip");
    case QVSubtitles::typeMicroDVD:
        return QStringLiteral("MicroDVD");
    case QVSubtitles::typeVobSub:
        return QStringLiteral("VobSub");
    case QVSubtitles::typeTMPlayer:
        return QStringLiteral("TMPlayer");
    default:
        return {};
    }
}

QJsonObject describeTrack(const QVSubtitles& track, std::int32_t timeScale) {
    // The rate as it is written, not as it is nearest to in single precision.
    const float rate = track.actualFrameRate(track.frameRateChoice());
    return {{QStringLiteral("type"), typeName(track)},
            {QStringLiteral("title"), track.title()},
            {QStringLiteral("streamIndex"), static_cast<qint64>(track.streamIndex())},
            {QStringLiteral("timeScale"), timeScale},
            {QStringLiteral("frameRate"), platform::shortestText(rate).toDouble()}};
}

QJsonArray describeTracks(const QVMovie& movie, const platform::UserDefaults& settings) {
    QJsonArray tracks;
    for (const std::shared_ptr<QVSubtitles>& track : movie.subtitles()) {
        QJsonObject object = describeTrack(*track, movie.timeScale());
        object.insert(QStringLiteral("path"), track->path());
        // It is not loaded: this is what it would be read with.
        object.insert(QStringLiteral("encoding"), static_cast<qint64>(QVSubtitles::defaultEncoding(settings)));
        tracks.append(object);
    }
    return tracks;
}

/// What a text cue says, or where a picture stands and what file holds it.
void describeContent(const QVSubtitle& cue, const QString& image, QJsonObject& object) {
    if (!cue.image()) {
        object.insert(QStringLiteral("text"), cue.text());
        return;
    }
    const platform::Rect rect = cue.rect();
    object.insert(QStringLiteral("rect"), QJsonArray{rect.x(), rect.y(), rect.width(), rect.height()});
    object.insert(QStringLiteral("forced"), cue.forced());
    if (!image.isEmpty())
        object.insert(QStringLiteral("image"), image);
}

QJsonArray describeCues(const QVSubtitles& track, std::int32_t timeScale, CueImages& images) {
    const auto milliseconds = [timeScale](std::int32_t time) { return qint64{time} * 1000 / timeScale; };
    QJsonArray cues;
    std::size_t number = 0;
    for (const std::shared_ptr<QVSubtitle>& cue : track.cues()) {
        QJsonObject object{{QStringLiteral("start"), cue->start()},
                           {QStringLiteral("end"), cue->end()},
                           {QStringLiteral("startMs"), milliseconds(cue->start())},
                           {QStringLiteral("endMs"), milliseconds(cue->end())}};
        describeContent(*cue, images.write(track, ++number, *cue), object);
        cues.append(object);
    }
    return cues;
}

/// The tracks of a subtitle file, loaded; none for other files.
QJsonArray describeSubtitleFile(const QString& path, SubtitleRegistry& readers, SubtitleOwner& owner,
                                CueImages& images) {
    QJsonArray tracks;
    for (const std::shared_ptr<QVSubtitles>& track : readers.subtitlesWithFilePath(path, owner)) {
        track->preload();
        track->waitForLoading();
        QJsonObject object = describeTrack(*track, owner.timeScale());
        object.insert(QStringLiteral("encoding"), static_cast<qint64>(track->encoding()));
        object.insert(QStringLiteral("cues"), describeCues(*track, owner.timeScale(), images));
        tracks.append(object);
        track->unload();
    }
    return tracks;
}

QJsonObject describeMovie(const QString& path, QVMovie& movie, const platform::UserDefaults& settings) {
    const QSizeF size = movie.naturalBounds().size();
    const float rate = movie.frameRate();
    return {{QStringLiteral("path"), path},
            {QStringLiteral("timeScale"), movie.timeScale()},
            {QStringLiteral("duration"), movie.duration()},
            {QStringLiteral("durationInSeconds"), movie.durationInSeconds()},
            {QStringLiteral("frameCount"), static_cast<qint64>(movie.frameCount())},
            // JSON has no infinity: a movie of less than a second has no rate of whole seconds.
            {QStringLiteral("frameRate"), std::isfinite(rate) ? QJsonValue(static_cast<double>(rate)) : QJsonValue()},
            {QStringLiteral("naturalBounds"), QJsonArray{0, 0, size.width(), size.height()}},
            {QStringLiteral("subtitles"), describeTracks(movie, settings)}};
}

} // namespace

InspectionResult inspectFiles(const Environment& environment, platform::MovieToolkit& toolkit,
                              const MovieReader& readMovie, const QStringList& pathsOrUrls,
                              const InspectedSubtitles& subtitles) {
    SubtitleRegistry readers(subtitleReaders(environment));
    SubtitleDiscovery discovery(environment.loop);
    NoUser user;
    const MovieServices services{toolkit, user, readers, discovery};
    const QStringList subtitleExtensions = readers.subtitleUnfilteredFileTypes();
    InspectionResult result;
    QJsonArray objects;
    NoMovie owner(subtitles.timeScale);
    CueImages images(subtitles.imagesFolder);
    for (const QString& name : pathsOrUrls) {
        const QUrl url = isURLString(name) ? QUrl(name) : QUrl::fromLocalFile(name);
        const auto addSubtitleFile = [&] {
            const QJsonArray tracks = describeSubtitleFile(url.toLocalFile(), readers, owner, images);
            if (!tracks.isEmpty())
                objects.append(QJsonObject{{QStringLiteral("path"), name}, {QStringLiteral("tracks"), tracks}});
            return !tracks.isEmpty();
        };
        // A movie toolkit may take a subtitle file for a movie without pictures: the name decides what is tried first.
        if (url.isLocalFile() && isFileOfType(url.toLocalFile(), subtitleExtensions) && addSubtitleFile())
            continue;
        platform::OpenedMovie opened = readMovie(url);
        const std::int16_t error = opened.error;
        if (const auto movie = QVMovie::movieWithOpened(environment, services, std::move(opened)))
            objects.append(describeMovie(name, *movie, environment.settings));
        else if (!url.isLocalFile() || !addSubtitleFile())
            result.errors.append(QStringLiteral("%1: cannot be opened (error %2)").arg(name).arg(error));
    }
    if (!images.error().isEmpty())
        result.errors.append(images.error());
    result.json = QJsonDocument(objects).toJson(QJsonDocument::Compact) + '\n';
    return result;
}
