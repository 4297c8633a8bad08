// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/NotificationCenter.h"

#include <optional>

/// How often a notification was posted, and the last one.
template <class Notification>
class Posts {
public:
    explicit Posts(platform::NotificationCenter& center)
        : _subscription(center.observe<Notification>([this](const Notification& posted) {
            ++count;
            last = posted;
        })) {}

    int count = 0;
    std::optional<Notification> last;

private:
    platform::Subscription _subscription;
};
