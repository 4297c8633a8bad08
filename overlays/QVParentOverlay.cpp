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
    const std::vector<HiddenChild> waiting = _hiddenChldrens;
    std::vector<HiddenChild> visible;
    for (QVStyledOverlay* child : overlaysAbove(*this)) {
        if (child->isVisible())
            visible.push_back({child, child->showing()});
        child->hide();
    }
    // Hiding a child by its owner makes it wait no longer; hiding it with this window does not.
    _hiddenChldrens = waiting;
    _hiddenChldrens.insert(_hiddenChldrens.end(), visible.begin(), visible.end());
    QVStyledOverlay::hide();
}

void QVParentOverlay::show() {
    QVStyledOverlay::show();
    const auto remembered = std::exchange(_hiddenChldrens, {});
    for (QVStyledOverlay* child : overlaysAbove(*this)) {
        const auto found = std::ranges::find(remembered, child, &HiddenChild::overlay);
        if (found == remembered.end())
            continue;
        if (found->showing == Showing::popping)
            child->autopop();
        else
            child->show();
    }
}

void QVParentOverlay::childWaits(const QVStyledOverlay& child) {
    childWasHidden(child);
    _hiddenChldrens.push_back({&child, child.showing()});
}

void QVParentOverlay::childWasHidden(const QVStyledOverlay& child) {
    std::erase_if(_hiddenChldrens, [&child](const HiddenChild& hidden) { return hidden.overlay == &child; });
}

void QVParentOverlay::mouseMoved(const platform::MouseEvent& event) {
    QVStyledOverlay::mouseMoved(event);
    orderChildrens();
}

void QVParentOverlay::mouseUp(const platform::MouseEvent& event) {
    QVStyledOverlay::mouseUp(event);
    orderChildrens();
}
