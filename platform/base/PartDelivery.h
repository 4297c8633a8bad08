// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/RunLoop.h"

#include <functional>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace platform {

/// Values that another thread makes one after the other for the main thread, which takes those that are there whenever
/// it likes, and does not wait. Held by shared pointers.
template <class Value>
class PartDelivery : public std::enable_shared_from_this<PartDelivery<Value>> {
public:
    /// Any thread.
    void add(Value value) {
        const std::scoped_lock lock(_mutex);
        _values.push_back(std::move(value));
        wake();
    }
    /// No more come. Any thread, once.
    void end() {
        const std::scoped_lock lock(_mutex);
        _hasEnded = true;
        wake();
    }

    struct Part {
        std::vector<Value> values;
        /// These are the last ones.
        bool isLast = false;
    };
    /// What has come since; possibly nothing. Main thread.
    Part take() {
        const std::scoped_lock lock(_mutex);
        return {std::exchange(_values, {}), _hasEnded};
    }
    /// Calls `ready` from the run loop, once, when there is something to take or the end has come. Main thread.
    void whenReady(std::function<void()> ready) {
        _ready = std::move(ready);
        const std::scoped_lock lock(_mutex);
        _isAwaited = true;
        if (!_values.empty() || _hasEnded)
            wake();
    }
    /// Nobody is called any more, and the run loop is left alone. Main thread.
    void abandon() {
        {
            const std::scoped_lock lock(_mutex);
            _isAwaited = false;
        }
        _ready = nullptr;
    }

private:
    /// Posted under the lock, so that nothing is once the receiver has abandoned it: the run loop may go then.
    void wake() {
        if (!std::exchange(_isAwaited, false))
            return;
        RunLoop::main().post([weak = this->weak_from_this()] {
            const auto self = weak.lock();
            // The receiver may abandon the delivery, or let go of it.
            if (const auto ready = self ? std::exchange(self->_ready, nullptr) : nullptr)
                ready();
        });
    }

    std::mutex _mutex;
    std::vector<Value> _values;
    bool _hasEnded = false;
    bool _isAwaited = false;
    std::function<void()> _ready; // the main thread's alone
};

} // namespace platform
