// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MpvCore.h"

#include "platform/base/Background.h"
#include "platform/base/Log.h"
#include "platform/movie/mpv/HardwareDecoding.h"
#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/MovieInput.h"
#include "platform/window/VideoLayer.h"

#include <QString>

#include <utility>

namespace platform {

namespace {

// The toolkit plays one file that it is handed, draws nothing of its own over it, and reads nothing of the user's.
constexpr CoreOption options[] = {
    {"config", "no"},
    {"load-scripts", "no"},
    {"ytdl", "no"},
    {"osc", "no"},
    {"osd-level", "0"},
    {"input-default-bindings", "no"},
    {"input-builtin-bindings", "no"},
    {"input-vo-keyboard", "no"},
    {"input-media-keys", "no"},
    {"terminal", "no"},
    {"vo", "libmpv"},
    {"idle", "yes"},
    {"pause", "yes"},
    // The end is a property, not the end of the file; the last picture stays.
    {"keep-open", "yes"},
    {"sub-auto", "no"},
    {"audio-file-auto", "no"},
    {"cover-art-auto", "no"},
    {"sid", "no"},
    {"sub-visibility", "no"},
    {"secondary-sub-visibility", "no"},
    // While it draws no text the fonts of the system need not be read for it.
    {"sub-font-provider", "none"},
    {"osd-font-provider", "none"},
    {"audio-display", "no"},
    {"audio-fallback-to-null", "yes"},
    // Where no hardware decodes; movies for which that is too few are loaded with more.
    {"vd-lavc-threads", "1"},
    {"video-timing-offset", "0"},
    {"volume-max", "150"},
    {"network-timeout", "10"},
    // A connection that breaks, or cannot be made, is made again after 0, 1, 3 and 7 seconds.
    {"stream-lavf-o", "reconnect=1,reconnect_on_network_error=1,reconnect_delay_max=7"},
    // The fastest conversion that is still right for pictures shown at their own size.
    {"sws-fast", "yes"},
    {"sws-scaler", "bilinear"},
    {"sws-allow-zimg", "no"},
    {"demuxer-max-bytes", "32MiB"},
    {"demuxer-max-back-bytes", "8MiB"},
    {"keepaspect", "no"},
    {"hr-seek-framedrop", "yes"},
    {"audio-client-name", "Lumaro"},
};

} // namespace

std::unique_ptr<MpvCore> MpvCore::create(GraphicsDevice device) {
    const MpvLibrary* mpv = MpvLibrary::get();
    mpv_handle* handle = mpv ? mpv->mpv_create() : nullptr;
    if (!handle) {
        Log::write(QStringLiteral("ERROR: MpvCore: Can't create the player. Memory full?"));
        return nullptr;
    }
    std::unique_ptr<MpvCore> core(new MpvCore(handle));
    const auto set = [&](const CoreOption& option) {
        if (const int error = mpv->mpv_set_option_string(handle, option.name, option.value); error < 0) {
            Log::write(QStringLiteral("ERROR: MpvCore: Option %1: %2")
                           .arg(QString::fromUtf8(option.name), QString::fromUtf8(mpv->mpv_error_string(error))));
        }
    };
    for (const CoreOption& option : options)
        set(option);
    for (const char* const option : scriptOptions)
        mpv->mpv_set_option_string(handle, option, "no");
    // Of movies from a network; loadOptions says what local ones may open.
    const QByteArray protocols = QByteArray("protocol_whitelist=[") + partProtocols + ']';
    set({"demuxer-lavf-o", protocols.constData()});
    set({mpv->dialect().backgroundOption, "#000000"});
    // By itself libmpv would try SDL's way to sound last, which starts a session bus where there is none. A library
    // that was built without one of these keeps its own choice.
    mpv->mpv_set_option_string(handle, "ao", "pipewire,pulse,alsa,jack");
    for (const CoreOption& option : decodingOptions(device))
        set(option);
    if (const int error = mpv->mpv_initialize(handle); error < 0) {
        Log::write(QStringLiteral("ERROR: MpvCore: The player does not start: %1")
                       .arg(QString::fromUtf8(mpv->mpv_error_string(error))));
        return nullptr;
    }
    if (!core->useSoftware())
        return nullptr;
    return core;
}

MpvCore::MpvCore(mpv_handle* handle)
    : _handle(handle) {}

MpvCore::~MpvCore() {
    const MpvLibrary& mpv = *MpvLibrary::get();
    mpv.mpv_set_wakeup_callback(_handle, nullptr, nullptr);
    if (_isOpenGL)
        freeRender(); // in its context, which belongs to this thread
    if (_render)
        mpv.mpv_render_context_set_update_callback(_render, nullptr, nullptr);
    // A file on a drive that hangs holds the core up for good. It is left behind then: another takes its place, or the
    // process ends, for which nobody waits noticeably longer than for others.
    constexpr double timeout = 0.25;
    background::runFor<bool>(_isStuck ? 0 : timeout, [handle = _handle, render = _render] {
        const MpvLibrary& library = *MpvLibrary::get();
        if (render)
            library.mpv_render_context_free(render);
        library.mpv_terminate_destroy(handle);
        return true;
    });
}

void MpvCore::freeRender() {
    if (!_render)
        return;
    const MpvLibrary& mpv = *MpvLibrary::get();
    mpv.mpv_render_context_set_update_callback(_render, nullptr, nullptr);
    mpv.mpv_render_context_free(_render);
    _render = nullptr;
}

bool MpvCore::createRender(mpv_render_param* parameters) {
    const MpvLibrary& mpv = *MpvLibrary::get();
    freeRender();
    if (const int error = mpv.mpv_render_context_create(&_render, _handle, parameters); error < 0) {
        _render = nullptr;
        Log::write(QStringLiteral("ERROR: MpvCore: Can't create the renderer: %1")
                       .arg(QString::fromUtf8(mpv.mpv_error_string(error))));
        return false;
    }
    if (_pictures)
        mpv.mpv_render_context_set_update_callback(_render, &MpvCore::update, this);
    return true;
}

bool MpvCore::useSoftware() {
    mpv_render_param parameters[] = {{MPV_RENDER_PARAM_API_TYPE, const_cast<char*>(MPV_RENDER_API_TYPE_SW)},
                                     {MPV_RENDER_PARAM_INVALID, nullptr}};
    _isOpenGL = false;
    return createRender(parameters);
}

bool MpvCore::useOpenGL(GLContext& context) {
    // Mesa's software drawing (seen in 25.0) turns what scalers with tables of weights make black, in whole or in
    // parts, from one start to the next; and it is too slow for them.
    if (context.drawing() == GLContext::Drawing::byProcessor)
        for (const char* const scaler : {"scale", "cscale", "dscale"})
            MpvLibrary::get()->mpv_set_option_string(_handle, scaler, "bilinear");
    mpv_opengl_init_params opengl{};
    opengl.get_proc_address = [](void* self, const char* name) {
        return static_cast<GLContext*>(self)->procAddress(name);
    };
    opengl.get_proc_address_ctx = &context;
    mpv_render_param parameters[] = {{MPV_RENDER_PARAM_API_TYPE, const_cast<char*>(MPV_RENDER_API_TYPE_OPENGL)},
                                     {MPV_RENDER_PARAM_OPENGL_INIT_PARAMS, &opengl},
                                     {MPV_RENDER_PARAM_INVALID, nullptr}};
    _isOpenGL = true;
    return createRender(parameters);
}

void MpvCore::setCallbacks(std::function<void()> events, std::function<void()> pictures) {
    _events = std::move(events);
    _pictures = std::move(pictures);
    const MpvLibrary& mpv = *MpvLibrary::get();
    mpv.mpv_set_wakeup_callback(_handle, &MpvCore::wakeup, this);
    mpv.mpv_render_context_set_update_callback(_render, &MpvCore::update, this);
}

void MpvCore::wakeup(void* self) {
    static_cast<MpvCore*>(self)->_events();
}

void MpvCore::update(void* self) {
    static_cast<MpvCore*>(self)->_pictures();
}

} // namespace platform
