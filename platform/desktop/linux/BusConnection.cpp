// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/BusConnection.h"

#include "platform/base/Background.h"

#include <utility>

namespace platform {

BusConnection::BusConnection(QDBusConnection::BusType type)
    : _type(type)
    , _connection(QString()) {
    static int number = 0;
    _name = QStringLiteral("lumaro-%1").arg(++number);
}

BusConnection::~BusConnection() {
    if (_delivery)
        _delivery->abandon();
    if (_state == State::made)
        QDBusConnection::disconnectFromBus(_name);
}

bool BusConnection::hasFailed() const {
    return _state == State::made && !_connection.isConnected();
}

void BusConnection::use(std::function<void(QDBusConnection)> work) {
    if (_state == State::made) {
        work(_connection);
        return;
    }
    _waiting.push_back(std::move(work));
    if (std::exchange(_state, State::connecting) == State::connecting)
        return;
    // A bus that does not answer would hold up the caller for half a minute.
    _delivery = std::make_shared<Delivery<QDBusConnection>>();
    background::run([delivery = _delivery, type = _type, name = _name] {
        delivery->deliver(QDBusConnection::connectToBus(type, name));
    });
    _delivery->receive([this](QDBusConnection connection) {
        _connection = std::move(connection);
        _state = State::made;
        for (const auto& waiting : std::exchange(_waiting, {}))
            waiting(_connection);
    });
}

} // namespace platform
