// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/HeldSubtitles.h"

#include "context/Notifications.h"
#include "subtitles/QVSubtitlesController.h"

HeldSubtitles::HeldSubtitles(const Environment& environment, QVSubtitlesController& subtitles)
    : _subtitles(subtitles) {
    _onSelection = environment.notifications.observe<QVSubtitlesChangedNotification>([this](const auto& notification) {
        if (notification.current)
            drop();
    });
}

void HeldSubtitles::hold(const QString& path, std::uint32_t index) {
    _subtitles.setSavedPath(path, index);
}
