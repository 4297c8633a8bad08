// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVParentOverlay.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t initialCapacity = 10;

std::vector<QVStyledOverlay*> overlaysAbove(const platform::Window& parent) {
    std::vector<QVStyledOverlay*> overlays;
    for (platform::Window* child : parent.childWindows()) {
        if (auto* overlay = dynamic_cast<QVStyledOverlay*>(child))
            overlays.push_back(overlay);
    }
    return overlays;
}

} // namespace

QVParentOverlay::QVParentOverlay(const Environment& environment, const platform::Rect& contentRect,
                                 const QString& style)
    : QVStyledOverlay(environment, contentRect, style) {
    _hiddenChldrens.reserve(initialCapacity);
}

void QVParentOverlay::hide() {
    for (QVStyledOverlay* child : overlaysAbove(*this)) {
        if (child->isVisible())
            _hiddenChldrens.push_back(child);
        child->hide();
    }
    QVStyledOverlay::hide();
}

void QVParentOverlay::show() {
    QVStyledOverlay::show();
    const auto remembered = std::exchange(_hiddenChldrens, {});
    // A child may have gone in the meantime.
    for (QVStyledOverlay* child : overlaysAbove(*this)) {
        if (std::ranges::find(remembered, child) != remembered.end())
            child->show();
    }
}

void QVParentOverlay::mouseMoved(const platform::MouseEvent& event) {
    QVStyledOverlay::mouseMoved(event);
    orderChildrens();
}

void QVParentOverlay::mouseUp(const platform::MouseEvent& event) {
    QVStyledOverlay::mouseUp(event);
    orderChildrens();
}
