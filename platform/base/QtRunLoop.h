// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/RunLoop.h"

#include <QElapsedTimer>

namespace platform {

/// The run loop on Qt's event loop. Needs a QCoreApplication while anything is scheduled.
class QtRunLoop final : public RunLoop {
public:
    QtRunLoop();

    double now() const override;
    QDateTime date() const override;
    void perform(std::function<void()> work, double delay) override;
    std::unique_ptr<Timer> schedule(double interval, bool repeats, std::function<void()> work) override;

private:
    QElapsedTimer _clock;
};

} // namespace platform
