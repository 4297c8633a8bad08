// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/CommandTarget.h"

/// Passes on to the movie controller what the components that it is made from ask of it: they exist before it, and
/// after it has gone. Without it nothing is carried out. Main thread.
class CommandRelay final : public CommandTarget {
public:
    /// Null for none.
    void setTarget(CommandTarget* target) { _target = target; }

    void performAction(std::int32_t action, Feedback feedback) override {
        if (_target)
            _target->performAction(action, feedback);
    }
    void performCommand(std::string_view name, Feedback feedback) override {
        if (_target)
            _target->performCommand(name, feedback);
    }
    bool processKeyboardEvent(const platform::KeyEvent& event) override {
        return _target && _target->processKeyboardEvent(event);
    }
    void processMouseGesture(MouseGesture gesture) override {
        if (_target)
            _target->processMouseGesture(gesture);
    }
    bool forceMuted() const override { return _target && _target->forceMuted(); }
    void setForceMuted(bool muted) override {
        if (_target)
            _target->setForceMuted(muted);
    }

private:
    CommandTarget* _target = nullptr;
};
