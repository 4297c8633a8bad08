// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace platform {

/// Makes the program's panels and menus dark on a dark desktop, where Qt has not done that by itself: a palette that is
/// dark already is the user's or the desktop's own choice, and stays. Main thread; one, within the application's life.
class DarkPalette final : public QObject {
public:
    DarkPalette();

    /// Whether the desktop is dark, from here on.
    void setWanted(bool wanted);

private:
    void settle();

    bool _wanted = false;
    bool _isOurs = false;
    bool _isSettling = false;
};

} // namespace platform
