// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/qt/OpenGLContext.h"

#include <QByteArray>
#include <QOpenGLFunctions>

namespace platform {

namespace {

/// A drawing made by the processor: slower than rendering without OpenGL.
bool isSoftwareRenderer(const QByteArray& name) {
    const QByteArray lower = name.toLower();
    return lower.isEmpty() || lower.contains("llvmpipe") || lower.contains("softpipe") || lower.contains("swrast");
}

} // namespace

bool OpenGLContext::create() {
    if (!_context.create())
        return false;
    _offscreen.setFormat(_context.format());
    _offscreen.create();
    if (!makeCurrent())
        return false;
    const auto* const name = reinterpret_cast<const char*>(_context.functions()->glGetString(GL_RENDERER));
    _drawing = isSoftwareRenderer(name) ? Drawing::byProcessor : Drawing::byDevice;
    return true;
}

} // namespace platform
