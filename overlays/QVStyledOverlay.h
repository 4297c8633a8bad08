// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/Notifications.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"
#include "platform/window/Window.h"
#include "settings/OverlayStyle.h"
#include "settings/QVPreferencesChangedNotification.h"

#include <QString>

#include <memory>

class QVFadeCalculator;

/// A window that fades between the two opacities of its style. Showing and hiding never orders it in or out; a hidden
/// overlay rests at its smallest opacity. Everything works over a style that is not registered: such an overlay stays
/// transparent. Main thread.
class QVStyledOverlay : public platform::Window {
public:
    enum class FadingState { idle, fadingIn, fadingOut, delaying };
    /// How long an overlay is to be seen once it is shown: until it is hidden, or for its hold.
    enum class Showing { lasting, popping };

    /// `contentRect` is in screen coordinates, `style` a style selector key. The overlay starts hidden.
    QVStyledOverlay(const Environment& environment, const platform::Rect& contentRect, const QString& style);
    ~QVStyledOverlay() override;

    /// The selector key.
    const QString& style() const { return _style; }

    /// Fades in from the opacity that stands now. Under a parent that is not visible it waits: the parent shows it when
    /// it is shown itself, unless it is hidden before.
    virtual void show();
    /// Fades out from the opacity that stands now.
    virtual void hide();
    /// Hides without a fade.
    void hideAtOnce();
    /// Shows, holds for fadingDelayInterval() and hides; while it is held, the hold starts again.
    void autopop();
    /// Starts the hold, or starts it again.
    void delay();
    FadingState fadingState() const { return _fadingState; }
    Showing showing() const { return _autopop ? Showing::popping : Showing::lasting; }

    /// Seconds; a fade that runs keeps the interval with which it began.
    double fadingInInterval() const { return _fadingInInterval; }
    void setFadingInInterval(double seconds) { _fadingInInterval = seconds; }
    virtual double fadingOutInterval() const { return _fadingOutInterval; }
    void setFadingOutInterval(double seconds) { _fadingOutInterval = seconds; }
    double fadingDelayInterval() const { return _fadingDelayInterval; }
    void setFadingDelayInterval(double seconds) { _fadingDelayInterval = seconds; }

    /// Opacities, 0 to 1; setting one moves the other where the smallest would lie above the largest. An overlay that
    /// is hidden follows at its next showing.
    float maxAlpha() const { return _maxAlpha; }
    void setMaxAlpha(float alpha);
    float minAlpha() const { return _minAlpha; }
    void setMinAlpha(float alpha);

    /// Ordered in, and shown last, not hidden last: whatever its opacities are, an overlay that fades in, is held or
    /// rests shown is visible, and one that fades out no longer is.
    virtual bool isVisible() const;

    /// Takes over what changed of this overlay's style. True when every changed key was handled.
    virtual bool preferencesChanged(const QVPreferencesChangedNotification& notification);
    virtual void movieViewSizeChanged(const QVMovieViewSizeChangedNotification& notification);
    virtual void currentMovieChanged(const QVPlaylistMovieChangedNotification& notification);
    virtual void currentSubtitlesChanged(const QVSubtitlesChangedNotification& notification);

protected:
    /// The class's name, for the log.
    virtual const char* logName() const { return "QVStyledOverlay"; }

    /// The ends of the fades. Who extends them calls them first.
    virtual void postFadeIn();
    virtual void postFadeOut();

    /// Seconds for which what pops up is held.
    virtual double holdInterval() const { return _fadingDelayInterval; }

    /// The opacity below which the overlay does not rest shown, whatever its style says.
    virtual float smallestShownAlpha() const { return 0; }

    /// A child was asked to show itself while this window was not visible, or was hidden. Nothing here.
    virtual void childWaits(const QVStyledOverlay& child);
    virtual void childWasHidden(const QVStyledOverlay& child);

    const Environment& environment() const { return _environment; }
    /// The style as it stands in the settings now; all zero when it is not registered.
    OverlayStyle styleValues() const;
    /// Takes one value over from the style. False for a key that is of no concern. Who extends it hands on what it
    /// does not know.
    virtual bool takeStyle(const QString& key, const OverlayStyle& style);

private:
    void postDelay();
    void doFadeIn(const QVFadeCalculator& calculator);
    void doFadeOut(const QVFadeCalculator& calculator);
    float restingAlpha() const;
    QVStyledOverlay* parentOverlay() const;
    void setFadeTimer(std::unique_ptr<platform::Timer> timer) { _fadingTimer = std::move(timer); }

    Environment _environment;
    QString _style;
    std::unique_ptr<platform::Timer> _fadingTimer; // the one fade or hold that runs
    FadingState _fadingState = FadingState::idle;
    double _fadingInInterval = 0;
    double _fadingOutInterval = 0;
    double _fadingDelayInterval = 0;
    bool _autopop = false;
    bool _shownLast = false;
    float _maxAlpha = 0;
    float _minAlpha = 0;
    platform::Subscription _onPreferences;
    platform::Subscription _onMovieViewSize;
    platform::Subscription _onCurrentMovie;
};
