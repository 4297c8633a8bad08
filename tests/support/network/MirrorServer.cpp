// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/network/MirrorServer.h"

#include <QFile>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>

#include <memory>
#include <utility>
#include <vector>

namespace {

constexpr int timeout = 20'000;
constexpr int tick = 20;

QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray headOf(const MirrorServer::Reply& reply) {
    QByteArray head = "HTTP/1.1 " + QByteArray::number(reply.status) + " Said\r\nConnection: close\r\n";
    if (!reply.location.isEmpty())
        head += "Location: " + reply.location + "\r\n";
    if (reply.manner != MirrorServer::Manner::endless)
        head += "Content-Length: " +
                QByteArray::number(reply.body.size() * (reply.manner == MirrorServer::Manner::cut ? 2 : 1)) + "\r\n";
    return head + "\r\n";
}

} // namespace

class MirrorServer::Listener final : public QTcpServer {
public:
    std::vector<qintptr> taken;

private:
    void incomingConnection(qintptr descriptor) override { taken.push_back(descriptor); }
};

MirrorServer::MirrorServer(const ServerIdentity* identity)
    : _identity(identity ? *identity : ServerIdentity{})
    , _thread([this](std::stop_token stop) { listen(std::move(stop)); }) {
    _port.wait(0);
}

void MirrorServer::answer(const QByteArray& path, const Reply& reply) {
    const std::scoped_lock lock(_mutex);
    _replies.insert(path, reply);
}

QUrl MirrorServer::url(const QString& path) const {
    const QString scheme = _identity.key.isEmpty() ? QStringLiteral("http") : QStringLiteral("https");
    return QUrl(scheme + QStringLiteral("://127.0.0.1:") + QString::number(_port) + path);
}

QStringList MirrorServer::asked() const {
    const std::scoped_lock lock(_mutex);
    return _asked;
}

QByteArray MirrorServer::lastRequest() const {
    const std::scoped_lock lock(_mutex);
    return _lastRequest;
}

void MirrorServer::listen(std::stop_token stop) {
    Listener listener;
    listener.listen(QHostAddress::LocalHost);
    _port = listener.serverPort();
    _port.notify_all();
    std::vector<std::jthread> connections;
    while (!stop.stop_requested()) {
        listener.waitForNewConnection(tick);
        for (const qintptr descriptor : std::exchange(listener.taken, {}))
            connections.emplace_back([this, descriptor](std::stop_token end) { serve(descriptor, std::move(end)); });
    }
}

void MirrorServer::serve(qintptr descriptor, std::stop_token stop) {
    const bool isSafe = !_identity.key.isEmpty();
    const std::unique_ptr<QTcpSocket> taken(isSafe ? new QSslSocket : new QTcpSocket);
    QTcpSocket& socket = *taken;
    if (!socket.setSocketDescriptor(descriptor))
        return;
    if (isSafe) {
        auto& safe = static_cast<QSslSocket&>(socket);
        safe.setLocalCertificate(QSslCertificate(contentOf(_identity.certificate)));
        safe.setPrivateKey(QSslKey(contentOf(_identity.key), QSsl::Rsa));
        safe.startServerEncryption();
        if (!safe.waitForEncrypted(timeout))
            return;
    }
    QByteArray request;
    while (!request.contains("\r\n\r\n")) {
        if (!socket.waitForReadyRead(timeout))
            return;
        request += socket.readAll();
    }
    const QByteArray path = request.split(' ').value(1);
    Reply reply;
    {
        const std::scoped_lock lock(_mutex);
        _asked.append(QString::fromUtf8(path));
        _lastRequest = request;
        reply = _replies.value(path, {.body = "not here", .status = 404});
    }
    const auto goesOn = [&] { return !stop.stop_requested() && socket.state() == QAbstractSocket::ConnectedState; };
    if (reply.manner == Manner::silent) {
        while (goesOn())
            socket.waitForReadyRead(tick);
        return;
    }
    socket.write(headOf(reply));
    if (reply.manner == Manner::slow) {
        for (const char byte : reply.body) {
            if (!goesOn())
                return;
            socket.write(&byte, 1);
            socket.waitForBytesWritten(timeout);
            socket.waitForReadyRead(tick * 10);
        }
    } else {
        do {
            socket.write(reply.body);
            while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(timeout)) {
            }
        } while (reply.manner == Manner::endless && goesOn());
    }
    socket.disconnectFromHost();
    if (socket.state() != QAbstractSocket::UnconnectedState)
        socket.waitForDisconnected(timeout);
}
