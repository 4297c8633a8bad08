// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/SubtitleDemuxer.h"

#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/MovieInput.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace platform {

namespace {

constexpr int bufferSize = 32 * 1024;

/// The text as the library reads a file.
struct MemoryFile {
    const QByteArray& bytes;
    const std::atomic<bool>& cancelled;
    std::int64_t position = 0;

    static int read(void* opaque, std::uint8_t* buffer, int size) {
        auto& file = *static_cast<MemoryFile*>(opaque);
        if (file.cancelled)
            return AVERROR_EXIT;
        const auto length = static_cast<int>(std::min<std::int64_t>(size, file.bytes.size() - file.position));
        if (length <= 0)
            return AVERROR_EOF;
        std::memcpy(buffer, file.bytes.constData() + file.position, static_cast<std::size_t>(length));
        file.position += length;
        return length;
    }

    static std::int64_t seek(void* opaque, std::int64_t offset, int whence) {
        auto& file = *static_cast<MemoryFile*>(opaque);
        const std::int64_t size = file.bytes.size();
        if (whence == AVSEEK_SIZE)
            return size;
        const std::int64_t from = whence == SEEK_CUR ? file.position : whence == SEEK_END ? size : 0;
        if (offset < -from || offset > size - from)
            return AVERROR(EINVAL);
        return file.position = from + offset;
    }
};

int refuseToOpen(AVFormatContext*, AVIOContext**, const char*, int, AVDictionary**) {
    return AVERROR(EPERM);
}

/// The library's objects, which go together.
struct Demuxer {
    const AvLibrary& av;
    AVIOContext* file = nullptr;
    AVFormatContext* context = nullptr;
    AVPacket* packet = nullptr;
    AVDictionary* options = nullptr;

    ~Demuxer() {
        av.av_dict_free(&options);
        av.av_packet_free(&packet);
        av.avformat_close_input(&context);
        if (file) {
            av.av_free(file->buffer); // the library may have put another one in the place of ours
            av.avio_context_free(&file);
        }
    }

    bool prepare(MemoryFile& memory) {
        auto* const buffer = static_cast<unsigned char*>(av.av_malloc(bufferSize));
        if (!buffer)
            return false;
        file = av.avio_alloc_context(buffer, bufferSize, 0, &memory, &MemoryFile::read, nullptr, &MemoryFile::seek);
        if (!file) {
            av.av_free(buffer);
            return false;
        }
        context = av.avformat_alloc_context();
        packet = av.av_packet_alloc();
        if (!context || !packet)
            return false;
        context->pb = file;
        context->io_open = &refuseToOpen;
        av.av_dict_set(&options, "protocol_whitelist", localProtocols, 0);
        return true;
    }

    SubtitlePacket taken() const {
        constexpr AVRational milliseconds{1, 1000};
        const AVRational unit = context->streams[packet->stream_index]->time_base;
        SubtitlePacket result;
        result.start = packet->pts == AV_NOPTS_VALUE ? 0 : av.av_rescale_q(packet->pts, unit, milliseconds);
        result.duration = packet->duration > 0 ? av.av_rescale_q(packet->duration, unit, milliseconds) : -1;
        result.text = {reinterpret_cast<const char*>(packet->data), static_cast<std::size_t>(packet->size)};
        std::size_t size = 0;
        if (const auto* data = av.av_packet_get_side_data(packet, AV_PKT_DATA_WEBVTT_SETTINGS, &size))
            result.settings = {reinterpret_cast<const char*>(data), size};
        return result;
    }
};

} // namespace

bool readSubtitlePackets(const QByteArray& utf8, const char* format, const std::atomic<bool>& cancelled,
                         const TakeSubtitlePacket& take) {
    const AvLibrary* const av = AvLibrary::get();
    if (!av)
        return false;
    const AVInputFormat* const input = av->av_find_input_format(format);
    MemoryFile memory{utf8, cancelled};
    Demuxer demuxer{*av};
    if (!input || !demuxer.prepare(memory))
        return false;
    if (av->avformat_open_input(&demuxer.context, "", input, &demuxer.options) < 0)
        return false;
    while (!cancelled && av->av_read_frame(demuxer.context, demuxer.packet) >= 0) {
        const bool goesOn = take(demuxer.taken());
        av->av_packet_unref(demuxer.packet);
        if (!goesOn)
            break;
    }
    return true;
}

} // namespace platform
