// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>

namespace platform {

/// An option of the core's and its value.
struct CoreOption {
    const char* name;
    const char* value;
};

/// Whether the computer has a device that may decode pictures (hasGraphicsDevice()).
enum class GraphicsDevice { none, some };

/// What the core is asked for: every decoder in hardware that is known to work, software behind it. Where there is no
/// device none is looked for, since that takes a while, loads drivers, and complains of those that are not there.
std::array<CoreOption, 2> decodingOptions(GraphicsDevice device);

/// Whether what a library says at the level of errors is only that a driver is not there: each way to hardware is
/// tried.
bool isMissingDriver(const char* message);

/// Follows which decoder the core uses. A value.
class DecoderInUse {
public:
    bool isHardware() const { return _isHardware; }
    /// The core's name of it ("vaapi"), "no" for software. Answers the line for the log, empty for none: software is
    /// worth one only where hardware gave up, be it in the middle of a movie.
    QString changed(const QString& decoder);

private:
    bool _isHardware = false;
};

} // namespace platform
