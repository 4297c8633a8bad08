// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <cstdint>
#include <optional>

/// How an Open URL panel was answered.
struct OpenURLAnswer {
    static constexpr std::int32_t accepted = 1;
    std::int32_t code = 0;
    /// As they were entered.
    QStringList strings;
    /// Whether the panel's check box says so.
    bool isAddingChosen = false;
};

/// The steps of launch and termination that are components of their own: first-time configuration, donation prompt,
/// version check, panels. Those that do not exist do nothing. Main thread.
class LaunchSteps {
public:
    virtual ~LaunchSteps() = default;

    virtual void runFirstTimeConfig() {}
    virtual void askDonation() {}
    virtual void donate() {}
    virtual bool canDonate() const { return false; }
    virtual bool shouldCheckLatestVersion() { return false; }
    /// Begins it; the launch goes on meanwhile.
    virtual void checkLatestVersion() {}
    /// Shows the help panel until it is closed.
    virtual void runHelpPanel() {}
    /// Shows the panel of the whole playlist until it is closed.
    virtual void runPlaylistPanel() {}
    /// Asks for a time in a panel; none when it was cancelled. Seconds.
    virtual std::optional<double> runGoToTimePanel(double, double) { return std::nullopt; }
    /// Shows the panel for one address (0), or for several (1), until it is answered.
    virtual OpenURLAnswer runOpenURLPanel(std::int32_t) { return {}; }
    /// Shows the preferences, or brings them to the front. They stay until the user closes them, or closePanels().
    virtual void showPreferences() {}
    /// Shows the panel that says how the movie plays, or closes it.
    virtual void showInformation() {}
    /// Those that stay open beside the movie.
    virtual void closePanels() {}
};
