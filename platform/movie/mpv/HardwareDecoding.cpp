// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/HardwareDecoding.h"

#include <QByteArrayView>

#include <utility>

namespace platform {

std::array<CoreOption, 2> decodingOptions(GraphicsDevice device) {
    const bool isThere = device == GraphicsDevice::some;
    return {CoreOption{"hwdec", isThere ? "auto-safe" : "no"},
            CoreOption{"gpu-hwdec-interop", isThere ? "auto" : "no"}};
}

bool isMissingDriver(const char* message) {
    return QByteArrayView(message).startsWith("Cannot load lib");
}

QString DecoderInUse::changed(const QString& decoder) {
    const bool wasHardware = std::exchange(_isHardware, decoder != QStringLiteral("no"));
    if (_isHardware)
        return QStringLiteral("MpvPlayer: The picture is decoded by hardware: %1").arg(decoder);
    return wasHardware ? QStringLiteral("MpvPlayer: The picture is decoded by software") : QString();
}

} // namespace platform
