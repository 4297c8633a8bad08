// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/mpv/MpvDialect.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/display.h>
#include <libavutil/imgutils.h>
#include <libavutil/mastering_display_metadata.h>
#include <libavutil/opt.h>
#include <libswscale/swscale.h>
}
#include <mpv/client.h>
#include <mpv/render.h>
#include <mpv/render_gl.h>

#include <cstdint>

namespace platform {

// The libraries are loaded at run time instead of being linked: resolving the more than two hundred libraries behind
// libmpv takes as long as everything else at the start together, and on a thread of its own it costs the start nothing.
// They are loaded in the order in which they are needed: the readers first, so that a movie is open, and its first
// picture decoded, while the player is still being loaded.

// The side data of a stream stands with its codec's parameters since FFmpeg 6.1.
#if LIBAVCODEC_VERSION_INT >= AV_VERSION_INT(60, 31, 0)
#define LUMARO_AV_SIDE_DATA_FUNCTION(X) X(av_packet_side_data_get)
#else
#define LUMARO_AV_SIDE_DATA_FUNCTION(X) X(av_stream_get_side_data)
#endif

#define LUMARO_AV_FUNCTIONS(X)                                                                                         \
    X(avformat_alloc_context)                                                                                          \
    X(av_find_input_format)                                                                                            \
    X(avformat_open_input)                                                                                             \
    X(avformat_find_stream_info)                                                                                       \
    X(avformat_close_input)                                                                                            \
    X(avformat_free_context)                                                                                           \
    X(avio_open2)                                                                                                      \
    X(avio_alloc_context)                                                                                              \
    X(avio_closep)                                                                                                     \
    X(avio_context_free)                                                                                               \
    X(av_guess_sample_aspect_ratio)                                                                                    \
    X(avio_read)                                                                                                       \
    X(avio_size)                                                                                                       \
    LUMARO_AV_SIDE_DATA_FUNCTION(X)                                                                                    \
    X(av_read_frame)                                                                                                   \
    X(av_seek_frame)                                                                                                   \
    X(avcodec_descriptor_get)                                                                                          \
    X(avcodec_find_decoder)                                                                                            \
    X(avcodec_alloc_context3)                                                                                          \
    X(avcodec_free_context)                                                                                            \
    X(avcodec_parameters_to_context)                                                                                   \
    X(avcodec_open2)                                                                                                   \
    X(avcodec_send_packet)                                                                                             \
    X(avcodec_receive_frame)                                                                                           \
    X(av_packet_alloc)                                                                                                 \
    X(av_packet_unref)                                                                                                 \
    X(av_packet_free)                                                                                                  \
    X(av_packet_get_side_data)                                                                                         \
    X(av_frame_alloc)                                                                                                  \
    X(av_frame_free)                                                                                                   \
    X(av_display_rotation_get)                                                                                         \
    X(av_malloc)                                                                                                       \
    X(av_free)                                                                                                         \
    X(av_opt_get)                                                                                                      \
    X(av_rescale_q)                                                                                                    \
    X(av_dict_get)                                                                                                     \
    X(av_dict_set)                                                                                                     \
    X(av_dict_free)                                                                                                    \
    X(av_log_set_level)                                                                                                \
    X(sws_getContext)                                                                                                  \
    X(sws_scale)                                                                                                       \
    X(sws_freeContext)                                                                                                 \
    X(sws_getCoefficients)                                                                                             \
    X(sws_setColorspaceDetails)

#define LUMARO_MPV_FUNCTIONS(X)                                                                                        \
    X(mpv_client_api_version)                                                                                          \
    X(mpv_create)                                                                                                      \
    X(mpv_initialize)                                                                                                  \
    X(mpv_terminate_destroy)                                                                                           \
    X(mpv_set_option_string)                                                                                           \
    X(mpv_command_async)                                                                                               \
    X(mpv_set_property_async)                                                                                          \
    X(mpv_get_property_async)                                                                                          \
    X(mpv_observe_property)                                                                                            \
    X(mpv_wait_event)                                                                                                  \
    X(mpv_request_log_messages)                                                                                        \
    X(mpv_set_wakeup_callback)                                                                                         \
    X(mpv_error_string)                                                                                                \
    X(mpv_render_context_create)                                                                                       \
    X(mpv_render_context_set_update_callback)                                                                          \
    X(mpv_render_context_update)                                                                                       \
    X(mpv_render_context_get_info)                                                                                     \
    X(mpv_get_time_us)                                                                                                 \
    X(mpv_render_context_render)                                                                                       \
    X(mpv_render_context_report_swap)                                                                                  \
    X(mpv_render_context_free)

/// libavformat, libavcodec, libavutil and libswscale.
struct AvLibrary {
#define X(name) decltype(&::name) name = nullptr;
    LUMARO_AV_FUNCTIONS(X)
#undef X
    /// The data of a kind that the container holds of a stream; null when it holds none.
    const std::uint8_t* sideDataOf(const AVStream& stream, AVPacketSideDataType kind) const;

    /// The loaded library, or null when it cannot be loaded (a message was logged). Blocks while it is being loaded.
    /// Any thread.
    static const AvLibrary* get();
};

/// libmpv.
struct MpvLibrary {
#define X(name) decltype(&::name) name = nullptr;
    LUMARO_MPV_FUNCTIONS(X)
#undef X
    /// How this version of the library is spoken to.
    MpvDialect dialect() const {
        return mpvDialect(mpv_client_api_version());
    }

    static const MpvLibrary* get();
};

} // namespace platform
