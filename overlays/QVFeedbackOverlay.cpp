// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVFeedbackOverlay.h"

#include "context/QVAppContext.h"
#include "settings/QVUserDefaults.h"

namespace {
std::unique_ptr<QVFeedbackOverlay> sShared;
} // namespace

QVFeedbackOverlay& QVFeedbackOverlay::sharedFeedbackOverlay() {
    if (!sShared)
        sShared = std::make_unique<QVFeedbackOverlay>(Environment{platform::RunLoop::main(),
                                                                  platform::NotificationCenter::defaultCenter(),
                                                                  QVUserDefaults::standardUserDefaults()},
                                                      *gAppController->window());
    return *sShared;
}

void QVFeedbackOverlay::destroyShared() {
    sShared.reset();
}

QVFeedbackOverlay::QVFeedbackOverlay(const Environment& environment, platform::Window& parent)
    : QVTextOverlay(environment, parent, kQVFeedbackOverlayStyle) {
    orderFront();
}

void QVFeedbackOverlay::postFeedback(const QString& message) {
    if (!environment().settings.boolForKey(kQVDisplayFeedback))
        return;
    setText(message);
    autopop();
}
