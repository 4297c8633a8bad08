// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/linux/BusConnection.h"

#include <QDBusMessage>
#include <QObject>
#include <QVariant>

#include <functional>

namespace platform {

/// What the desktop wishes its programs to look like: `color-scheme` of `org.freedesktop.appearance`, as the interface
/// org.freedesktop.portal.Settings of the session's bus tells it. Nobody waits for it. Main thread.
class ColorSchemePortal final : public QObject {
    Q_OBJECT

public:
    /// As the portal numbers them.
    enum class Scheme { noPreference = 0, dark = 1, light = 2 };
    /// Called by the event loop, at first and at each change; never in a session that says nothing of it.
    using Told = std::function<void(Scheme)>;
    explicit ColorSchemePortal(Told told);

private Q_SLOTS:
    void settingChanged(const QDBusMessage& signal);

private:
    void ask(QDBusConnection bus);
    void tell(const QVariant& value);

    Told _told;
    BusConnection _bus{QDBusConnection::SessionBus};
};

} // namespace platform
