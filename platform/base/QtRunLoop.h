// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/RunLoop.h"

#include <QElapsedTimer>
#include <QObject>

namespace platform {

/// The run loop on Qt's event loop, made on the main thread. Needs a QCoreApplication while anything is scheduled; what
/// is posted before there is one waits for it.
class QtRunLoop final : public RunLoop {
public:
    QtRunLoop();

    double now() const override;
    QDateTime date() const override;
    void perform(std::function<void()> work, double delay) override;
    void post(std::function<void()> work) override;
    std::unique_ptr<Timer> schedule(double interval, bool repeats, std::function<void()> work) override;

private:
    QElapsedTimer _clock;
    // Receives what is posted; it lives on the main thread.
    QObject _receiver;
};

} // namespace platform
