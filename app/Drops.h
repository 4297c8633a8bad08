// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/FileIntake.h"
#include "context/Environment.h"
#include "playback/DropTarget.h"
#include "playback/StandingMessage.h"

#include <QStringList>

#include <cstdint>

/// Takes what is dragged onto the window: files, folders and addresses. While it hovers, the screen says whether it
/// would replace the list or be added to it. Main thread.
class Drops final : public DropTarget {
public:
    /// Both outlive it; the feedback is not used before something is dragged in.
    struct Collaborators {
        FileIntake& files;
        FeedbackDisplay& feedback;
    };
    /// The types are extensions in lower case, without dots: those of movies, and those of subtitles.
    Drops(const Environment& environment, const Collaborators& collaborators, QStringList types,
          QStringList subtitleTypes);

    std::uint32_t draggingEntered(const platform::DraggingInfo& info) override;
    std::uint32_t draggingUpdated(const platform::DraggingInfo& info) override;
    void draggingExited() override;
    bool performDragOperation(const platform::DraggingInfo& info) override;

private:
    bool areSubtitles(const QStringList& paths) const;

    Collaborators _with;
    QStringList _types;
    QStringList _subtitleTypes;
    StandingMessage _hint;
};
