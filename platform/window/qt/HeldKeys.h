// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <set>

namespace platform {

/// The keys that are down, by their scan codes: what tells a press from the automatic repeat of a held key. The
/// toolkit's own flag is a race on X11, which a busy machine loses. Main thread.
class HeldKeys {
public:
    /// Has X11 report repeats as presses without releases in between. Nothing to do on other window systems, whose
    /// events say by themselves what is a repeat.
    static void reportRepeatsWithoutReleases();

    /// True when the key is down already: a repeat.
    bool press(quint32 scanCode) { return !_down.insert(scanCode).second; }
    void release(quint32 scanCode) { _down.erase(scanCode); }
    /// The keyboard went to somebody else, who is told of the releases. Answers whether any key was down.
    bool forget();

private:
    std::set<quint32> _down;
};

} // namespace platform
