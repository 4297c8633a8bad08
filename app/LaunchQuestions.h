// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"

#include <functional>
#include <utility>

class QString;

namespace platform {
class Bundle;
class Desktop;
} // namespace platform

/// What is asked and shown once per launch, before the first movie: the first-time configuration after an installation
/// or an upgrade, and the prompt for a donation. Each waits for the user; what was not answered because the application
/// ended is asked again at the next launch. Main thread.
class LaunchQuestions {
public:
    /// All outlive it. `showHelp` shows the help panel until it is closed.
    LaunchQuestions(const Environment& environment, platform::Desktop& desktop, const platform::Bundle& bundle,
                    std::function<void()> showHelp)
        : _environment(environment)
        , _desktop(desktop)
        , _bundle(bundle)
        , _showHelp(std::move(showHelp)) {}

    /// Asks whether to look for new versions, unless there is nowhere to look, and shows the help: each only if the
    /// build that ran last was too old to have done so.
    void runFirstTimeConfig();
    /// Asks for a donation, at most once a week, until the page was opened once. Never without a page.
    void askDonation();
    /// Opens the page for donations.
    void donate();
    /// Whether there is a page that donate() would open.
    bool canDonate() const;

private:
    Environment _environment;
    platform::Desktop& _desktop;
    const platform::Bundle& _bundle;
    std::function<void()> _showHelp;
};
