// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of VobSub pairs beside those that libavcodec decodes of the same files.
extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
}

#include "subtitles/vobsub/QVVobSubSubtitles.h"
#include "tests/subtitles/SubtitleFiles.h"
#include "tests/subtitles/VobSubFiles.h"

#include <QPainter>

#include <map>
#include <thread>

namespace {

/// The pictures of one stream in a transparent frame each, by the millisecond of their beginning.
using Frames = std::map<std::int64_t, QImage>;

QImage emptyFrame(const vobsub::PairWriter& pair) {
    QImage frame(pair.width, pair.height, QImage::Format_ARGB32_Premultiplied);
    frame.fill(0);
    return frame;
}

/// A picture of a few colours as it is in the frame, its colours multiplied by their alpha.
void drawRectangle(const AVSubtitleRect& rect, QImage& frame) {
    const auto* palette = reinterpret_cast<const std::uint32_t*>(rect.data[1]);
    for (int y = 0; y < rect.h; ++y) {
        auto* line = reinterpret_cast<QRgb*>(frame.scanLine(rect.y + y)) + rect.x;
        for (int x = 0; x < rect.w; ++x) {
            const QRgb color = palette[rect.data[0][y * rect.linesize[0] + x]];
            const int alpha = qAlpha(color);
            line[x] = qRgba(qRed(color) * alpha / 255, qGreen(color) * alpha / 255, qBlue(color) * alpha / 255, alpha);
        }
    }
}

Frames referenceFrames(const QString& path, int stream, const vobsub::PairWriter& pair) {
    Frames frames;
    AVFormatContext* format = nullptr;
    EXPECT_EQ(avformat_open_input(&format, path.toUtf8().constData(), nullptr, nullptr), 0);
    if (!format)
        return frames;
    const AVCodecParameters* parameters = format->streams[stream]->codecpar;
    const AVCodec* codec = avcodec_find_decoder(parameters->codec_id);
    AVCodecContext* context = avcodec_alloc_context3(codec);
    EXPECT_GE(avcodec_parameters_to_context(context, parameters), 0);
    EXPECT_EQ(avcodec_open2(context, codec, nullptr), 0);
    AVPacket* packet = av_packet_alloc();
    while (av_read_frame(format, packet) >= 0) {
        AVSubtitle subtitle;
        int isWhole = 0;
        if (packet->stream_index == stream && avcodec_decode_subtitle2(context, &subtitle, &isWhole, packet) >= 0 &&
            isWhole) {
            const auto time = av_rescale_q(packet->pts, format->streams[stream]->time_base, AVRational{1, 1000});
            QImage& frame = frames.emplace(time, emptyFrame(pair)).first->second;
            for (unsigned i = 0; i < subtitle.num_rects; ++i)
                drawRectangle(*subtitle.rects[i], frame);
            avsubtitle_free(&subtitle);
        }
        av_packet_unref(packet);
    }
    av_packet_free(&packet);
    avcodec_free_context(&context);
    avformat_close_input(&format);
    return frames;
}

class VobSubReference : public SubtitleFiles {
protected:
    Frames ownFrames(QVSubtitles& track, std::size_t count, const vobsub::PairWriter& pair) {
        track.preload();
        for (int i = 0; i < 2'000'000 && track.count() < count; ++i)
            std::this_thread::yield();
        Frames frames;
        for (const auto& cue : track.cues()) {
            QImage& frame = frames.emplace(cue->start() / 3 * 5, emptyFrame(pair)).first->second; // 600 a second
            const platform::Rect rect = cue->rect();
            QPainter painter(&frame);
            painter.setCompositionMode(QPainter::CompositionMode_Source);
            painter.drawImage(QPointF(rect.x(), pair.height - rect.y() - rect.height()), cue->image()->expanded());
        }
        return frames;
    }
};

} // namespace

TEST_F(VobSubReference, pictures_equal_those_of_libavcodec) {
    vobsub::PairWriter pair;
    pair.width = 720;
    pair.height = 576;
    pair.addStream("en");
    pair.addStream("de");
    std::map<int, std::size_t> counts;
    std::int64_t time = 0;
    unsigned seed = 0;
    const auto add = [&](vobsub::Bitmap bitmap, const vobsub::Layout& layout = {}) {
        ++seed;
        vobsub::Subpicture subpicture{.bitmap = std::move(bitmap)};
        subpicture.x = static_cast<int>(seed * 37) % (pair.width - subpicture.bitmap.width + 1);
        subpicture.y = static_cast<int>(seed * 53) % (pair.height - subpicture.bitmap.height + 1);
        for (unsigned code = 0; code < 4; ++code) {
            subpicture.colors[code] = static_cast<std::uint8_t>((seed + 5 * code) % 16);
            subpicture.contrasts[code] = static_cast<std::uint8_t>((code * seed / 2) % 16);
        }
        if (vobsub::unit(subpicture).empty())
            return; // too many short runs
        const int stream = seed % 3 == 0 ? 1 : 0;
        time += 1000;
        pair.add(stream, time, subpicture, layout);
        ++counts[stream];
    };
    for (const int width : {1, 2, 3, 17, 64, 255, 256, 333, 719, 720})
        for (const int height : {2, 3, 36, 101}) // it refuses a single line
            for (const int maximumRun : {3, 15, 70, 1000})
                add(randomBitmap(width, height, maximumRun, seed + 1));
    add(vobsub::Bitmap{720, 576}); // nothing but full lines of code 0
    add(randomBitmap(500, 90, 4, 1), {.stuffing = 6});
    add(randomBitmap(500, 90, 4, 2), {.packSize = 1024, .paddingStream = false});
    add(randomBitmap(500, 90, 4, 3), {.packSize = 6000});
    add(randomBitmap(500, 90, 4, 4), {.systemHeader = true});

    ASSERT_TRUE(pair.write(folder.filePath(QStringLiteral("film")).toStdString()));
    const QString path = folder.filePath(QStringLiteral("film.idx"));
    const auto tracks = QVVobSubSubtitles::subtitlesWithFilePath(settings.environment, path, owner);
    ASSERT_EQ(tracks.size(), 2U);
    for (const int stream : {0, 1}) {
        const Frames own = ownFrames(*tracks[static_cast<std::size_t>(stream)], counts[stream], pair);
        const Frames reference = referenceFrames(path, stream, pair);
        EXPECT_EQ(own.size(), counts[stream]);
        EXPECT_GT(reference.size(), counts[stream] / 2);
        for (const auto& [begin, frame] : own) {
            // It gives none where nothing is visible.
            const auto found = reference.find(begin);
            ASSERT_EQ(frame, found == reference.end() ? emptyFrame(pair) : found->second)
                << "at " << begin << " of stream " << stream;
        }
    }
}
