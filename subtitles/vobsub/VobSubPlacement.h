// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/vobsub/ControlSequences.h"
#include "subtitles/vobsub/VobSubIndex.h"

#include <QRectF>

namespace VobSubPlacement {

/// Where a picture stands in the frame of its index, with y upwards from the frame's bottom: scaled, aligned and moved
/// as the index says. In single precision.
QRectF place(const SubpictureControl::Rect& rect, const VobSubIndex& index);

} // namespace VobSubPlacement
