// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Inspection.h"

#include "app/CueImages.h"
#include "app/OpeningFiles.h"
#include "context/Environment.h"
#include "platform/base/JsonWriter.h"
#include "platform/base/NumberText.h"
#include "platform/base/PathNames.h"
#include "platform/desktop/UserActivity.h"
#include "platform/movie/MovieToolkit.h"
#include "playback/QVMovie.h"
#include "playback/SubtitleDiscovery.h"
#include "subtitles/formats/SubtitleFormats.h"

#include <initializer_list>

using platform::JsonWriter;

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

void writeNumbers(std::initializer_list<double> numbers, JsonWriter& json) {
    json.beginArray(JsonWriter::Items::oneLine);
    for (const double number : numbers)
        json.value(number);
    json.endArray();
}

void writeTrack(const QVSubtitles& track, std::int32_t timeScale, JsonWriter& json) {
    json.name("type");
    if (const QString name = track.formatName(); !name.isEmpty())
        json.value(name);
    else
        json.null();
    json.member("title", track.title());
    json.member("streamIndex", track.streamIndex());
    json.member("timeScale", timeScale);
    // The rate as it is written, not as it is nearest to in single precision.
    json.member("frameRate", platform::shortestText(track.actualFrameRate(track.frameRateChoice())).toDouble());
}

void writeTracks(const QVMovie& movie, const platform::UserDefaults& settings, JsonWriter& json) {
    json.beginArray();
    for (const std::shared_ptr<QVSubtitles>& track : movie.subtitles()) {
        if (track->type() == QVSubtitles::typeInMovie)
            continue; // among the movie's own tracks
        json.beginObject();
        json.member("path", track->path());
        writeTrack(*track, movie.timeScale(), json);
        // It is not loaded: this is what it would be read with.
        json.member("encoding", QVSubtitles::defaultEncoding(settings));
        json.endObject();
    }
    json.endArray();
}

/// What a text cue says, or where a picture stands and what file holds it.
void writeContent(const QVSubtitle& cue, const QString& image, JsonWriter& json) {
    if (!cue.image()) {
        json.member("text", cue.text());
        return;
    }
    const platform::Rect rect = cue.rect();
    json.name("rect");
    writeNumbers({rect.x(), rect.y(), rect.width(), rect.height()}, json);
    json.member("forced", cue.forced());
    if (!image.isEmpty())
        json.member("image", image);
}

void writeCues(const QVSubtitles& track, std::int32_t timeScale, CueImages& images, JsonWriter& json) {
    const auto milliseconds = [timeScale](std::int32_t time) { return qint64{time} * 1000 / timeScale; };
    json.beginArray();
    std::size_t number = 0;
    for (const std::shared_ptr<QVSubtitle>& cue : track.cues()) {
        json.beginObject();
        json.member("start", cue->start());
        json.member("end", cue->end());
        json.member("startMs", milliseconds(cue->start()));
        json.member("endMs", milliseconds(cue->end()));
        writeContent(*cue, images.write(track, ++number, *cue), json);
        json.endObject();
    }
    json.endArray();
}

/// The tracks of a subtitle file, loaded; false and nothing for other files.
bool writeSubtitleFile(const QString& name, const QString& path, SubtitleRegistry& readers, SubtitleOwner& owner,
                       CueImages& images, JsonWriter& json) {
    const auto tracks = readers.subtitlesWithFilePath(path, owner);
    if (tracks.empty())
        return false;
    json.beginObject();
    json.member("path", name);
    json.name("tracks");
    json.beginArray();
    for (const std::shared_ptr<QVSubtitles>& track : tracks) {
        track->preload();
        track->waitForLoading();
        json.beginObject();
        writeTrack(*track, owner.timeScale(), json);
        json.member("encoding", track->encoding());
        json.member("losses", static_cast<qint64>(track->losses()));
        json.name("cues");
        writeCues(*track, owner.timeScale(), images, json);
        json.endObject();
        track->unload();
    }
    json.endArray();
    json.endObject();
    return true;
}

QStringView nameOf(platform::MovieTrack::Kind kind) {
    switch (kind) {
    case platform::MovieTrack::Kind::video:
        return u"video";
    case platform::MovieTrack::Kind::audio:
        return u"audio";
    case platform::MovieTrack::Kind::subtitles:
        return u"subtitle";
    }
    return {};
}

void writeText(const char* name, const QString& text, JsonWriter& json) {
    json.name(name);
    if (text.isEmpty())
        json.null();
    else
        json.value(text);
}

/// What is inside the movie.
void writeMovieTracks(const platform::MovieTracks& tracks, JsonWriter& json) {
    json.beginArray();
    for (const platform::MovieTrack& track : tracks) {
        json.beginObject();
        json.member("kind", nameOf(track.kind));
        writeText("language", track.language, json);
        writeText("title", track.title, json);
        writeText("codec", track.codec, json);
        if (track.kind == platform::MovieTrack::Kind::audio)
            json.member("channels", track.channels);
        json.member("default", track.isDefault);
        json.member("forced", track.isForced);
        if (track.isCover)
            json.member("cover", true);
        json.endObject();
    }
    json.endArray();
}

void writeMovie(const QString& path, QVMovie& movie, const platform::UserDefaults& settings, JsonWriter& json) {
    const QSizeF size = movie.naturalBounds().size();
    json.beginObject();
    json.member("path", path);
    json.member("timeScale", movie.timeScale());
    json.member("duration", movie.duration());
    json.member("durationInSeconds", movie.durationInSeconds());
    json.member("frameCount", movie.frameCount());
    // A movie of less than a second has no rate of whole seconds.
    json.member("frameRate", static_cast<double>(movie.frameRate()));
    json.name("naturalBounds");
    writeNumbers({0, 0, size.width(), size.height()}, json);
    json.name("subtitles");
    writeTracks(movie, settings, json);
    json.name("tracks");
    writeMovieTracks(movie.tracks(), json);
    json.endObject();
}

/// As it is when it is opened to be played; an invalid one for what is no address.
QUrl urlOf(const QString& pathOrUrl) {
    return isURLString(pathOrUrl) ? urlsWithURLStrings({pathOrUrl}).value(0) : QUrl::fromLocalFile(pathOrUrl);
}

} // namespace

QStringList inspectFiles(const Environment& environment, platform::MovieToolkit& toolkit, const MovieReader& readMovie,
                         const QStringList& pathsOrUrls, JsonWriter& json, const InspectedSubtitles& subtitles) {
    SubtitleRegistry readers(subtitleReaders(environment, toolkit.subtitlePacketReader()));
    SubtitleDiscovery discovery(environment.loop);
    NoUser user;
    const MovieServices services{toolkit, user, readers, discovery};
    const QStringList subtitleExtensions = readers.subtitleUnfilteredFileTypes();
    QStringList errors;
    NoMovie owner(subtitles.timeScale);
    CueImages images(subtitles.imagesFolder);
    json.beginArray();
    for (const QString& name : pathsOrUrls) {
        const QUrl url = urlOf(name);
        const auto isSubtitleFile = [&] {
            return writeSubtitleFile(name, platform::pathOfBytes(platform::nativePath(url)), readers, owner, images,
                                     json);
        };
        // A movie toolkit may take a subtitle file for a movie without pictures: the name decides what is tried first.
        if (url.isLocalFile() && isFileOfType(url.toLocalFile(), subtitleExtensions) && isSubtitleFile())
            continue;
        platform::OpenedMovie opened = readMovie(url);
        const std::int16_t error = opened.error;
        if (const auto movie = QVMovie::movieWithOpened(environment, services, std::move(opened)))
            writeMovie(name, *movie, environment.settings, json);
        else if (!url.isLocalFile() || !isSubtitleFile())
            errors.append(QStringLiteral("%1: cannot be opened (error %2)").arg(name).arg(error));
    }
    json.endArray();
    if (!images.error().isEmpty())
        errors.append(images.error());
    return errors;
}
