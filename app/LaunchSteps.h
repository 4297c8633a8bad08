// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The steps of launch and termination that are components of their own: first-time configuration, donation prompt,
/// version check, panels. Those that do not exist do nothing. Main thread.
class LaunchSteps {
public:
    virtual ~LaunchSteps() = default;

    virtual void runFirstTimeConfig() {}
    virtual void askDonation() {}
    virtual bool shouldCheckLatestVersion() { return false; }
    virtual void checkLatestVersion() {}
    /// Shows the help panel until it is closed.
    virtual void runHelpPanel() {}
    /// Shows the panel of the whole playlist until it is closed.
    virtual void runPlaylistPanel() {}
    /// Shows the preferences, or brings them to the front. They stay until the user closes them, or closePreferences().
    virtual void showPreferences() {}
    virtual void closePreferences() {}
};
