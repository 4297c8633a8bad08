// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <cstdint>

/// Where those believe a movie to stand who were told of it once, and since then reckon by its rate. A pure value:
/// positions are microseconds, times seconds of the run loop.
class ToldPosition {
public:
    /// By so much playing may be off the reckoning, seconds.
    static constexpr double tolerance = 0.25;
    /// Playing is not corrected more often, seconds: fast motion is always off.
    static constexpr double pace = 0.5;

    /// `rate` is 0 for one that rests.
    void tell(std::int64_t position, double rate, double now) {
        _position = position;
        _rate = rate;
        _toldAt = now;
    }
    /// Whether they must be told anew that it stands at `position`.
    bool isOff(std::int64_t position, double now) const {
        if (_rate == 0)
            return position != _position;
        return std::abs(off(position, _rate, now)) > tolerance && now - _toldAt >= pace;
    }
    /// The same where the rate has become another one at some moment since.
    bool isOffAtEither(std::int64_t position, double rate, double now) const {
        return std::abs(off(position, _rate, now)) > tolerance && std::abs(off(position, rate, now)) > tolerance;
    }

private:
    /// Seconds.
    double off(std::int64_t position, double rate, double now) const {
        constexpr double microseconds = 1e6;
        return static_cast<double>(position - _position) / microseconds - (now - _toldAt) * rate;
    }

    std::int64_t _position = 0;
    double _rate = 0;
    double _toldAt = 0;
};
