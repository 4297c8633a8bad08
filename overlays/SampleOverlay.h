// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"

#include <QString>

#include <memory>

class PictureGeometry;
class QVChildOverlay;

namespace platform {
class Window;
} // namespace platform

/// An overlay of the style that a selector key names, above a window, with something to say: what the style's own
/// overlay looks like. It is shown. Null for the main window's style. The window and the picture outlive it.
std::unique_ptr<QVChildOverlay> makeSampleOverlay(const Environment& environment, platform::Window& window,
                                                  const PictureGeometry& picture, const QString& key);
