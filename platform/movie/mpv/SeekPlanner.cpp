// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/SeekPlanner.h"

#include <utility>

namespace platform {

std::optional<SeekPlanner::Seek> SeekPlanner::request(double seconds, Precision precision) {
    const Request wanted{seconds, precision};
    if (!_busy)
        return begin(wanted);
    _waiting = wanted;
    return std::nullopt;
}

std::optional<SeekPlanner::Seek> SeekPlanner::begin(const Request& request) {
    _busy = true;
    _refine.reset();
    if (request.precision == Precision::keyframeOnly)
        return Seek{request.seconds, Kind::keyframe};
    // The beginning is a keyframe.
    if (request.precision == Precision::exact || request.seconds <= 0)
        return Seek{request.seconds, Kind::exact};
    _refine = request.seconds;
    return Seek{request.seconds, Kind::keyframe};
}

std::optional<SeekPlanner::Seek> SeekPlanner::done() {
    _busy = false;
    if (_waiting)
        return begin(*std::exchange(_waiting, std::nullopt));
    if (!_refine)
        return std::nullopt;
    _busy = true;
    return Seek{*std::exchange(_refine, std::nullopt), Kind::exact};
}

} // namespace platform
