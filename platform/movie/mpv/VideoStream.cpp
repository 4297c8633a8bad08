// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/VideoStream.h"

#include "platform/movie/mpv/Libraries.h"

namespace platform {

const AVStream* firstVideoStream(const AVFormatContext* input) {
    for (unsigned i = 0; i < input->nb_streams; ++i) {
        const AVStream* stream = input->streams[i];
        if (stream->codecpar->codec_type == AVMEDIA_TYPE_VIDEO && !(stream->disposition & AV_DISPOSITION_ATTACHED_PIC))
            return stream;
    }
    return nullptr;
}

const AVStream* coverStream(const AVFormatContext* input) {
    for (unsigned i = 0; i < input->nb_streams; ++i) {
        const AVStream* stream = input->streams[i];
        if ((stream->disposition & AV_DISPOSITION_ATTACHED_PIC) && stream->attached_pic.size > 0)
            return stream;
    }
    return nullptr;
}

const std::int32_t* displayMatrixOf(const AVStream* video) {
    return reinterpret_cast<const std::int32_t*>(AvLibrary::get()->sideDataOf(*video, AV_PKT_DATA_DISPLAYMATRIX));
}

} // namespace platform
