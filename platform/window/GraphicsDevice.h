// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace platform {

/// Whether there is a graphics device that could render or decode: asking OpenGL or the decoders instead takes a tenth
/// of a second where there is none, and loads the drivers. Any thread; `devices` is the system's folder of devices.
bool hasGraphicsDevice(const std::filesystem::path& devices = "/dev");

} // namespace platform
