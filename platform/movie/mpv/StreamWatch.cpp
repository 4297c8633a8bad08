// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/StreamWatch.h"

#include <algorithm>
#include <utility>

namespace platform {

bool StreamWatch::arrived(std::optional<double> until) {
    const std::optional<double> before = std::exchange(_arrived, until);
    // The first place after a jump may be one that has been there for long.
    const bool isMore = before && until && *until > *before;
    if (isMore)
        _connection = Connection::steady;
    return isMore;
}

bool StreamWatch::broke(double now) {
    if (_connection != Connection::steady)
        return false;
    _connection = Connection::broken;
    _brokenSince = now;
    return true;
}

void StreamWatch::tryAgain(double now) {
    _connection = Connection::steady;
    broke(now);
}

bool StreamWatch::giveUp(double now) {
    if (_connection != Connection::broken || now - _brokenSince < timeout)
        return false;
    _connection = Connection::lost;
    return true;
}

std::optional<double> StreamWatch::behindLive(double time, double now) const {
    return _live ? std::optional(std::max(*_live + now - time, 0.0)) : std::nullopt;
}

} // namespace platform
