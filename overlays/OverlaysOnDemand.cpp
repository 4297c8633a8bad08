// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/OverlaysOnDemand.h"

#include "overlays/QVFeedbackOverlay.h"
#include "overlays/QVOSDOverlay.h"

FeedbackOnDemand::FeedbackOnDemand(const Environment& environment, platform::Window& parent)
    : _environment(environment)
    , _parent(parent) {}

FeedbackOnDemand::~FeedbackOnDemand() = default;

QVFeedbackOverlay& FeedbackOnDemand::overlay() const {
    if (!_overlay)
        _overlay = std::make_unique<QVFeedbackOverlay>(_environment, _parent);
    return *_overlay;
}

void FeedbackOnDemand::postFeedback(const QString& message) {
    overlay().postFeedback(message);
}

void FeedbackOnDemand::withdrawFeedback(const QString& message) {
    if (_overlay)
        _overlay->withdrawFeedback(message);
}

double FeedbackOnDemand::readingTime() const {
    return overlay().readingTime();
}

OSDOnDemand::OSDOnDemand(const Environment& environment, platform::Window& parent, const OSDTexts& texts)
    : _environment(environment)
    , _parent(parent)
    , _texts(texts) {}

OSDOnDemand::~OSDOnDemand() = default;

QVOSDOverlay& OSDOnDemand::overlay() {
    if (!_overlay)
        _overlay = std::make_unique<QVOSDOverlay>(_environment, _parent, _texts);
    return *_overlay;
}

int OSDOnDemand::displayType() const {
    return _overlay ? _overlay->displayType() : 0;
}

void OSDOnDemand::setDisplayType(int type) {
    if (type != displayType())
        overlay().setDisplayType(type);
}

void OSDOnDemand::cycleDisplays(int step) {
    overlay().cycleDisplays(step);
}
