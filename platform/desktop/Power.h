// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;

namespace platform {

enum class PowerCommand { sleep, restart, shutDown, logOut };

/// Told of the computer's sleep, and of commands that came to nothing. Main thread.
class PowerListener {
public:
    virtual ~PowerListener() = default;

    /// The computer sleeps when this returns.
    virtual void computerWillSleep() = 0;
    virtual void computerDidWake() = 0;
    /// A command was refused, or there is nobody to give it to. `reason` is in the words of the system.
    virtual void powerCommandFailed(PowerCommand command, const QString& reason) = 0;
};

/// The computer's power and the user's session. Nothing here waits: a command is sent, and what becomes of it is the
/// system's matter, which may ask the user for a password. Main thread.
class Power {
public:
    virtual ~Power() = default;

    /// Each answers whether the request was sent. Where it fails later, or was not sent, the listener is told. Logging
    /// out asks the user nothing.
    virtual bool sleep() = 0;
    virtual bool restart() = 0;
    virtual bool shutDown() = 0;
    virtual bool logOut() = 0;

    /// Who is told from here on, or nobody; it must stay until then. Without one the computer's sleep isn't followed.
    virtual void setPowerListener(PowerListener* listener) = 0;
};

} // namespace platform
