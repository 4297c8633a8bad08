// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/FileIntake.h"
#include "context/Environment.h"
#include "playback/DropTarget.h"
#include "playback/StandingMessage.h"

#include <cstdint>

/// Takes what is dragged onto the window: files, folders and addresses. While it hovers, the screen says whether it
/// would replace the list, be added to it or, being subtitles, to the movie. Main thread.
class Drops final : public DropTarget {
public:
    /// Both outlive it; the feedback is not used before something is dragged in.
    struct Collaborators {
        FileIntake& files;
        FeedbackDisplay& feedback;
    };
    Drops(const Environment& environment, const Collaborators& collaborators);

    std::uint32_t draggingEntered(const platform::DraggingInfo& info) override;
    std::uint32_t draggingUpdated(const platform::DraggingInfo& info) override;
    void draggingExited() override;
    bool performDragOperation(const platform::DraggingInfo& info) override;

private:
    Collaborators _with;
    StandingMessage _hint;
};
