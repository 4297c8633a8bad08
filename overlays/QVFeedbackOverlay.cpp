// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVFeedbackOverlay.h"

#include "app/settings/QVUserDefaults.h"
#include "app/settings/SettingsKeys.h"

QVFeedbackOverlay& QVFeedbackOverlay::sharedFeedbackOverlay() {
    static QVFeedbackOverlay overlay;
    return overlay;
}

void QVFeedbackOverlay::postFeedback(const QString& message) {
    if (QVUserDefaults::standardUserDefaults().boolForKey(kQVDisplayFeedback))
        _text = message;
}
