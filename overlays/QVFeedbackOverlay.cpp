// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVFeedbackOverlay.h"

#include "platform/base/UserDefaults.h"
#include "settings/SettingsKeys.h"

#include <utility>

namespace {
std::function<QVFeedbackOverlay&()> sShared;
} // namespace

QVFeedbackOverlay& QVFeedbackOverlay::sharedFeedbackOverlay() {
    return sShared();
}

void QVFeedbackOverlay::setShared(std::function<QVFeedbackOverlay&()> overlay) {
    sShared = std::move(overlay);
}

QVFeedbackOverlay::QVFeedbackOverlay(const Environment& environment, platform::Window& parent)
    : QVTextOverlay(environment, parent, kQVFeedbackOverlayStyle, LongLines::shortened) {
    orderFront();
}

void QVFeedbackOverlay::postFeedback(const QString& message) {
    if (!environment().settings.boolForKey(kQVDisplayFeedback))
        return;
    setText(message);
    autopop();
}
