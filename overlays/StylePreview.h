// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "context/Notifications.h"
#include "overlays/FadeDemonstration.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"

#include <memory>
#include <optional>

class PictureGeometry;
class QVChildOverlay;

namespace platform {
class Window;
} // namespace platform

/// Keeps a style on the screen while somebody changes it (QVOverlayStyleEditedNotification): above a window stands a
/// sample of its overlay as long as none of the player's own overlays shows the style. Those never learn of it. Main
/// thread.
class StylePreview {
public:
    /// The window and the picture outlive it.
    StylePreview(const Environment& environment, platform::Window& window, const PictureGeometry& picture);
    ~StylePreview();

private:
    void edited(const QVOverlayStyleEditedNotification& notification);
    void visibilityChanged(const QVStyledOverlay& overlay);
    void open(const QString& key);
    void close();
    bool isShownByPlayer() const;
    /// Makes way for an overlay of the player's.
    void yield();
    void returnLater();

    Environment _environment;
    platform::Window& _window;
    const PictureGeometry& _picture;
    QString _key;                            // of the style that is being changed; null without one
    std::unique_ptr<QVChildOverlay> _sample; // made with the first page; it may still fade out after its page
    std::optional<FadeDemonstration> _fades;
    std::unique_ptr<platform::Timer> _return;
    platform::Subscription _onEdited;
    platform::Subscription _onVisibility; // while a page is open, and the sample is there
};
