// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

namespace platform {

/// Decides which seek to send next, one at a time: the keyframe before a new place first, so that a picture of it
/// stands at once, then the exact place. Places asked for while a seek is under way replace each other, so that a
/// dragged slider builds up no backlog.
class SeekPlanner {
public:
    enum class Kind { keyframe, exact };
    struct Seek {
        double seconds;
        Kind kind;
        friend bool operator==(const Seek&, const Seek&) = default;
    };
    enum class Precision { exact, keyframeOnly };

    /// Asks for a place; answers the seek to send now, if any.
    std::optional<Seek> request(double seconds, Precision precision, bool hasPictures);
    /// The seek sent last is done: answers the next one to send.
    std::optional<Seek> done();
    /// Nothing is under way any more (another movie was loaded).
    void reset();
    /// The movie is not ready for seeks: keeps the place asked for until done() is called.
    void hold() { _busy = true; }
    bool isBusy() const { return _busy; }

private:
    struct Request {
        double seconds;
        Precision precision;
        bool hasPictures;
    };
    std::optional<Seek> begin(const Request& request);

    bool _busy = false;
    std::optional<Request> _waiting; // asked for while busy
    std::optional<double> _refine;   // the exact place after the keyframe under way
};

} // namespace platform
