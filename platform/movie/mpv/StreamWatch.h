// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

namespace platform {

/// What is known of a movie that comes from a network, by what the core tells: how far it has arrived, whether its
/// connection holds, and where a live one is. A value; times are seconds of the movie, `now` is the run loop's.
class StreamWatch {
public:
    /// Holds; broke, and is being made again; broke, and is made again when the user wants it.
    enum class Connection { steady, broken, lost };
    /// So long a broken one is tried to make again.
    static constexpr double timeout = 30;

    Connection connection() const { return _connection; }
    /// Where the core's buffer ends; 0 while it does not say.
    double arrivedUntil() const { return _arrived.value_or(0); }

    /// The core's buffer ends there, none where it has none. Answers whether more of the movie has come.
    bool arrived(std::optional<double> until);
    /// The connection broke, or could not be made. Answers whether that is news.
    bool broke(double now);
    /// The user wants it tried again.
    void tryAgain(double now);
    /// Answers whether it has been broken for too long by now, which makes it lost.
    bool giveUp(double now);

    /// A live movie begins to play: what comes now is what there is of it.
    void liveAt(double time, double now) { _live = time - now; }
    /// By how much the place is behind what is live now; none before it was said.
    std::optional<double> behindLive(double time, double now) const;

private:
    Connection _connection = Connection::steady;
    double _brokenSince = 0;
    std::optional<double> _arrived;
    std::optional<double> _live; // a place, less the moment at which it was live
};

} // namespace platform
