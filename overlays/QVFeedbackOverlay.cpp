// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVFeedbackOverlay.h"

#include "platform/base/UserDefaults.h"
#include "settings/SettingsKeys.h"

#include <algorithm>
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

void QVFeedbackOverlay::withdrawFeedback(const QString& message) {
    if (isVisible() && text() == message)
        hide();
}

double QVFeedbackOverlay::holdInterval() const {
    constexpr double charactersASecond = 20;
    const double ofStyle = fadingDelayInterval();
    return text().contains(u'\n') ? std::max(static_cast<double>(text().size()) / charactersASecond, ofStyle) : ofStyle;
}
