// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace platform {
struct DraggingInfo;
} // namespace platform

/// Takes what is dragged onto the movie. The operations are those of platform::View. Main thread.
class DropTarget {
public:
    virtual ~DropTarget() = default;

    virtual std::uint32_t draggingEntered(const platform::DraggingInfo& info) = 0;
    virtual std::uint32_t draggingUpdated(const platform::DraggingInfo& info) = 0;
    /// What was dragged over it has gone without being dropped.
    virtual void draggingExited() = 0;
    virtual bool performDragOperation(const platform::DraggingInfo& info) = 0;
};
