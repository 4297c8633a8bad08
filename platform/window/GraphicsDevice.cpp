// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/GraphicsDevice.h"

#include <system_error>

namespace platform {

bool hasGraphicsDevice(const std::filesystem::path& devices) {
    std::error_code ignored;
    if (std::filesystem::exists(devices / "nvidiactl", ignored))
        return true;
    for (const auto& entry : std::filesystem::directory_iterator(devices / "dri", ignored)) {
        if (entry.path().filename().string().starts_with("renderD"))
            return true;
    }
    return false;
}

} // namespace platform
