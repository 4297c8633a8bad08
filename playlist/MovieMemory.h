// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

class QVMovie;

/// What is remembered of movies from one run to the next, as the playlist asks it. By itself nothing is. Main thread.
class MovieMemory {
public:
    virtual ~MovieMemory() = default;

    /// The current movie is about to give way, to another one or to its own beginning.
    virtual void movieWillChange() {}
    /// Where a movie that was opened anew goes on, in its units; 0 for its beginning.
    /// The movie may be given what else is remembered of it.
    virtual std::int32_t placeOf(QVMovie&) { return 0; }
};
