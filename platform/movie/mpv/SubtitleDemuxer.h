// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/SubtitlePackets.h"

namespace platform {

/// What ReadSubtitlePackets says, by libavformat, from memory.
bool readSubtitlePackets(const QByteArray& utf8, const char* format, const std::atomic<bool>& cancelled,
                         const TakeSubtitlePacket& take);

} // namespace platform
