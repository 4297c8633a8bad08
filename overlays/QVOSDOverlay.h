// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/OnScreenDisplay.h"
#include "overlays/QVTextOverlay.h"

#include <functional>

class OSDTexts;

/// The on-screen display. It follows what it shows and stays until it is switched off. Main thread.
class QVOSDOverlay final : public QVTextOverlay, public OnScreenDisplay {
public:
    /// The one of the process, as the composition gives it. Components are handed theirs.
    static QVOSDOverlay& sharedOSDOverlay();
    /// By the composition; null before its overlay goes.
    static void setShared(std::function<QVOSDOverlay&()> overlay);

    /// The texts outlive the overlay.
    QVOSDOverlay(const Environment& environment, platform::Window& parent, const OSDTexts& texts);

    int displayType() const override { return _type; }
    void setDisplayType(int type) override;
    void cycleDisplays(int step) override;
    /// Shows the text of the type, or hides; a type that there is not changes nothing.
    void updateDisplay();

    void currentMovieChanged(const QVPlaylistMovieChangedNotification& notification) override;
    void currentSubtitlesChanged(const QVSubtitlesChangedNotification& notification) override;

protected:
    const char* logName() const override { return "QVOSDOverlay"; }

private:
    void updateDisplayOfType(int type);

    QString textOfType(int type) const;

    const OSDTexts& _texts;
    int _type = 0;
    platform::Subscription _onMovieTime;
    platform::Subscription _onSubtitles;
    platform::Subscription _onVolume;
    platform::Subscription _onLooping;
};
