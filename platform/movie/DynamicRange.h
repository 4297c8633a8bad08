// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace platform {

/// How a movie's picture codes light (ITU-R BT.2100), where that is more than an ordinary screen shows.
struct DynamicRange {
    enum class Transfer {
        standard, ///< What a screen shows as it is.
        pq,       ///< Perceptual quantization, SMPTE ST 2084: each code is an amount of light.
        hlg,      ///< Hybrid log-gamma: each code is a share of the light that the camera saw.
    };
    Transfer transfer = Transfer::standard;
    /// The brightest light in the movie, in candelas per square metre; 0 when it is not known.
    double peak = 0;

    bool isHigh() const { return transfer != Transfer::standard; }
    friend bool operator==(const DynamicRange&, const DynamicRange&) = default;
};

} // namespace platform
