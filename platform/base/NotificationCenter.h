// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <memory>
#include <typeindex>
#include <unordered_map>
#include <vector>

namespace platform {

/// An observer's hold on the notification centre. The observation ends when this is destroyed or reset.
class Subscription {
public:
    Subscription() = default;
    void reset() { _entry.reset(); }

private:
    friend class NotificationCenter;
    explicit Subscription(std::shared_ptr<void> entry)
        : _entry(std::move(entry)) {}
    std::shared_ptr<void> _entry;
};

/// Typed notifications: one struct per notification. Delivery is synchronous, in the order of subscription, on the
/// main thread (asserted). Observers may come and go during a delivery: one that is added takes part from the next
/// post on, one that is removed is not called any more.
class NotificationCenter {
public:
    NotificationCenter() = default;
    NotificationCenter(const NotificationCenter&) = delete;
    NotificationCenter& operator=(const NotificationCenter&) = delete;

    /// The process's centre: the one that was installed, else one that is always there.
    static NotificationCenter& defaultCenter();
    /// Installs the centre; null takes it away again.
    static void setDefault(NotificationCenter* center);

    template <class Notification>
    [[nodiscard]] Subscription observe(std::function<void(const Notification&)> observer) {
        assertMainThread();
        auto entry = std::make_shared<std::function<void(const void*)>>(
            [observer = std::move(observer)](const void* raw) { observer(*static_cast<const Notification*>(raw)); });
        _observers[typeid(Notification)].push_back(entry);
        return Subscription(std::move(entry));
    }

    template <class Notification>
    void post(const Notification& notification) {
        deliver(typeid(Notification), &notification);
    }

private:
    using Entry = std::weak_ptr<std::function<void(const void*)>>;

    static void assertMainThread();
    void deliver(std::type_index type, const void* notification);

    std::unordered_map<std::type_index, std::vector<Entry>> _observers;
};

} // namespace platform
