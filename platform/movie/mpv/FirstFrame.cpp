// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/FirstFrame.h"

#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/MovieInput.h"
#include "platform/movie/mpv/VideoStream.h"

#include <cmath>
#include <cstdint>
#include <vector>

namespace platform {

namespace {

// A movie whose first picture does not come within this many packets has none that is worth waiting for.
constexpr int packetLimit = 64;

/// The player takes a picture that lies so little before a time for the one of that time. Seconds.
constexpr double timeTolerance = 0.005;

/// Pictures that no other one needs are left out as long as the time is further away than this. Seconds.
constexpr double allPicturesMargin = 0.5;

/// Pixels of a cover: more than any print has.
constexpr std::int64_t maximumCoverPixels = 64'000'000;

struct Freed {
    void operator()(AVCodecContext* context) const { AvLibrary::get()->avcodec_free_context(&context); }
    void operator()(AVPacket* packet) const { AvLibrary::get()->av_packet_free(&packet); }
    void operator()(AVFrame* frame) const { AvLibrary::get()->av_frame_free(&frame); }
};

bool isPlain(const AVStream* stream, const AVFrame* frame, FirstFrame::PictureOf wanted) {
    const bool rangeIsKnown = frame->color_trc == stream->codecpar->color_trc ||
                              (frame->color_trc != AVCOL_TRC_SMPTE2084 && frame->color_trc != AVCOL_TRC_ARIB_STD_B67);
    const bool isUpright = wanted == FirstFrame::PictureOf::storedKeyframe || !displayMatrixOf(stream);
    return isUpright && rangeIsKnown && !frame->hw_frames_ctx;
}

bool isFull(const AVFrame* frame) {
    return frame->color_range == AVCOL_RANGE_JPEG || frame->format == AV_PIX_FMT_YUVJ420P ||
           frame->format == AV_PIX_FMT_YUVJ422P || frame->format == AV_PIX_FMT_YUVJ444P;
}

/// Movies that do not say are taken as the player takes them: high definition is BT.709, the rest BT.601.
int colorMatrix(const AVFrame* frame) {
    if (frame->colorspace != AVCOL_SPC_UNSPECIFIED)
        return frame->colorspace;
    return frame->width >= 1280 || frame->height > 576 ? AVCOL_SPC_BT709 : AVCOL_SPC_SMPTE170M;
}

/// The caller's, or null.
AVFrame* firstPicture(AVFormatContext* input, const AVStream* video, AVCodecContext* decoder,
                      const std::atomic<bool>& cancelled) {
    const AvLibrary* av = AvLibrary::get();
    const std::unique_ptr<AVPacket, Freed> packet(av->av_packet_alloc());
    std::unique_ptr<AVFrame, Freed> frame(av->av_frame_alloc());
    bool sent = false;
    for (int i = 0; i < packetLimit && !cancelled.load(); ++i) {
        const bool ended = av->av_read_frame(input, packet.get()) < 0;
        const bool ours = !ended && packet->stream_index == video->index;
        if (ours)
            sent = av->avcodec_send_packet(decoder, packet.get()) >= 0;
        av->av_packet_unref(packet.get());
        // The first picture is all that is wanted: the decoder is told that nothing follows it.
        if ((ours && sent) || ended)
            av->avcodec_send_packet(decoder, nullptr);
        if (sent && av->avcodec_receive_frame(decoder, frame.get()) >= 0)
            return frame.release();
        if (ended || sent)
            return nullptr;
    }
    return nullptr;
}

/// Seconds.
double beginOf(const AVFormatContext* input) {
    return input->start_time == AV_NOPTS_VALUE ? 0 : static_cast<double>(input->start_time) / AV_TIME_BASE;
}

/// To the keyframe before the time.
bool seekTo(AVFormatContext* input, const AVStream* video, double seconds) {
    const double units = (seconds + beginOf(input)) / av_q2d(video->time_base);
    return AvLibrary::get()->av_seek_frame(input, video->index, std::llround(units), AVSEEK_FLAG_BACKWARD) >= 0;
}

/// Its time counts from the beginning of the file, as the player counts it.
AVFrame* pictureAt(AVFormatContext* input, const AVStream* video, AVCodecContext* decoder, double seconds,
                   const std::atomic<bool>& cancelled) {
    const AvLibrary* av = AvLibrary::get();
    const double unit = av_q2d(video->time_base);
    const double target = seconds + beginOf(input);
    if (!seekTo(input, video, seconds))
        return nullptr;
    const std::unique_ptr<AVPacket, Freed> packet(av->av_packet_alloc());
    std::unique_ptr<AVFrame, Freed> frame(av->av_frame_alloc());
    for (bool ended = false; !ended && !cancelled.load();) {
        ended = av->av_read_frame(input, packet.get()) < 0;
        if (ended) {
            av->avcodec_send_packet(decoder, nullptr);
        } else if (packet->stream_index == video->index) {
            const bool isFarBefore =
                packet->pts != AV_NOPTS_VALUE && static_cast<double>(packet->pts) * unit < target - allPicturesMargin;
            decoder->skip_frame = isFarBefore ? AVDISCARD_NONREF : AVDISCARD_DEFAULT;
            av->avcodec_send_packet(decoder, packet.get());
        }
        av->av_packet_unref(packet.get());
        while (av->avcodec_receive_frame(decoder, frame.get()) >= 0) {
            if (frame->best_effort_timestamp == AV_NOPTS_VALUE)
                return nullptr;
            if (static_cast<double>(frame->best_effort_timestamp) * unit >= target - timeTolerance)
                return frame.release();
        }
    }
    return nullptr;
}

} // namespace

FirstFrame::FirstFrame(AVFrame* frame, const DynamicRange& range)
    : _frame(frame)
    , _toneMapping(ToneMapping::of(range)) {}

FirstFrame::~FirstFrame() {
    AvLibrary::get()->av_frame_free(&_frame);
}

std::shared_ptr<const FirstFrame> FirstFrame::decode(const QUrl& url, const std::atomic<bool>& cancelled,
                                                     PictureOf wanted, double seconds) {
    if (wanted == PictureOf::keyframe || wanted == PictureOf::storedKeyframe) {
        // Most headers say enough to seek by, and looking into the streams takes longer than all the rest.
        if (auto found = decode(url, cancelled, wanted, seconds, Look::header); found || cancelled)
            return found;
    }
    return decode(url, cancelled, wanted, seconds, Look::streams);
}

std::shared_ptr<const FirstFrame> FirstFrame::decode(const QUrl& url, const std::atomic<bool>& cancelled,
                                                     PictureOf wanted, double seconds, Look look) {
    const AvLibrary* av = AvLibrary::get();
    if (!av || !url.isLocalFile())
        return nullptr;
    MovieInput movie;
    if (!movie.context())
        return nullptr;
    movie.endWith(cancelled);
    AVDictionary* options = nullptr;
    const int opened = movie.open(url, options);
    av->av_dict_free(&options);
    // Where a file begins in time is not known before.
    if (opened < 0 || cancelled ||
        (seconds > 0 && look == Look::streams && av->avformat_find_stream_info(movie.context(), nullptr) < 0))
        return nullptr;
    AVFormatContext* const input = movie.context();

    const AVStream* video = wanted == PictureOf::cover ? coverStream(input) : mainVideoStream(input);
    // Where the header does not describe the picture, it does not say where the file begins in time either.
    if (look == Look::header && (!video || video->codecpar->width <= 0))
        return nullptr;
    const AVCodec* codec = video ? av->avcodec_find_decoder(video->codecpar->codec_id) : nullptr;
    const std::unique_ptr<AVCodecContext, Freed> decoder(codec ? av->avcodec_alloc_context3(codec) : nullptr);
    if (!decoder || av->avcodec_parameters_to_context(decoder.get(), video->codecpar) < 0)
        return nullptr;
    if (seconds > 0 && wanted == PictureOf::movie) {
        decoder->thread_count = 0; // many have to be decoded
    } else {
        // With one thread and low delay the picture comes out with its packet where no reordering holds it back.
        decoder->thread_count = 1;
        decoder->flags |= AV_CODEC_FLAG_LOW_DELAY;
    }
    if (wanted == PictureOf::cover)
        decoder->max_pixels = maximumCoverPixels;
    if (av->avcodec_open2(decoder.get(), codec, nullptr) < 0)
        return nullptr;

    std::unique_ptr<AVFrame, Freed> frame(av->av_frame_alloc());
    if (wanted == PictureOf::cover) {
        const bool sent = av->avcodec_send_packet(decoder.get(), &video->attached_pic) >= 0;
        av->avcodec_send_packet(decoder.get(), nullptr);
        if (sent && av->avcodec_receive_frame(decoder.get(), frame.get()) >= 0 && isPlain(video, frame.get(), wanted))
            return std::make_shared<const FirstFrame>(frame.release(), dynamicRangeOf(video));
        return nullptr;
    }
    const bool isExact = seconds > 0 && wanted == PictureOf::movie;
    if (seconds > 0 && !isExact && !seekTo(input, video, seconds))
        return nullptr;
    AVFrame* const found = isExact ? pictureAt(input, video, decoder.get(), seconds, cancelled)
                                   : firstPicture(input, video, decoder.get(), cancelled);
    frame.reset(found);
    if (!found || !isPlain(video, found, wanted))
        return nullptr;
    return std::make_shared<const FirstFrame>(frame.release(), dynamicRangeOf(video));
}

QImage FirstFrame::image(const QSize& bounds) const {
    QSize size(_frame->width, _frame->height);
    if (size.width() > bounds.width() || size.height() > bounds.height())
        size = size.scaled(bounds, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull() || !render(size, image.bits(), static_cast<std::size_t>(image.bytesPerLine())))
        return {};
    return image;
}

bool FirstFrame::render(const QSize& size, unsigned char* pixels, std::size_t stride) const {
    if (!_toneMapping)
        return render(size, AV_PIX_FMT_BGR0, pixels, stride);
    const auto width = static_cast<std::size_t>(size.width());
    std::vector<std::uint64_t> wide(width * static_cast<std::size_t>(size.height()));
    if (!render(size, AV_PIX_FMT_RGBA64, wide.data(), width * sizeof(wide[0])))
        return false;
    _toneMapping->map(size, reinterpret_cast<const std::uint8_t*>(wide.data()), width * sizeof(wide[0]), pixels,
                      stride);
    return true;
}

bool FirstFrame::render(const QSize& size, int pixelFormat, void* pixels, std::size_t stride) const {
    const AvLibrary& av = *AvLibrary::get();
    SwsContext* scaler = av.sws_getContext(_frame->width, _frame->height, static_cast<AVPixelFormat>(_frame->format),
                                           size.width(), size.height(), static_cast<AVPixelFormat>(pixelFormat),
                                           SWS_BILINEAR, nullptr, nullptr, nullptr);
    if (!scaler)
        return false;
    const int* matrix = av.sws_getCoefficients(colorMatrix(_frame));
    av.sws_setColorspaceDetails(scaler, matrix, isFull(_frame) ? 1 : 0, matrix, 1, 0, 1 << 16, 1 << 16);
    std::uint8_t* const planes[] = {static_cast<std::uint8_t*>(pixels)};
    const int strides[] = {static_cast<int>(stride)};
    const int lines = av.sws_scale(scaler, _frame->data, _frame->linesize, 0, _frame->height, planes, strides);
    av.sws_freeContext(scaler);
    return lines == size.height();
}

} // namespace platform
