// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/PictureShape.h"

#include <QByteArray>

namespace platform {

/// What libmpv's filters are to do to the pictures of a movie.
struct VideoFilters {
    /// Quarter turns clockwise that the stored picture takes to stand upright.
    int fileTurns = 0;
    PictureShape shape = {};
    /// By filters: where the renderer does not do it.
    PictureAdjustment adjustment = {};
    /// Which pictures are made of fields.
    enum class Fields { none, marked, all };
    Fields fields = Fields::none;
};

/// As the option "vf" takes it; empty for nothing. Pure.
QByteArray filterOption(const VideoFilters& wanted);

} // namespace platform
