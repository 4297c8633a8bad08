// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <utility>

namespace platform {

/// Threads for work that may hang where nothing can interrupt it: a name that is looked up, a file system that does not
/// answer. Nobody has to wait for them: at the end of the process those that still hang are left behind.
namespace background {

/// Runs `work` on a thread of its own. It must hold all that it touches, for it may outlive whoever asked for it, and
/// may hand its result over by a Delivery only, which is abandoned before the run loop goes. Any thread.
void run(std::function<void()> work);

/// The same for a look that mostly takes no time: what it answers, or nothing when that took longer than so many
/// seconds. It goes on then. Any thread.
template <class Answer>
std::optional<Answer> runFor(double seconds, std::function<Answer()> look) {
    const auto answer = std::make_shared<std::promise<Answer>>();
    std::future<Answer> future = answer->get_future();
    run([answer, look = std::move(look)] { answer->set_value(look()); });
    if (future.wait_for(std::chrono::duration<double>(seconds)) != std::future_status::ready)
        return std::nullopt;
    return future.get();
}

/// Waits until all such threads have ended, at most that many seconds; false when some go on. The process must then end
/// without destroying its statics (std::_Exit).
bool waitUntilIdle(double seconds);

} // namespace background

} // namespace platform
