// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Delivery.h"

#include <QDBusConnection>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace platform {

/// A connection to a message bus that nobody waits for: it is made on a thread of its own. Main thread.
class BusConnection {
public:
    explicit BusConnection(QDBusConnection::BusType type);
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;
    ~BusConnection();

    /// Calls `work` with the connection once it stands: now when it does, else from the run loop. One that could not be
    /// made is not connected, and its error says why.
    void use(std::function<void(QDBusConnection)> work);
    /// It could not be made, or is lost.
    bool hasFailed() const;

private:
    enum class State { none, connecting, made };
    QDBusConnection::BusType _type;
    QString _name;
    State _state = State::none;
    std::shared_ptr<Delivery<QDBusConnection>> _delivery;
    QDBusConnection _connection;
    std::vector<std::function<void(QDBusConnection)>> _waiting;
};

} // namespace platform
