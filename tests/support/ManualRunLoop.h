// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/RunLoop.h"

#include <cstdint>
#include <memory>
#include <vector>

/// A run loop whose time stands still until the test moves it.
class ManualRunLoop final : public platform::RunLoop {
public:
    ~ManualRunLoop() override;

    double now() const override { return _now; }
    QDateTime date() const override;
    void perform(std::function<void()> work, double delay) override;
    [[nodiscard]] std::unique_ptr<platform::Timer> schedule(double interval, bool repeats,
                                                            std::function<void()> work) override;

    /// Lets that many seconds pass: what becomes due runs in the order of its time, and of its scheduling where the
    /// times are equal, with now() standing at its time. May be called from inside a callback.
    void advance(double seconds);
    /// Runs what is due now.
    void runPending() { advance(0); }
    /// How many timers and performs still wait.
    std::size_t pendingCount();

private:
    struct Work;
    class ManualTimer;
    std::shared_ptr<Work> add(Work work);

    std::vector<std::shared_ptr<Work>> _waiting;
    double _now = 0;
    std::uint64_t _scheduled = 0;
};
