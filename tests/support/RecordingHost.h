// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/window/WindowHost.h"

#include <QStringList>

#include <vector>

/// A host that shows nothing and keeps all that it is told: the changes in their order, and the areas to be drawn
/// again.
class RecordingHost final : public platform::WindowHost {
public:
    /// "frame", "alpha", "level", "ordered" and "key", in the order in which they came.
    QStringList changes;
    /// The areas that were marked, also those that had to be painted at once.
    std::vector<platform::Rect> areas;
    /// How many of those had to be painted at once.
    int paintedAtOnce = 0;
    bool pointerHidden = false;
    double ratio = 1;

    void frameChanged() override { changes << "frame"; }
    void alphaChanged() override { changes << "alpha"; }
    void levelChanged() override { changes << "level"; }
    void orderedChanged() override { changes << "ordered"; }
    void displayNeeded(const platform::Rect& rect) override { areas.push_back(rect); }
    void displayNow(const platform::Rect& rect) override {
        ++paintedAtOnce;
        areas.push_back(rect);
    }
    void makeKeyAndOrderFront() override { changes << "key"; }
    void setPointerHidden(bool hidden) override { pointerHidden = hidden; }
    /// Those that were opened.
    std::vector<platform::Menu*> menus;
    void showMenu(platform::Menu& menu) override { menus.push_back(&menu); }
    double pixelRatio() const override { return ratio; }
};
