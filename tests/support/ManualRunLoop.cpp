// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/ManualRunLoop.h"

#include <QTimeZone>

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

// Ten steps of 0.1 reach what is due after 1, though their sum is a little less.
constexpr double kTolerance = 1e-9;
constexpr double kShortestInterval = 1e-4;
// More than any test needs; work that schedules itself without delay would never end.
constexpr int kMostCallsPerAdvance = 1'000'000;

} // namespace

struct ManualRunLoop::Work {
    std::function<void()> call;
    double due = 0;
    double interval = 0;
    std::uint64_t order = 0;
    bool repeats = false;
    bool valid = true;
};

struct ManualRunLoop::State {
    std::vector<std::shared_ptr<Work>> waiting;
    double now = 0;
    std::uint64_t scheduled = 0;

    void arm(const std::shared_ptr<Work>& work, double seconds) {
        work->due = now + std::max(seconds, 0.0);
        work->order = ++scheduled;
        if (std::find(waiting.begin(), waiting.end(), work) == waiting.end())
            waiting.push_back(work);
    }

    void drop(const std::shared_ptr<Work>& work) {
        work->valid = false;
        std::erase(waiting, work);
    }

    void run(const std::shared_ptr<Work>& work) {
        if (work->repeats)
            arm(work, work->interval);
        else
            drop(work);
        // The callback may destroy its timer.
        const std::shared_ptr<Work> kept = work;
        kept->call();
    }
};

namespace {

class ManualTimer final : public platform::Timer {
public:
    ManualTimer(std::shared_ptr<ManualRunLoop::State> state, std::shared_ptr<ManualRunLoop::Work> work)
        : _state(std::move(state))
        , _work(std::move(work)) {}
    ~ManualTimer() override { _state->drop(_work); }

    void invalidate() override { _state->drop(_work); }
    bool isValid() const override { return _work->valid; }
    void rearm(double seconds) override {
        if (_work->valid)
            _state->arm(_work, seconds);
    }
    void fire() override {
        if (!_work->valid)
            return;
        const auto state = _state;
        const auto work = _work;
        state->run(work);
    }

private:
    std::shared_ptr<ManualRunLoop::State> _state;
    std::shared_ptr<ManualRunLoop::Work> _work;
};

} // namespace

ManualRunLoop::ManualRunLoop()
    : _state(std::make_shared<State>())
    , _dateAtStart(QDate(2026, 1, 1), QTime(12, 0), Qt::UTC) {}

ManualRunLoop::~ManualRunLoop() {
    _state->waiting.clear();
}

double ManualRunLoop::now() const {
    return _state->now;
}

QDateTime ManualRunLoop::date() const {
    return _dateAtStart.addMSecs(static_cast<qint64>(std::llround(_state->now * 1000.0)));
}

void ManualRunLoop::perform(std::function<void()> work, double delay) {
    auto once = std::make_shared<Work>();
    once->call = std::move(work);
    _state->arm(once, delay);
}

std::unique_ptr<platform::Timer> ManualRunLoop::schedule(double interval, bool repeats, std::function<void()> work) {
    auto timed = std::make_shared<Work>();
    timed->call = std::move(work);
    timed->repeats = repeats;
    timed->interval = repeats ? std::max(interval, kShortestInterval) : interval;
    _state->arm(timed, timed->interval);
    return std::make_unique<ManualTimer>(_state, timed);
}

void ManualRunLoop::advance(double seconds) {
    const auto state = _state;
    const double until = state->now + std::max(seconds, 0.0);
    for (int calls = 0; calls < kMostCallsPerAdvance; ++calls) {
        const auto next =
            std::min_element(state->waiting.begin(), state->waiting.end(), [](const auto& a, const auto& b) {
                return a->due != b->due ? a->due < b->due : a->order < b->order;
            });
        if (next == state->waiting.end() || (*next)->due > until + kTolerance) {
            state->now = std::max(state->now, until);
            return;
        }
        const std::shared_ptr<Work> work = *next;
        state->now = std::max(state->now, work->due);
        state->run(work);
    }
    qFatal("ManualRunLoop: %d calls in one advance; something schedules itself without delay", kMostCallsPerAdvance);
}

std::size_t ManualRunLoop::pendingCount() const {
    return _state->waiting.size();
}
