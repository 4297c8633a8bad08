// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace platform {

/// What the desktop tells the application. Main thread.
class ApplicationDelegate {
public:
    virtual ~ApplicationDelegate() = default;

    /// Before, and after, the event loop starts.
    virtual void applicationWillFinishLaunching() = 0;
    virtual void applicationDidFinishLaunching() = 0;
    /// A file to open: a path, or a URL with its scheme. Called once for each, at launch or later.
    virtual bool openFile(const QString& pathOrUrl) = 0;
    virtual void applicationWillBecomeActive() = 0;
    virtual void applicationDidBecomeActive() = 0;
    virtual void applicationWillResignActive() = 0;
    virtual void applicationDidChangeScreenParameters() = 0;

    enum class TerminateReply { cancel, now, later };
    /// With `later`, the application answers by Desktop::replyToApplicationShouldTerminate.
    virtual TerminateReply applicationShouldTerminate() = 0;
    /// There is nothing to draw on any longer, and the process ends when this returns: nobody is asked.
    virtual void applicationLostDisplay() = 0;
    /// The session is about to end, or wants what is being done to be on the disk in case it does: nobody is asked, and
    /// the application goes on until it is told to end.
    virtual void applicationSavesSession() = 0;
    /// The event loop has ended.
    virtual void applicationWillTerminate() = 0;
};

} // namespace platform
