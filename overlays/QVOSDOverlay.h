// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/OnScreenDisplay.h"
#include "overlays/QVTextOverlay.h"

class OSDTexts;

/// The on-screen display. It follows what it shows and stays until it is switched off. Main thread.
class QVOSDOverlay final : public QVTextOverlay, public OnScreenDisplay {
public:
    /// The one of the process, made on the first call above the application's main window, if there is one.
    static QVOSDOverlay& sharedOSDOverlay();
    /// What the shared overlay shows, 0 when there is none; makes none.
    static int sharedDisplayType();
    /// Ends the shared overlay, at termination; the next call would make another.
    static void destroyShared();
    /// Who knows what is shown; null for nobody, and then texts are empty. The texts must outlive their use.
    static void setTexts(const OSDTexts* texts);

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
