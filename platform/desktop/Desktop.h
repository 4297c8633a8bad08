// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"
#include "platform/desktop/FileChoice.h"
#include "platform/desktop/Power.h"
#include "platform/desktop/RemoteSource.h"
#include "platform/desktop/UserActivity.h"

#include <QString>
#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <functional>
#include <vector>

namespace platform {

/// A screen: its frame in screen coordinates (origin bottom left of the main screen, y up, points), and whether it is
/// one.
struct Screen {
    Rect frame;
    bool isScreen = true;
    std::uint32_t number = 0;
    QString name;
    friend bool operator==(const Screen&, const Screen&) = default;
};

/// What the desktop around the application offers. Main thread.
class Desktop : public UserActivity {
public:
    enum class AlertIcon { warning, information, question };
    struct Alert {
        QString title;
        QString message;
        QString defaultButton;
        /// Empty for none.
        QString alternateButton;
        QString otherButton;
        AlertIcon icon = AlertIcon::warning;
    };
    /// Shows a modal alert above everything and answers 1 for the default button, 0 for the alternate, -1 for the other
    /// one. Closing it counts as the other button where there is one, else as the alternate, else as the default.
    virtual int runAlert(const Alert& alert) = 0;
    /// Calls `work` once, from the run loop, as soon as no modal panel and no menu is up; not any more once the
    /// application is ending.
    virtual void whenNoPanelStands(std::function<void()> work) = 0;

    /// A modal panel to choose files or folders, or to name a new file. Cancelled when the application ends meanwhile.
    virtual FileChoice runOpenPanel(const FileQuestion& question) = 0;

    virtual void beep() = 0;

    /// The screens, the main one first.
    virtual std::vector<Screen> screens() const = 0;
    /// The brightness of a screen, 0 to 1; positive infinity when it cannot be read.
    virtual float brightness(const Screen& screen) const = 0;
    virtual void setBrightness(const Screen& screen, float brightness) = 0;

    /// Opens an address with the program that the user has for it; false when none could be started.
    virtual bool openURL(const QUrl& url) = 0;

    /// The modifier keys held now, in the masks of platform::modifier.
    virtual std::uint32_t modifierFlags() const = 0;

    virtual Power& power() = 0;
    virtual RemoteSource& remotes() = 0;

    /// Asks the application to end; the answer comes through the application's delegate.
    virtual void terminate() = 0;
    /// Whether it was asked and has not refused: panels are closed then without an answer.
    virtual bool isTerminating() const = 0;
    /// The answer to a termination that was put off.
    virtual void replyToApplicationShouldTerminate(bool terminate) = 0;
};

} // namespace platform
