// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MovieProbe.h"

#include "platform/base/PathNames.h"
#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/MovieInput.h"
#include "platform/movie/mpv/NetworkInput.h"
#include "platform/movie/mpv/TrackProbe.h"
#include "platform/movie/mpv/VideoStream.h"

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <limits>
#include <optional>
#include <string_view>

namespace platform {

namespace {

using Clock = std::chrono::steady_clock;

/// How long a server may send nothing, seconds.
constexpr double networkTimeout = 10.0;

struct Deadline {
    Clock::time_point end;
    const std::atomic<bool>& cancelled;
    std::optional<NetworkInput> network;
    bool timedOut = false;

    static int interrupt(void* opaque) {
        auto* self = static_cast<Deadline*>(opaque);
        if (Clock::now() >= self->end)
            self->timedOut = true;
        const bool isHopeless = self->network && self->network->needsRanges();
        return self->timedOut || isHopeless || self->cancelled.load(std::memory_order_relaxed) ? 1 : 0;
    }

    std::int16_t error(const QUrl& url, int code) const;
};

std::int16_t fileError(int code) {
    switch (code) {
    case AVERROR(ENOENT):
    case AVERROR(ENOTDIR):
        return movieError::fileNotFound;
    case AVERROR(EACCES):
    case AVERROR(EPERM):
        return movieError::permissionDenied;
    case AVERROR(ETIMEDOUT):
    case AVERROR_EXIT:
        return movieError::timedOut;
    case AVERROR_INVALIDDATA:
    case AVERROR_EOF:
        return movieError::invalidMovie;
    default:
        return movieError::couldNotOpen;
    }
}

std::int16_t Deadline::error(const QUrl& url, int code) const {
    if (network && network->needsRanges())
        return movieError::needsRanges;
    if (timedOut)
        return movieError::timedOut;
    return network && !cancelled ? networkError(url, code, network->isConnected()) : fileError(code);
}

/// A file that would block or that is no file is refused before the libraries see it: opening a FIFO waits for a
/// writer.
/// `size` becomes that of a file which may be one.
std::int16_t checkFile(const QUrl& url, std::int64_t& size) {
    struct stat status {};
    if (::stat(nativePath(url).constData(), &status) != 0)
        return fileError(AVERROR(errno));
    if (!S_ISREG(status.st_mode) && !S_ISBLK(status.st_mode))
        return movieError::notAFile;
    // An empty file is no movie; one of the kernel's, which only looks empty, may keep its reader waiting for ever.
    if (S_ISREG(status.st_mode) && status.st_size == 0)
        return movieError::fileEmpty;
    size = status.st_size;
    return movieError::none;
}

const AVStream* firstSoundStream(const AVFormatContext* input) {
    for (unsigned i = 0; i < input->nb_streams; ++i) {
        if (input->streams[i]->codecpar->codec_type == AVMEDIA_TYPE_AUDIO)
            return input->streams[i];
    }
    return nullptr;
}

bool isKnown(AVRational rate) {
    return rate.num > 0 && rate.den > 0;
}

double durationInSeconds(const AVFormatContext* input) {
    if (input->duration > 0)
        return static_cast<double>(input->duration) / AV_TIME_BASE;
    double longest = 0;
    for (unsigned i = 0; i < input->nb_streams; ++i) {
        const AVStream* stream = input->streams[i];
        if (stream->duration > 0)
            longest = std::max(longest, static_cast<double>(stream->duration) * av_q2d(stream->time_base));
    }
    return longest;
}

/// Whether the header alone told all that MovieInfo holds.
bool isComplete(const AVFormatContext* input) {
    if (input->nb_streams == 0 || (input->ctx_flags & AVFMTCTX_NOHEADER) || durationInSeconds(input) <= 0)
        return false;
    for (unsigned i = 0; i < input->nb_streams; ++i) {
        const AVStream* stream = input->streams[i];
        if (stream->codecpar->codec_id == AV_CODEC_ID_NONE && stream->codecpar->codec_type <= AVMEDIA_TYPE_AUDIO)
            return false;
    }
    const AVStream* video = mainVideoStream(input);
    if (!video)
        return firstSoundStream(input) != nullptr;
    return video->codecpar->width > 0 && video->codecpar->height > 0 &&
           (video->nb_frames > 0 || isKnown(video->avg_frame_rate));
}

int quarterTurnsOf(const AVStream* video) {
    const std::int32_t* matrix = displayMatrixOf(video);
    if (!matrix)
        return 0;
    const double angle = AvLibrary::get()->av_display_rotation_get(matrix); // anticlockwise
    return std::isnan(angle) ? 0 : static_cast<int>((4 - std::lround(angle / 90.0) % 4) % 4);
}

QSizeF displayedSize(AVFormatContext* input, const AVStream* video, int quarterTurns) {
    const AvLibrary& av = *AvLibrary::get();
    double width = video->codecpar->width;
    double height = video->codecpar->height;
    const AVRational aspect = av.av_guess_sample_aspect_ratio(input, const_cast<AVStream*>(video), nullptr);
    if (isKnown(aspect)) {
        // The picture is stretched, never shrunk, as the player does it.
        if (aspect.num > aspect.den)
            width = std::round(width * av_q2d(aspect));
        else
            height = std::round(height / av_q2d(aspect));
    }
    if (quarterTurns % 2 == 1)
        std::swap(width, height);
    return {width, height};
}

std::int32_t chooseTimeScale(AVRational timeBase, double seconds) {
    constexpr double largest = std::numeric_limits<std::int32_t>::max();
    std::int32_t scale = timeBase.den > 0 ? timeBase.den : 600;
    while (scale > 1 && seconds * scale > largest)
        scale /= 2;
    return scale;
}

double bitRateOf(const AVFormatContext* input, double seconds) {
    if (input->bit_rate > 0)
        return static_cast<double>(input->bit_rate);
    const std::int64_t size = input->pb ? AvLibrary::get()->avio_size(input->pb) : 0;
    return size > 0 && seconds > 0 ? static_cast<double>(size) * 8 / seconds : 0;
}

constexpr int maximumLine = 500; // characters

/// What the file says of itself, or of its sound; one line of it.
QString tagOf(const AVFormatContext* input, const AVStream* sound, const char* key) {
    for (const AVDictionary* tags : {input->metadata, sound ? sound->metadata : nullptr}) {
        if (const AVDictionaryEntry* entry = AvLibrary::get()->av_dict_get(tags, key, nullptr, 0)) {
            const QString text = QString::fromUtf8(entry->value).simplified().left(maximumLine);
            if (!text.isEmpty())
                return text;
        }
    }
    return {};
}

std::vector<Chapter> chaptersOf(const AVFormatContext* input, const MovieInfo& info) {
    std::vector<Chapter> chapters;
    for (unsigned i = 0; i < input->nb_chapters; ++i) {
        const AVChapter* chapter = input->chapters[i];
        const double start = static_cast<double>(chapter->start) * av_q2d(chapter->time_base) * info.timeScale;
        if (!(start >= 0 && start < info.duration))
            continue;
        const AVDictionaryEntry* title = AvLibrary::get()->av_dict_get(chapter->metadata, "title", nullptr, 0);
        chapters.push_back({static_cast<std::int32_t>(std::ceil(start)),
                            title ? QString::fromUtf8(title->value).simplified().left(maximumLine) : QString()});
    }
    std::ranges::stable_sort(chapters, {}, &Chapter::start);
    const auto beginTogether = [](const Chapter& one, const Chapter& other) { return one.start == other.start; };
    chapters.erase(std::unique(chapters.begin(), chapters.end(), beginTogether), chapters.end());
    return chapters;
}

/// A list of parts does not last as long as its own bytes would at the parts' bit rate, which is what the library makes
/// up where the list does not say.
bool isListOfParts(const AVFormatContext* input) {
    const std::string_view format(input->iformat->name);
    return format.starts_with("hls") || format == "dash";
}

MovieInfo describe(AVFormatContext* input, double seconds, const AVStream* video, const AVStream* sound) {
    constexpr double largest = std::numeric_limits<std::int32_t>::max();
    MovieInfo info;
    info.bitRate = bitRateOf(input, seconds);
    info.tracks = tracksOf(input);
    info.hasAudio = sound != nullptr;
    info.hasVideo = video != nullptr;
    info.timeScale = chooseTimeScale(video ? video->time_base : AVRational{1, 600}, seconds);
    info.duration = static_cast<std::int32_t>(std::min(std::round(seconds * info.timeScale), largest));
    info.chapters = chaptersOf(input, info);
    if (!video) {
        info.title = tagOf(input, sound, "title");
        info.artist = tagOf(input, sound, "artist");
        info.hasCover = coverStream(input) != nullptr;
        return info;
    }
    info.dynamicRange = dynamicRangeOf(video);
    info.quarterTurns = quarterTurnsOf(video);
    info.naturalSize = displayedSize(input, video, info.quarterTurns);
    const AVRational rate = isKnown(video->avg_frame_rate) ? video->avg_frame_rate : video->r_frame_rate;
    double count = static_cast<double>(video->nb_frames);
    if (count <= 0 && isKnown(rate))
        count = std::round(seconds * av_q2d(rate));
    info.videoSampleCount = static_cast<std::uint32_t>(std::clamp(count, 0.0, 4294967295.0));
    if (isKnown(rate))
        info.frameDuration = info.timeScale / av_q2d(rate);
    else if (count > 0)
        info.frameDuration = info.duration / count;
    return info;
}

} // namespace

OpenedMovie probeMovie(const QUrl& url, double timeout, const std::atomic<bool>& cancelled) {
    const AvLibrary* av = AvLibrary::get();
    if (!av)
        return {std::nullopt, movieError::noMediaHandler};
    std::int64_t fileSize = -1;
    if (url.isLocalFile()) {
        if (const std::int16_t error = checkFile(url, fileSize))
            return {std::nullopt, error};
    }

    Deadline deadline{Clock::now() +
                          std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(timeout)),
                      cancelled, std::nullopt};
    MovieInput movie;
    if (!movie.context())
        return {std::nullopt, movieError::couldNotOpen};
    movie.context()->interrupt_callback = {&Deadline::interrupt, &deadline};
    AVDictionary* options = nullptr;
    if (isNetworkURL(url)) {
        deadline.network.emplace(*movie.context());
        av->av_dict_set(&options, "rw_timeout",
                        QByteArray::number(static_cast<qint64>(networkTimeout * 1e6)).constData(), 0);
    }
    const int opened = movie.open(url, options);
    av->av_dict_free(&options);
    if (opened < 0)
        return {std::nullopt, deadline.error(url, opened)};
    AVFormatContext* const input = movie.context();

    const bool saysDuration = durationInSeconds(input) > 0;
    if (!isComplete(input)) {
        const int found = av->avformat_find_stream_info(input, nullptr);
        if (found < 0)
            return {std::nullopt, deadline.error(url, found)};
    }

    if (deadline.network && deadline.network->needsRanges())
        return {std::nullopt, movieError::needsRanges};

    const AVStream* video = mainVideoStream(input);
    const AVStream* audio = firstSoundStream(input);
    const bool seen = video && video->codecpar->width > 0 && av->avcodec_find_decoder(video->codecpar->codec_id);
    const bool heard = audio && av->avcodec_find_decoder(audio->codecpar->codec_id);
    if (!seen && !heard)
        return {std::nullopt, movieError::invalidMovie};
    const double seconds = saysDuration || !isListOfParts(input) ? durationInSeconds(input) : 0;
    MovieInfo info = describe(input, seconds, seen ? video : nullptr, heard ? audio : nullptr);
    info.url = url;
    info.isLive = isNetworkURL(url) && seconds <= 0;
    info.fileSize = fileSize;
    info.saysDuration = saysDuration;
    return {std::move(info), video && !seen ? movieError::cannotPlay : movieError::none};
}

} // namespace platform
