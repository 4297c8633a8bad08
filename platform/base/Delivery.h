// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/RunLoop.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

namespace platform {

/// A value that another thread makes for the main thread, which does not wait for it: whichever comes last, the value
/// or the one who receives it, brings them together. Held by shared pointers.
template <class Value>
class Delivery : public std::enable_shared_from_this<Delivery<Value>> {
public:
    /// Any thread, once.
    void deliver(Value value) {
        // Posted under the lock, so that none is once the receiver has abandoned it: the run loop may go then.
        const std::scoped_lock lock(_mutex);
        _value = std::move(value);
        _isThere.notify_all();
        if (!_isAwaited)
            return;
        RunLoop::main().post([weak = this->weak_from_this()] {
            if (const auto self = weak.lock())
                self->handOver();
        });
    }

    /// Waits until the value is there, at most that many seconds. Any thread.
    void wait(double seconds) {
        std::unique_lock lock(_mutex);
        _isThere.wait_for(lock, std::chrono::duration<double>(seconds), [this] { return _value.has_value(); });
    }

    /// Calls `receiver` with the value: now when it is there, else from the run loop. Main thread, once, with the run
    /// loop installed.
    void receive(std::function<void(Value)> receiver) {
        _receiver = std::move(receiver);
        {
            const std::scoped_lock lock(_mutex);
            if (!_value) {
                _isAwaited = true;
                return;
            }
        }
        handOver();
    }

    /// The receiver is not called any more, and the run loop is left alone. Main thread.
    void abandon() {
        {
            const std::scoped_lock lock(_mutex);
            _isAwaited = false;
        }
        _receiver = nullptr;
    }

private:
    void handOver() {
        std::optional<Value> value;
        {
            const std::scoped_lock lock(_mutex);
            value = std::exchange(_value, std::nullopt);
        }
        // The receiver may abandon the delivery, or let go of it.
        if (const auto receiver = std::exchange(_receiver, nullptr); receiver && value)
            receiver(std::move(*value));
    }

    std::mutex _mutex;
    std::condition_variable _isThere;
    std::optional<Value> _value;
    bool _isAwaited = false;
    std::function<void(Value)> _receiver; // the main thread's alone
};

} // namespace platform
