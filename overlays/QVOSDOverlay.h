// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/QVTextOverlay.h"

class OSDTexts;

/// The on-screen display: 0 nothing, 1 time, 2 movie, 3 subtitles, 4 looping, 5 volume. It follows what it shows and
/// stays until it is switched off. Main thread.
class QVOSDOverlay final : public QVTextOverlay {
public:
    /// The one of the process, made on the first call above the application's main window, if there is one.
    static QVOSDOverlay& sharedOSDOverlay();
    /// What the shared overlay shows, 0 when there is none; makes none.
    static int sharedDisplayType();
    /// Ends the shared overlay, at termination; the next call would make another.
    static void destroyShared();
    /// Who knows what is shown; null for nobody, and then texts are empty. The texts must outlive their use.
    static void setTexts(const OSDTexts* texts);

    explicit QVOSDOverlay(platform::Window* parent);

    int displayType() const { return _type; }
    /// The type that is shown already is not shown anew.
    void setDisplayType(int type);
    /// Moves to the next (+1) or previous (-1) type, around.
    void cycleDisplays(int step);
    /// Shows the text of the type, or hides; a type that there is not changes nothing.
    void updateDisplay();

    void currentMovieChanged(const QVPlaylistMovieChangedNotification& notification) override;
    void currentSubtitlesChanged(const QVSubtitlesChangedNotification& notification) override;

protected:
    const char* logName() const override { return "QVOSDOverlay"; }

private:
    void updateDisplayOfType(int type);

    int _type = 0;
    platform::Subscription _onMovieTime;
    platform::Subscription _onSubtitles;
    platform::Subscription _onVolume;
    platform::Subscription _onLooping;
};
