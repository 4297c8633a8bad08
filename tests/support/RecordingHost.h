// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/window/WindowHost.h"

#include <vector>

/// A host that shows nothing and keeps the areas that were to be drawn again, and whether the pointer is hidden.
class RecordingHost final : public platform::WindowHost {
public:
    std::vector<platform::Rect> areas;
    bool pointerHidden = false;

    void frameChanged() override {}
    void alphaChanged() override {}
    void levelChanged() override {}
    void orderedChanged() override {}
    void displayNeeded(const platform::Rect& rect) override { areas.push_back(rect); }
    void makeKeyAndOrderFront() override {}
    void setPointerHidden(bool hidden) override { pointerHidden = hidden; }
    double pixelRatio() const override { return 1; }
};
