// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/window/VideoLayer.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>

namespace platform {

/// A window's OpenGL context. Before the window exists, and for what is not painting, it is current on a surface of its
/// own. Main thread.
class OpenGLContext final : public GLContext {
public:
    /// Once. False where there is no OpenGL; else it is current.
    bool create();
    QOpenGLContext& context() { return _context; }

    /// False also when the context is lost, as when a graphics device was reset.
    bool makeCurrent() override { return _context.makeCurrent(&_offscreen); }
    void* procAddress(const char* name) override { return reinterpret_cast<void*>(_context.getProcAddress(name)); }
    Drawing drawing() override { return _drawing; }

private:
    QOpenGLContext _context;
    QOffscreenSurface _offscreen;
    Drawing _drawing = Drawing::byProcessor;
};

} // namespace platform
