// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/SubtitleEndsProbe.h"

#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/MovieInput.h"

#include <QByteArray>

#include <algorithm>
#include <cstdint>
#include <memory>

namespace platform {

namespace {

// Seconds before the end from which the last line is looked for at first; then twice as many, and so on.
constexpr double firstReach = 60;

struct Freed {
    void operator()(AVPacket* packet) const { AvLibrary::get()->av_packet_free(&packet); }
};

AVStream* subtitleStream(AVFormatContext* input, int number) {
    AVStream* found = nullptr;
    int count = 0;
    for (unsigned i = 0; i < input->nb_streams; ++i) {
        AVStream* const stream = input->streams[i];
        const bool isWanted =
            stream->codecpar->codec_type == AVMEDIA_TYPE_SUBTITLE && ++count == number && found == nullptr;
        stream->discard = isWanted ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
        if (isWanted)
            found = stream;
    }
    return found;
}

/// Whether it takes a picture away (Blu-ray discs), or a text.
bool isEmpty(const AVPacket& packet, AVCodecID codec) {
    constexpr int countOfObjects = 13; // in the composition, which is what comes first
    if (codec == AV_CODEC_ID_HDMV_PGS_SUBTITLE)
        return packet.size <= countOfObjects || (packet.data[0] == 0x16 && packet.data[countOfObjects] == 0);
    return packet.size == 0 || (codec == AV_CODEC_ID_MOV_TEXT && packet.size <= 2);
}

QString textOf(const AVPacket& packet, AVCodecID codec) {
    constexpr int maximumText = 4096;
    const QByteArray bytes(reinterpret_cast<const char*>(packet.data), std::min(packet.size, maximumText));
    switch (codec) {
    case AV_CODEC_ID_ASS:
    case AV_CODEC_ID_SSA:
        // Behind the number, the layer, the style, the speaker, three margins and the effect.
        return QString::fromUtf8(bytes).section(u',', 8);
    case AV_CODEC_ID_MOV_TEXT: {
        const int size =
            bytes.size() < 2 ? 0 : static_cast<std::uint8_t>(bytes[0]) << 8 | static_cast<std::uint8_t>(bytes[1]);
        return QString::fromUtf8(bytes.mid(2, size));
    }
    case AV_CODEC_ID_SUBRIP:
    case AV_CODEC_ID_TEXT:
    case AV_CODEC_ID_WEBVTT:
        return QString::fromUtf8(bytes);
    default:
        return {};
    }
}

class Search {
public:
    Search(AVFormatContext* input, const AVStream* stream, const std::atomic<bool>& cancelled)
        : _input(input)
        , _stream(stream)
        , _cancelled(cancelled)
        , _beginning(input->start_time == AV_NOPTS_VALUE ? 0 : static_cast<double>(input->start_time) / AV_TIME_BASE) {}

    enum class Which { first, last };
    /// From where the file is read now.
    std::optional<SubtitleLine> line(Which which) {
        std::optional<SubtitleLine> found;
        const AVCodecID codec = _stream->codecpar->codec_id;
        const AvLibrary& av = *AvLibrary::get();
        while (!_cancelled && !(found && which == Which::first) && av.av_read_frame(_input, _packet.get()) >= 0) {
            if (_packet->stream_index == _stream->index && _packet->pts != AV_NOPTS_VALUE && !isEmpty(*_packet, codec))
                found = {static_cast<double>(_packet->pts) * _stream->time_base.num / _stream->time_base.den -
                             _beginning,
                         textOf(*_packet, codec)};
            av.av_packet_unref(_packet.get());
        }
        return found;
    }

    bool goTo(double seconds) {
        const auto time = static_cast<std::int64_t>((seconds + _beginning) * AV_TIME_BASE);
        return AvLibrary::get()->av_seek_frame(_input, -1, time, AVSEEK_FLAG_BACKWARD) >= 0;
    }

private:
    AVFormatContext* _input;
    const AVStream* _stream;
    const std::atomic<bool>& _cancelled;
    double _beginning;
    std::unique_ptr<AVPacket, Freed> _packet{AvLibrary::get()->av_packet_alloc()};
};

} // namespace

std::optional<SubtitleEnds> subtitleEnds(const QUrl& url, int track, const std::atomic<bool>& cancelled) {
    const AvLibrary* av = AvLibrary::get();
    if (!av || !url.isLocalFile())
        return std::nullopt;
    MovieInput movie;
    if (!movie.context())
        return std::nullopt;
    movie.endWith(cancelled);
    AVDictionary* options = nullptr;
    const int opened = movie.open(url, options);
    av->av_dict_free(&options);
    if (opened < 0)
        return std::nullopt;
    AVFormatContext* const input = movie.context();
    const AVStream* const stream = subtitleStream(input, track);
    if (!stream)
        return std::nullopt;
    Search search(input, stream, cancelled);
    const auto first = search.line(Search::Which::first);
    const double duration = static_cast<double>(std::max<std::int64_t>(input->duration, 0)) / AV_TIME_BASE;
    std::optional<SubtitleLine> last;
    for (double reach = firstReach; first && !last && !cancelled; reach *= 2) {
        if (!search.goTo(std::max(0.0, duration - reach)))
            return std::nullopt;
        last = search.line(Search::Which::last);
        if (reach >= duration)
            break;
    }
    if (!first || !last || cancelled)
        return std::nullopt;
    return SubtitleEnds{*first, *last};
}

} // namespace platform
