// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/RunLoop.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <memory>

class QDBusPendingCallWatcher;

namespace platform {

/// What the user's session offers over D-Bus: keeping the screen saver away, and the backlight. Calls return at once; a
/// session without the service is left alone. Main thread.
class SessionBus final : public QObject {
public:
    SessionBus();
    ~SessionBus() override;

    /// Keeps screen saver and sleep away while set.
    void setInhibited(bool inhibited);
    /// Has the login manager set the level of a light of the kernel's backlight class.
    void setBacklight(const QString& light, unsigned level);

private:
    void settle();
    void inhibit();
    void inhibitThroughPortal();
    void release();

    std::unique_ptr<Timer> _delay;
    bool _wanted = false;
    bool _asking = false;
    bool _held = false;
    std::uint32_t _cookie = 0;
    QString _portalRequest;
};

} // namespace platform
