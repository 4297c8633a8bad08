// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/mpv/FirstFrame.h"
#include "platform/window/VideoLayer.h"

#include <QSizeF>

#include <functional>
#include <memory>
#include <utility>

namespace platform {

class MpvCore;

/// The picture of the core, rendered into the host's pixels or framebuffer. Until the core has one of the movie, the
/// first picture that was decoded while the movie was opened stands in its place. Main thread.
class MpvVideoLayer final : public VideoLayer {
public:
    /// Before the core loads anything; null before it ends.
    void setCore(MpvCore* core);
    /// A movie of that displayed size was loaded: no picture of the core's is of it yet.
    void begin(const QSizeF& naturalSize);
    void setFirst(std::shared_ptr<const FirstFrame> first) { _first = std::move(first); }
    /// Called each time the first picture was rendered.
    void setFirstShown(std::function<void()> shown) { _firstShown = std::move(shown); }
    bool usesOpenGL() const { return _gl != nullptr; }
    /// The core's picture is of the movie from here on.
    void coreFrameReady() { _coreHasPicture = true; }
    bool hasCoreFrame() const { return _coreHasPicture; }

    bool renderPixels(const QRect& picture, const QRect& visible, unsigned char* pixels, std::size_t stride) override;
    bool beginGL(GLContext& context) override;
    void endGL() override;
    bool renderGL(const QRect& picture, const QSize& target, unsigned framebuffer) override;
    void skip() override;

private:
    void setCrop(const QRect& picture, const QRect& visible);
    void setProperty(const char* name, double value);

    MpvCore* _core = nullptr;
    GLContext* _gl = nullptr;
    bool _coreHasPicture = false;
    std::shared_ptr<const FirstFrame> _first;
    std::function<void()> _firstShown;
    QSizeF _naturalSize;
    QRect _cropPicture;
    QRect _cropVisible;
};

} // namespace platform
