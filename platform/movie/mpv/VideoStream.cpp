// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/VideoStream.h"

#include "platform/movie/mpv/Libraries.h"

#include <QByteArrayView>

#include <algorithm>

namespace platform {

const AVStream* mainVideoStream(const AVFormatContext* input) {
    const AVStream* best = nullptr;
    for (unsigned i = 0; i < input->nb_streams; ++i) {
        const AVStream* stream = input->streams[i];
        if (stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO &&
            !(stream->disposition & AV_DISPOSITION_ATTACHED_PIC) &&
            (!best || variantBitRate(stream->metadata) > variantBitRate(best->metadata)))
            best = stream;
    }
    return best;
}

std::int64_t variantBitRate(const AVDictionary* tags) {
    const AVDictionaryEntry* entry = AvLibrary::get()->av_dict_get(tags, "variant_bitrate", nullptr, 0);
    return entry ? std::max(QByteArrayView(entry->value).toLongLong(), 0LL) : 0;
}

const AVStream* coverStream(const AVFormatContext* input) {
    for (unsigned i = 0; i < input->nb_streams; ++i) {
        const AVStream* stream = input->streams[i];
        if ((stream->disposition & AV_DISPOSITION_ATTACHED_PIC) && stream->attached_pic.size > 0)
            return stream;
    }
    return nullptr;
}

DynamicRange dynamicRangeOf(const AVStream* video) {
    const AvLibrary& av = *AvLibrary::get();
    switch (video->codecpar->color_trc) {
    case AVCOL_TRC_ARIB_STD_B67:
        return {DynamicRange::Transfer::hlg, 0};
    case AVCOL_TRC_SMPTE2084:
        break;
    default:
        return {};
    }
    DynamicRange range{DynamicRange::Transfer::pq, 0};
    const std::uint8_t* light = av.sideDataOf(*video, AV_PKT_DATA_CONTENT_LIGHT_LEVEL);
    const std::uint8_t* mastering = av.sideDataOf(*video, AV_PKT_DATA_MASTERING_DISPLAY_METADATA);
    if (light)
        range.peak = reinterpret_cast<const AVContentLightMetadata*>(light)->MaxCLL;
    if (const auto* screen = reinterpret_cast<const AVMasteringDisplayMetadata*>(mastering);
        range.peak <= 0 && screen && screen->has_luminance && screen->max_luminance.den > 0)
        range.peak = av_q2d(screen->max_luminance);
    return range;
}

const std::int32_t* displayMatrixOf(const AVStream* video) {
    return reinterpret_cast<const std::int32_t*>(AvLibrary::get()->sideDataOf(*video, AV_PKT_DATA_DISPLAYMATRIX));
}

} // namespace platform
