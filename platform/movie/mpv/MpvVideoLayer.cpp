// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MpvVideoLayer.h"

#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/MpvCore.h"

#include <QPointF>
#include <QRectF>

namespace platform {

void MpvVideoLayer::begin(const QSizeF& naturalSize) {
    _coreHasPicture = false;
    _first = nullptr;
    _naturalSize = naturalSize;
}

void MpvVideoLayer::setProperty(const char* name, double value) {
    MpvLibrary::get()->mpv_set_property_async(_core->handle(), 0, name, MPV_FORMAT_DOUBLE, &value);
}

/// Lets the core show just the visible part of a picture that is larger or smaller than what is rendered: from the size
/// at which it would fit the picture in, it is magnified and shifted.
void MpvVideoLayer::setCrop(const QRect& picture, const QRect& visible) {
    if (_cropPicture == picture && _cropVisible == visible)
        return;
    _cropPicture = picture;
    _cropVisible = visible;
    int keepAspect = picture == visible ? 0 : 1;
    MpvLibrary::get()->mpv_set_property_async(_core->handle(), 0, "keepaspect", MPV_FORMAT_FLAG, &keepAspect);
    if (!keepAspect || _naturalSize.isEmpty())
        return;
    const QSizeF fitting = _naturalSize.scaled(QSizeF(visible.size()), Qt::KeepAspectRatio);
    const QPointF shift = QRectF(picture).center() - QRectF(visible).center();
    setProperty("video-scale-x", picture.width() / fitting.width());
    setProperty("video-scale-y", picture.height() / fitting.height());
    setProperty("video-pan-x", shift.x() / picture.width());
    setProperty("video-pan-y", shift.y() / picture.height());
}

bool MpvVideoLayer::renderPixels(const QRect& picture, const QRect& visible, unsigned char* pixels,
                                 std::size_t stride) {
    unsigned char* const target =
        pixels + static_cast<std::size_t>(visible.y()) * stride + static_cast<std::size_t>(visible.x()) * 4;
    if (!_coreHasPicture) {
        if (!_first || picture != visible || !_first->render(visible.size(), target, stride))
            return false;
        if (_firstShown)
            _firstShown();
        return true;
    }
    setCrop(picture, visible);
    int size[2] = {visible.width(), visible.height()};
    int block = 0;
    mpv_render_param parameters[] = {{MPV_RENDER_PARAM_SW_SIZE, size},
                                     {MPV_RENDER_PARAM_SW_FORMAT, const_cast<char*>("bgr0")},
                                     {MPV_RENDER_PARAM_SW_STRIDE, &stride},
                                     {MPV_RENDER_PARAM_SW_POINTER, target},
                                     {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &block},
                                     {MPV_RENDER_PARAM_INVALID, nullptr}};
    return MpvLibrary::get()->mpv_render_context_render(_core->renderContext(), parameters) >= 0;
}

void MpvVideoLayer::setCore(MpvCore* core) {
    // The core's renderer ends with it, or is made anew, in the context that it belongs to.
    if (_gl && _gl->makeCurrent() && core)
        core->useOpenGL(*_gl);
    _core = core;
}

bool MpvVideoLayer::beginGL(GLContext& context) {
    _gl = &context;
    return !_core || (_gl->makeCurrent() && _core->useOpenGL(context));
}

void MpvVideoLayer::endGL() {
    if (_core && _gl && _gl->makeCurrent())
        _core->useSoftware();
    _gl = nullptr;
}

bool MpvVideoLayer::renderGL(const QRect& picture, const QSize& target, unsigned framebuffer) {
    if (!_coreHasPicture || !_core->renderContext())
        return false;
    mpv_opengl_fbo fbo{static_cast<int>(framebuffer), target.width(), target.height(), 0};
    int flip = 1;
    int block = 0;
    setCrop(picture, QRect(QPoint(0, 0), target));
    mpv_render_param parameters[] = {{MPV_RENDER_PARAM_OPENGL_FBO, &fbo},
                                     {MPV_RENDER_PARAM_FLIP_Y, &flip},
                                     {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &block},
                                     {MPV_RENDER_PARAM_INVALID, nullptr}};
    return MpvLibrary::get()->mpv_render_context_render(_core->renderContext(), parameters) >= 0;
}

void MpvVideoLayer::skip() {
    if (!_core || !_core->renderContext())
        return;
    // A picture that is not taken within a fifth of a second counts as dropped, and holds up the core meanwhile.
    int skipped = 1;
    mpv_render_param parameters[] = {{MPV_RENDER_PARAM_SKIP_RENDERING, &skipped}, {MPV_RENDER_PARAM_INVALID, nullptr}};
    MpvLibrary::get()->mpv_render_context_render(_core->renderContext(), parameters);
}

} // namespace platform
