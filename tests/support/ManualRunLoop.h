// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/RunLoop.h"

#include <cstddef>
#include <memory>
#include <vector>

/// A run loop whose time stands still until the test moves it.
class ManualRunLoop final : public platform::RunLoop {
public:
    ManualRunLoop();
    ~ManualRunLoop() override;

    double now() const override;
    QDateTime date() const override;
    void perform(std::function<void()> work, double delay) override;
    [[nodiscard]] std::unique_ptr<platform::Timer> schedule(double interval, bool repeats,
                                                            std::function<void()> work) override;

    /// Lets that many seconds pass: what becomes due runs in the order of its time, and of its scheduling where the
    /// times are equal, with now() standing at its time. Work scheduled on the way takes part if it becomes due.
    /// May be called from inside a callback (a modal panel runs the loop that way).
    void advance(double seconds);
    /// Runs what is due now.
    void runPending() { advance(0); }
    /// How many timers and performs still wait.
    std::size_t pendingCount() const;

    struct Work;
    struct State;

private:
    std::shared_ptr<State> _state;
    QDateTime _dateAtStart;
};
