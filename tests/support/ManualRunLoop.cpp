// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/ManualRunLoop.h"

#include <QTimeZone>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

struct ManualRunLoop::Work {
    ManualRunLoop* loop;
    std::function<void()> call;
    double interval;
    bool repeats;
    double due = 0;
    std::uint64_t order = 0;
    bool valid = true;

    void arm(double seconds) {
        due = loop->_now + std::max(seconds, 0.0);
        order = ++loop->_scheduled;
    }
    void run() {
        valid = repeats;
        if (repeats)
            arm(interval);
        call();
    }
};

/// May end in its own callback, and after the loop.
class ManualRunLoop::ManualTimer final : public platform::Timer {
public:
    explicit ManualTimer(std::shared_ptr<Work> work)
        : _work(std::move(work)) {}
    ~ManualTimer() override { invalidate(); }

    void invalidate() override { _work->valid = false; }
    bool isValid() const override { return _work->valid; }
    void rearm(double seconds) override {
        if (_work->valid)
            _work->arm(seconds);
    }
    void fire() override {
        if (const auto work = _work; work->valid)
            work->run();
    }

private:
    std::shared_ptr<Work> _work;
};

ManualRunLoop::~ManualRunLoop() {
    for (const auto& work : _waiting)
        work->valid = false;
}

QDateTime ManualRunLoop::date() const {
    return QDateTime(QDate(2026, 1, 1), QTime(12, 0), QTimeZone::utc()).addMSecs(std::llround(_now * 1000));
}

std::shared_ptr<ManualRunLoop::Work> ManualRunLoop::add(Work work) {
    work.arm(work.interval);
    return _waiting.emplace_back(std::make_shared<Work>(std::move(work)));
}

void ManualRunLoop::perform(std::function<void()> work, double delay) {
    add({this, std::move(work), delay, false});
}

void ManualRunLoop::post(std::function<void()> work) {
    {
        const std::scoped_lock lock(_postedMutex);
        _posted.push_back(std::move(work));
    }
    _postedSomething.notify_all();
}

void ManualRunLoop::takePosted() {
    if (_holdsPosted)
        return;
    std::vector<std::function<void()>> posted;
    {
        const std::scoped_lock lock(_postedMutex);
        posted.swap(_posted);
    }
    for (auto& work : posted)
        perform(std::move(work), 0);
}

bool ManualRunLoop::runPosted(double timeout) {
    {
        std::unique_lock lock(_postedMutex);
        if (!_postedSomething.wait_for(lock, std::chrono::duration<double>(timeout),
                                       [this] { return !_posted.empty(); }))
            return false;
    }
    _holdsPosted = false;
    runPending();
    return true;
}

std::unique_ptr<platform::Timer> ManualRunLoop::schedule(double interval, bool repeats, std::function<void()> work) {
    return std::make_unique<ManualTimer>(
        add({this, std::move(work), repeats ? std::max(interval, 1e-4) : interval, repeats}));
}

void ManualRunLoop::advance(double seconds) {
    const double until = _now + std::max(seconds, 0.0);
    const auto isSooner = [](const auto& a, const auto& b) {
        return a->due != b->due ? a->due < b->due : a->order < b->order;
    };
    // Ten steps of 0.1 reach what is due after 1, though their sum is a little less.
    const double reached = until + 1e-9;
    while (pendingCount() > 0) {
        const std::shared_ptr<Work> work = *std::ranges::min_element(_waiting, isSooner);
        if (work->due > reached)
            break;
        _now = std::max(_now.load(), work->due);
        work->run();
    }
    _now = std::max(_now.load(), until);
}

std::size_t ManualRunLoop::pendingCount() {
    takePosted();
    std::erase_if(_waiting, [](const auto& work) { return !work->valid; });
    return _waiting.size();
}
