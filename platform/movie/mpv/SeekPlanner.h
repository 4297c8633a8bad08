// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

namespace platform {

/// Decides which seek to send next, one at a time: the keyframe before a new place first, so that a frame of it
/// stands at once, then the exact place. Places asked for while a seek is under way replace each other, so that a
/// dragged slider builds up no backlog. A value; places are in seconds.
class SeekPlanner {
public:
    enum class Kind { keyframe, exact };
    struct Seek {
        double seconds;
        Kind kind;
        friend bool operator==(const Seek&, const Seek&) = default;
    };
    /// What is wanted of a place: its exact frame at once (sound alone has no keyframes), that of the keyframe before
    /// it and then the exact one, or that of the keyframe only.
    enum class Precision { exact, keyframeThenExact, keyframeOnly };

    /// Asks for a place; answers the seek to send now, if any.
    std::optional<Seek> request(double seconds, Precision precision);
    /// The seek sent last is done: answers the next one to send.
    std::optional<Seek> done();
    /// The movie is not ready for seeks: keeps the place asked for until done() is called.
    void hold() { _busy = true; }
    /// Held, or a seek is under way.
    bool isBusy() const { return _busy; }

    friend bool operator==(const SeekPlanner&, const SeekPlanner&) = default;

private:
    struct Request {
        double seconds;
        Precision precision;
        friend bool operator==(const Request&, const Request&) = default;
    };
    std::optional<Seek> begin(const Request& request);

    bool _busy = false;
    std::optional<Request> _waiting; // asked for while busy
    std::optional<double> _refine;   // the exact place after the keyframe under way
};

} // namespace platform
