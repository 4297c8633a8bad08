// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace platform {

/// Whether each byte is below 128. As fast as memory; any thread.
bool isASCII(std::string_view bytes);

} // namespace platform
