// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/CommandTarget.h"
#include "context/PointerHiding.h"
#include "playlist/OpenPanel.h"

#include <string>
#include <vector>

/// A movie controller that records what it is asked.
class RecordingCommands final : public CommandTarget {
public:
    /// The codes performed.
    std::vector<std::int32_t> actions;
    std::vector<MouseGesture> gestures;
    bool isForceMuted = false;
    /// A real one, which is asked instead of this one.
    CommandTarget* target = nullptr;

    void performAction(std::int32_t action, Feedback feedback) override {
        actions.push_back(action);
        if (target)
            target->performAction(action, feedback);
    }
    /// The names performed.
    std::vector<std::string> names;
    void performCommand(std::string_view name, Feedback feedback) override {
        names.emplace_back(name);
        if (target)
            target->performCommand(name, feedback);
    }
    bool processKeyboardEvent(const platform::KeyEvent& event) override {
        return target && target->processKeyboardEvent(event);
    }
    void processMouseGesture(MouseGesture gesture) override {
        gestures.push_back(gesture);
        if (target)
            target->processMouseGesture(gesture);
    }
    bool forceMuted() const override { return target ? target->forceMuted() : isForceMuted; }
    void setForceMuted(bool muted) override {
        isForceMuted = muted;
        if (target)
            target->setForceMuted(muted);
    }
};

/// Counts how often the panel was asked for.
class RecordingOpenPanel final : public OpenPanel {
public:
    int opens = 0;
    void doOpen() override { ++opens; }
};

/// Counts how often the pointer's hiding was put off.
class RecordingPointer final : public PointerHiding {
public:
    int cursorHides = 0;
    void scheduleCursorHide() override { ++cursorHides; }
};
