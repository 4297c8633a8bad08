// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/QVStyledOverlay.h"

#include <vector>

/// A styled overlay that carries others. Hiding it hides its children; showing it again brings back those that were
/// visible and those that were asked to show themselves meanwhile, each for its hold where it had one. Main thread.
class QVParentOverlay : public QVStyledOverlay {
public:
    QVParentOverlay(const Environment& environment, const platform::Rect& contentRect, const QString& style);

    void show() override;
    void hide() override;
    /// The window's children stay above it of their own accord: there is nothing to restore.
    void orderChildrens() {}

protected:
    const char* logName() const override { return "QVParentOverlay"; }
    void childWaits(const QVStyledOverlay& child) override;
    void childWasHidden(const QVStyledOverlay& child) override;
    void mouseMoved(const platform::MouseEvent& event) override;
    void mouseUp(const platform::MouseEvent& event) override;

private:
    struct HiddenChild {
        const QVStyledOverlay* overlay; // may have gone: looked up before use
        Showing showing;
    };
    /// To be shown with this window.
    std::vector<HiddenChild> _hiddenChldrens;
};
