// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVFeedbackOverlay.h"

#include "context/QVAppContext.h"
#include "settings/QVUserDefaults.h"

namespace {
std::unique_ptr<QVFeedbackOverlay> sShared;
} // namespace

QVFeedbackOverlay& QVFeedbackOverlay::sharedFeedbackOverlay() {
    if (!sShared)
        sShared = std::make_unique<QVFeedbackOverlay>(gAppController ? gAppController->window() : nullptr);
    return *sShared;
}

void QVFeedbackOverlay::destroyShared() {
    sShared.reset();
}

QVFeedbackOverlay::QVFeedbackOverlay(platform::Window* parent)
    : QVTextOverlay(parent, kQVFeedbackOverlayStyle) {
    orderFront();
}

void QVFeedbackOverlay::postFeedback(const QString& message) {
    if (!QVUserDefaults::standardUserDefaults().boolForKey(kQVDisplayFeedback))
        return;
    setText(message);
    autopop();
}
