// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"

#include <functional>
#include <memory>

/// Work that the first picture should not wait for. It is done once, when a movie shows a picture, or without one when
/// `latest` seconds have passed. Main thread.
class AfterFirstPicture {
public:
    static constexpr double latest = 3;

    AfterFirstPicture(const Environment& environment, std::function<void()> work);

private:
    void run();

    platform::RunLoop& _loop;
    std::function<void()> _work;
    platform::Subscription _picture;
    std::unique_ptr<platform::Timer> _timer;
};
