// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/QVStyledOverlay.h"

#include <vector>

/// A styled overlay that carries others. Hiding it hides its children; showing it again brings back those that were
/// visible. Main thread.
class QVParentOverlay : public QVStyledOverlay {
public:
    QVParentOverlay(const Environment& environment, const platform::Rect& contentRect, const QString& style);

    void show() override;
    void hide() override;
    /// The window's children stay above it of their own accord: there is nothing to restore.
    void orderChildrens() {}

protected:
    const char* logName() const override { return "QVParentOverlay"; }
    void mouseMoved(const platform::MouseEvent& event) override;
    void mouseUp(const platform::MouseEvent& event) override;

private:
    std::vector<const platform::Window*> _hiddenChldrens; // visible when this was hidden; looked up before use
};
