// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRect>
#include <QSize>

#include <cstddef>

namespace platform {

/// A host's OpenGL context, to be made current outside of painting. Main thread.
class GLContext {
public:
    virtual ~GLContext() = default;
    virtual bool makeCurrent() = 0;
    virtual void* procAddress(const char* name) = 0;
    /// Who draws: a graphics device, or the processor in its place.
    enum class Drawing { byDevice, byProcessor };
    virtual Drawing drawing() = 0;
};

/// A picture that renders itself straight into a window host's target, below everything that is drawn over it.
/// All rectangles are whole device pixels of the target, origin top left, y down. Main thread.
class VideoLayer {
public:
    VideoLayer() = default;
    VideoLayer(const VideoLayer&) = delete;
    VideoLayer& operator=(const VideoLayer&) = delete;
    virtual ~VideoLayer() = default;

    /// Where the picture is to be rendered that its view wants at `asked`: there, unless another one stands in for it,
    /// which keeps its place. Asked before each rendering.
    virtual QRect place(const QRect& asked) const { return asked; }

    /// Puts the part `visible` of the picture, scaled so that the whole would fill `picture`, into `pixels`: the
    /// address of the target's top left pixel, 32 bits each in the order blue, green, red, unused, `stride` bytes a
    /// line. `visible` lies within both `picture` and the target. False when there is no picture: the host then fills
    /// `visible` with black.
    virtual bool renderPixels(const QRect& picture, const QRect& visible, unsigned char* pixels,
                              std::size_t stride) = 0;

    /// Rendering goes through this context from here on, which outlives the next endGL(). False when the layer cannot
    /// render with it; the host then goes on with renderPixels.
    virtual bool beginGL(GLContext& context) = 0;
    /// The context is about to end.
    virtual void endGL() = 0;
    /// The context is current: the picture into the framebuffer object `framebuffer` of `target` pixels. The state of
    /// OpenGL is left undefined.
    virtual bool renderGL(const QRect& picture, const QSize& target, unsigned framebuffer) = 0;

    /// A copy of what was rendered last, shrunk into `bounds` pixels where it is larger; a null image where no picture
    /// stands. Renders once more, and may take a picture that was due: the target is to be rendered anew after it.
    virtual QImage still(const QSize& bounds);

    /// A new picture is due since the last render. While the window is not shown the host calls skip() instead.
    virtual void skip() = 0;
};

inline QImage VideoLayer::still(const QSize&) {
    return {};
}

} // namespace platform
