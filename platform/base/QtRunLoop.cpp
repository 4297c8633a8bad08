// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/QtRunLoop.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

int toMilliseconds(double seconds) {
    // Rounded up: a timer that is due early would find its moment not yet come.
    return static_cast<int>(std::clamp(std::ceil(seconds * 1000.0), 0.0, 2.0e9));
}

class QtTimer final : public Timer {
public:
    QtTimer(double interval, bool repeats, std::function<void()> work)
        : _work(std::make_shared<std::function<void()>>(std::move(work)))
        , _interval(toMilliseconds(interval))
        , _repeats(repeats) {
        _timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&_timer, &QTimer::timeout, &_timer, [this] { fire(); });
        _timer.start(_interval);
    }

    void invalidate() override {
        _valid = false;
        _timer.stop();
    }

    bool isValid() const override { return _valid; }

    void rearm(double seconds) override {
        if (_valid)
            _timer.start(toMilliseconds(seconds));
    }

    void fire() override {
        if (!_valid)
            return;
        if (_repeats)
            _timer.start(_interval);
        else
            invalidate();
        // The callback may destroy this timer; the copy keeps what it runs on alive.
        const auto work = _work;
        (*work)();
    }

private:
    std::shared_ptr<std::function<void()>> _work;
    QTimer _timer;
    int _interval;
    bool _repeats;
    bool _valid = true;
};

} // namespace

QtRunLoop::QtRunLoop() {
    _clock.start();
}

double QtRunLoop::now() const {
    return static_cast<double>(_clock.nsecsElapsed()) * 1e-9;
}

QDateTime QtRunLoop::date() const {
    return QDateTime::currentDateTime();
}

void QtRunLoop::perform(std::function<void()> work, double delay) {
    QTimer::singleShot(toMilliseconds(delay), Qt::PreciseTimer, QCoreApplication::instance(), std::move(work));
}

void QtRunLoop::post(std::function<void()> work) {
    QMetaObject::invokeMethod(&_receiver, std::move(work), Qt::QueuedConnection);
}

std::unique_ptr<Timer> QtRunLoop::schedule(double interval, bool repeats, std::function<void()> work) {
    return std::make_unique<QtTimer>(interval, repeats, std::move(work));
}

} // namespace platform
