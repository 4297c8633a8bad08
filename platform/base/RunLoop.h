// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

#include <functional>
#include <memory>

namespace platform {

/// A scheduled call. Destroying the handle ends it, so an owner that goes away is never called again.
class Timer {
public:
    Timer() = default;
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;
    virtual ~Timer() = default;

    /// Ends the timer; it never fires again. Calling it twice does nothing.
    virtual void invalidate() = 0;
    /// True until the timer was invalidated or, for a one-shot timer, until it has fired.
    virtual bool isValid() const = 0;
    /// Moves the next firing to `seconds` from now. Does nothing on an invalid timer.
    virtual void rearm(double seconds) = 0;
    /// Runs the callback now, as if the timer were due; a one-shot timer is spent by it.
    virtual void fire() = 0;
};

/// The main thread's run loop: the one source of time above the platform layer. Every call but now() and post() is for
/// the main thread.
class RunLoop {
public:
    RunLoop() = default;
    RunLoop(const RunLoop&) = delete;
    RunLoop& operator=(const RunLoop&) = delete;
    virtual ~RunLoop() = default;

    /// The loop in use. One must have been installed with setMain before the first call.
    static RunLoop& main();
    /// Installs the loop (the process's at start, a manual one in tests); null takes it away again.
    static void setMain(RunLoop* loop);

    /// Monotonic seconds since an unspecified start. Any thread, while the loop stays installed.
    virtual double now() const = 0;
    /// The wall clock.
    virtual QDateTime date() const = 0;
    /// Calls `work` once, `delay` seconds from now, never from inside this call, also while a modal panel is up.
    virtual void perform(std::function<void()> work, double delay = 0) = 0;
    /// Calls `work` once on the main thread, as soon as the loop gets to it, never from inside this call; works posted
    /// by one thread run in the order of their posting. Any thread: this is how another thread says that it is done.
    /// A thread that posts must have ended before the loop goes; what has not run by then never does. `work` should
    /// hold no owner of what it calls (a weak pointer does), for it is destroyed on whichever thread drops it.
    virtual void post(std::function<void()> work) = 0;
    /// Calls `work` every `interval` seconds, or once. Timers run on under modal panels. A late repeating timer skips
    /// the firings that it missed. The callback may destroy or re-arm its own timer.
    [[nodiscard]] virtual std::unique_ptr<Timer> schedule(double interval, bool repeats,
                                                          std::function<void()> work) = 0;
};

} // namespace platform
