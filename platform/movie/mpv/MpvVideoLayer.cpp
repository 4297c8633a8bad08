// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MpvVideoLayer.h"

#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/MpvCore.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QOpenGLFramebufferObject>
#include <QPointF>
#include <QRectF>

#include <cstddef>
#include <cstring>
#include <utility>

namespace platform {

namespace {

void copyPart(const QImage& from, const QRect& part, unsigned char* target, std::size_t stride) {
    for (int y = 0; y < part.height(); ++y) {
        std::memcpy(target + static_cast<std::size_t>(y) * stride,
                    from.constScanLine(part.y() + y) + static_cast<std::ptrdiff_t>(part.x()) * 4,
                    static_cast<std::size_t>(part.width()) * 4);
    }
}

// A first picture is scaled whole: larger ones, of which only a part is seen, are the core's work.
constexpr qint64 maximumFirstPixels = 16 << 20;

// Microseconds; half of a picture's time at 25 a second.
constexpr std::int64_t noticeablyLate = 20'000;

} // namespace

MpvVideoLayer::MpvVideoLayer() = default;

MpvVideoLayer::~MpvVideoLayer() = default;

void MpvVideoLayer::begin(const QSizeF& naturalSize, LastFrame last) {
    if (last == LastFrame::goes)
        dropLastFrame();
    else if (_coreHasPicture || (_first && _last.isNull())) // else none of the movie before was seen yet
        keepLastFrame();
    _coreHasPicture = false;
    _counts = {};
    _first = nullptr;
    _naturalSize = naturalSize;
}

bool MpvVideoLayer::setDynamicRange(const DynamicRange& range) {
    if (range == _dynamicRange)
        return false;
    _dynamicRange = range;
    _wide = {};
    makeToneMapping();
    return true;
}

void MpvVideoLayer::makeToneMapping() {
    // In OpenGL libmpv's renderer maps the colours.
    _toneMapping = _dynamicRange.isHigh() && !_gl
                       ? std::async(std::launch::async, &ToneMapping::of, _dynamicRange).share()
                       : std::shared_future<std::shared_ptr<const ToneMapping>>();
}

void MpvVideoLayer::setNaturalSize(const QSizeF& naturalSize) {
    _naturalSize = naturalSize;
    _cropPicture = QRect(); // it is told anew
}

void MpvVideoLayer::keepLastFrame() {
    dropLastFrame();
    if (_shown.visible.isEmpty())
        return;
    if (_gl) {
        if (!_gl->makeCurrent())
            return;
        auto kept = std::make_unique<QOpenGLFramebufferObject>(_shown.visible.size());
        if (!kept->isValid() || !renderCoreGL(_shown.picture, kept->size(), kept->handle()))
            return;
        _lastGL = std::move(kept);
    } else {
        QImage kept(_shown.visible.size(), QImage::Format_RGB32);
        if (kept.isNull() || !renderOwn(_shown, kept.bits(), static_cast<std::size_t>(kept.bytesPerLine())))
            return;
        _last = std::move(kept);
    }
    _lastShown = _shown;
}

void MpvVideoLayer::dropLastFrame() {
    _last = QImage();
    if (_lastGL && _gl)
        _gl->makeCurrent();
    _lastGL = nullptr;
}

void MpvVideoLayer::coreFrameReady() {
    _coreHasPicture = true;
    _first = nullptr; // as large as a decoder's picture, and not shown any more
    dropLastFrame();
}

QRect MpvVideoLayer::place(const QRect& asked) const {
    const bool lastStandsIn = !_coreHasPicture && !_last.isNull() && !showsFirst(asked);
    return lastStandsIn ? _lastShown.picture : asked;
}

bool MpvVideoLayer::showsFirst(const QRect& picture) const {
    return _first && qint64{picture.width()} * picture.height() <= maximumFirstPixels;
}

bool MpvVideoLayer::renderFirst(const QRect& picture, const QRect& visible, unsigned char* target,
                                std::size_t stride) const {
    if (picture == visible)
        return _first->render(visible.size(), target, stride);
    QImage whole(picture.size(), QImage::Format_RGB32);
    if (whole.isNull() || !_first->render(whole.size(), whole.bits(), static_cast<std::size_t>(whole.bytesPerLine())))
        return false;
    copyPart(whole, visible.translated(-picture.topLeft()), target, stride);
    return true;
}

void MpvVideoLayer::count() {
    const MpvLibrary& mpv = *MpvLibrary::get();
    mpv_render_frame_info next{};
    if (mpv.mpv_render_context_get_info(_core->renderContext(), {MPV_RENDER_PARAM_NEXT_FRAME_INFO, &next}) < 0)
        return;
    constexpr std::uint64_t again = MPV_RENDER_FRAME_INFO_REDRAW | MPV_RENDER_FRAME_INFO_REPEAT;
    // The first one of a movie was taken from the core before it could be shown.
    const bool isNew = (next.flags & MPV_RENDER_FRAME_INFO_PRESENT) && !(next.flags & again);
    if (!isNew && _counts.shown > 0)
        return;
    ++_counts.shown;
    // One of a movie that rests has no time.
    if (next.target_time > 0 && mpv.mpv_get_time_us(_core->handle()) - next.target_time > noticeablyLate)
        ++_counts.late;
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
    if (_coreHasPicture || showsFirst(picture)) {
        _shown = {picture, visible};
        if (!renderOwn(_shown, target, stride))
            return false;
        if (!_coreHasPicture) {
            // The core takes a moment to place its picture anew: it is told before its first one comes.
            if (_core)
                setCrop(picture, visible);
            dropLastFrame();
            if (_firstShown)
                _firstShown();
        }
        return true;
    }
    // Where the window has changed meanwhile, what was seen of the picture may not be all that would be seen now.
    const QRect part = visible.intersected(_lastShown.visible);
    if (_last.isNull() || part != visible)
        return false;
    copyPart(_last, part.translated(-_lastShown.visible.topLeft()), target, stride);
    return true;
}

bool MpvVideoLayer::renderOwn(const Shown& shown, unsigned char* target, std::size_t stride) {
    const auto& [picture, visible] = shown;
    if (!_coreHasPicture)
        return renderFirst(picture, visible, target, stride);
    setCrop(picture, visible);
    return renderCore(visible.size(), target, stride);
}

bool MpvVideoLayer::renderCore(const QSize& size, unsigned char* target, std::size_t stride) {
    if (!_toneMapping.valid())
        return renderCore(size, "bgr0", target, stride);
    const auto width = static_cast<std::size_t>(size.width());
    _wide.resize(width * static_cast<std::size_t>(size.height()));
    const std::size_t wideStride = width * sizeof(_wide[0]);
    if (!renderCore(size, "rgba64", _wide.data(), wideStride))
        return false;
    _toneMapping.get()->map(size, reinterpret_cast<const std::uint8_t*>(_wide.data()), wideStride, target, stride);
    return true;
}

bool MpvVideoLayer::renderCore(const QSize& size, const char* format, void* target, std::size_t stride) {
    count();
    int sides[2] = {size.width(), size.height()};
    int block = 0;
    mpv_render_param parameters[] = {{MPV_RENDER_PARAM_SW_SIZE, sides},
                                     {MPV_RENDER_PARAM_SW_FORMAT, const_cast<char*>(format)},
                                     {MPV_RENDER_PARAM_SW_STRIDE, &stride},
                                     {MPV_RENDER_PARAM_SW_POINTER, target},
                                     {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &block},
                                     {MPV_RENDER_PARAM_INVALID, nullptr}};
    return MpvLibrary::get()->mpv_render_context_render(_core->renderContext(), parameters) >= 0;
}

QImage MpvVideoLayer::still(const QSize& bounds) {
    // The core's crop is a matter of shares: it holds for the smaller target, too.
    const QSize shown = _coreHasPicture ? _shown.visible.size() : _shown.picture.size();
    if (shown.isEmpty() || (!_coreHasPicture && !_first))
        return {};
    const QSize size = shown.scaled(shown.boundedTo(bounds), Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    if (_gl && _coreHasPicture) {
        if (!_gl->makeCurrent())
            return {};
        QOpenGLFramebufferObject target(size);
        return target.isValid() && renderCoreGL(size, target.handle())
                   ? target.toImage().convertToFormat(QImage::Format_RGB32)
                   : QImage();
    }
    QImage still(size, QImage::Format_RGB32);
    if (still.isNull())
        return {};
    const auto stride = static_cast<std::size_t>(still.bytesPerLine());
    const bool rendered =
        _coreHasPicture ? renderCore(size, still.bits(), stride) : _first->render(size, still.bits(), stride);
    return rendered ? still : QImage();
}

void MpvVideoLayer::setCore(MpvCore* core) {
    // The core's renderer ends with it, or is made anew, in the context that it belongs to.
    if (_gl && _gl->makeCurrent() && core)
        core->useOpenGL(*_gl);
    _core = core;
}

bool MpvVideoLayer::beginGL(GLContext& context) {
    _gl = &context;
    makeToneMapping();
    if (!_core)
        return true;
    const bool taken = _gl->makeCurrent() && _core->useOpenGL(context);
    if (taken && _rendererRenewed)
        _rendererRenewed();
    return taken;
}

void MpvVideoLayer::endGL() {
    dropLastFrame();
    if (_core && _gl && _gl->makeCurrent())
        _core->useSoftware();
    _gl = nullptr;
    makeToneMapping();
}

bool MpvVideoLayer::renderGL(const QRect& picture, const QSize& target, unsigned framebuffer) {
    if (_coreHasPicture) {
        _shown = {picture, QRect(QPoint(0, 0), target)};
        return renderCoreGL(picture, target, framebuffer);
    }
    if (_core)
        setCrop(picture, QRect(QPoint(0, 0), target)); // as for the first picture above
    if (!_lastGL || _lastGL->size() != target)
        return false;
    QOpenGLExtraFunctions* gl = QOpenGLContext::currentContext()->extraFunctions();
    gl->glBindFramebuffer(GL_READ_FRAMEBUFFER, _lastGL->handle());
    gl->glBindFramebuffer(GL_DRAW_FRAMEBUFFER, framebuffer);
    gl->glBlitFramebuffer(0, 0, target.width(), target.height(), 0, 0, target.width(), target.height(),
                          GL_COLOR_BUFFER_BIT, GL_NEAREST);
    return true;
}

bool MpvVideoLayer::renderCoreGL(const QRect& picture, const QSize& target, unsigned framebuffer) {
    if (!_core->renderContext())
        return false;
    setCrop(picture, QRect(QPoint(0, 0), target));
    return renderCoreGL(target, framebuffer);
}

bool MpvVideoLayer::renderCoreGL(const QSize& target, unsigned framebuffer) {
    if (!_core->renderContext())
        return false;
    count();
    mpv_opengl_fbo fbo{static_cast<int>(framebuffer), target.width(), target.height(), 0};
    int flip = 1;
    int block = 0;
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
