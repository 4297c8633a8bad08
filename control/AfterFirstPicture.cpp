// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/AfterFirstPicture.h"

#include "context/Notifications.h"

#include <utility>

AfterFirstPicture::AfterFirstPicture(const Environment& environment, std::function<void()> work)
    : _loop(environment.loop)
    , _work(std::move(work)) {
    _picture = environment.notifications.observe<QVMovieInterestingTimeNotification>([this](const auto&) {
        // The picture is on its way to the screen: that comes first.
        _timer = _loop.schedule(0, false, [this] { run(); });
    });
    _timer = _loop.schedule(latest, false, [this] { run(); });
}

void AfterFirstPicture::run() {
    _picture = {};
    if (const auto work = std::exchange(_work, nullptr))
        work();
}
