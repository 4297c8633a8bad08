// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/mpv/FirstFrame.h"
#include "platform/movie/mpv/ToneMapping.h"
#include "platform/window/VideoLayer.h"

#include <QImage>
#include <QRect>
#include <QSizeF>

#include <cstdint>
#include <functional>
#include <future>
#include <memory>
#include <utility>
#include <vector>

class QOpenGLFramebufferObject;

namespace platform {

class MpvCore;

/// The picture of the core, rendered into the host's pixels or framebuffer. Until the core has one of the movie, its
/// first picture stands in, which was decoded beside the core; and until that has come, the last picture of the movie
/// before, where that stood. Main thread.
class MpvVideoLayer final : public VideoLayer {
public:
    MpvVideoLayer();
    ~MpvVideoLayer() override;

    /// Before the core loads anything; null before it ends.
    void setCore(MpvCore* core);
    enum class LastFrame { stays, goes };
    /// A movie of that displayed size is about to be loaded: no picture of the core's is of it yet.
    void begin(const QSizeF& naturalSize, LastFrame last);
    /// How the core's pictures code light. The software renderer leaves that as it is: a high range is mapped here.
    /// Answers whether it is another one than before.
    bool setDynamicRange(const DynamicRange& range);
    /// The core's pictures are of that size from here on.
    void setNaturalSize(const QSizeF& naturalSize);
    /// No picture of the movie comes that the last one would stand in for.
    void dropLastFrame();
    void setFirst(std::shared_ptr<const FirstFrame> first) { _first = std::move(first); }
    /// Called each time the first picture was rendered.
    void setFirstShown(std::function<void()> shown) { _firstShown = std::move(shown); }
    /// Called when the core renders by another renderer than before: it lets go of the picture meanwhile.
    void setRendererRenewed(std::function<void()> renewed) { _rendererRenewed = std::move(renewed); }
    bool usesOpenGL() const { return _gl != nullptr; }
    /// Pictures of the core's since begin(): all, and those that came noticeably after their time.
    struct Counts {
        std::int64_t shown = 0;
        std::int64_t late = 0;
    };
    const Counts& counts() const { return _counts; }
    /// The core's picture is of the movie from here on.
    void coreFrameReady();
    bool hasCoreFrame() const { return _coreHasPicture; }

    QRect place(const QRect& asked) const override;
    bool renderPixels(const QRect& picture, const QRect& visible, unsigned char* pixels, std::size_t stride) override;
    bool beginGL(GLContext& context) override;
    void endGL() override;
    bool renderGL(const QRect& picture, const QSize& target, unsigned framebuffer) override;
    QImage still(const QSize& bounds) override;
    void skip() override;

private:
    /// What was rendered, and the part of it that is seen.
    struct Shown {
        QRect picture;
        QRect visible;
    };
    void makeToneMapping();
    /// Keeps what is shown now.
    void keepLastFrame();
    bool showsFirst(const QRect& picture) const;
    /// The movie's own picture; `target` is the address of the visible part.
    bool renderOwn(const Shown& shown, unsigned char* target, std::size_t stride);
    bool renderFirst(const QRect& picture, const QRect& visible, unsigned char* target, std::size_t stride) const;
    bool renderCore(const QSize& size, unsigned char* target, std::size_t stride);
    bool renderCore(const QSize& size, const char* format, void* target, std::size_t stride);
    bool renderCoreGL(const QRect& picture, const QSize& target, unsigned framebuffer);
    bool renderCoreGL(const QSize& target, unsigned framebuffer);
    void setCrop(const QRect& picture, const QRect& visible);
    void setProperty(const char* name, double value);
    /// Counts the one that is rendered next, unless it is shown already.
    void count();

    MpvCore* _core = nullptr;
    GLContext* _gl = nullptr;
    bool _coreHasPicture = false;
    std::shared_ptr<const FirstFrame> _first;
    std::function<void()> _firstShown;
    std::function<void()> _rendererRenewed;
    Shown _shown; // last
    Counts _counts;
    // The last picture of the movie before: in one of the two, or none is kept.
    QImage _last;
    std::unique_ptr<QOpenGLFramebufferObject> _lastGL;
    Shown _lastShown;
    QSizeF _naturalSize;
    DynamicRange _dynamicRange;
    // Made on a thread; none for the standard range, and in OpenGL.
    std::shared_future<std::shared_ptr<const ToneMapping>> _toneMapping;
    std::vector<std::uint64_t> _wide; // a picture before the mapping
    QRect _cropPicture;
    QRect _cropVisible;
};

} // namespace platform
