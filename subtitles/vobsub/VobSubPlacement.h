// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"
#include "subtitles/vobsub/ControlSequences.h"
#include "subtitles/vobsub/VobSubIndex.h"

namespace VobSubPlacement {

/// Where a picture stands in the frame of its index, with y upwards from the frame's bottom: scaled, aligned and moved
/// as the index says. In single precision.
platform::Rect place(const SubpictureControl::Rect& rect, const VobSubIndex& index);

} // namespace VobSubPlacement
