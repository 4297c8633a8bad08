// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <atomic>
#include <mutex>
#include <stop_token>
#include <thread>

// The files of a certificate and its key.
struct ServerIdentity {
    QString certificate;
    QString key;
};

// A web server on loopback that answers as the test says, and remembers what it was asked. It needs no event loop; a
// thread a connection; ends with this object.
class MirrorServer {
public:
    enum class Manner {
        whole,
        cut,     // promises twice as much, and closes
        slow,    // a byte now and then
        endless, // goes on sending the body
        silent,  // takes the request and says nothing
    };
    struct Reply {
        QByteArray body;
        Manner manner = Manner::whole;
        int status = 200;
        QByteArray location = {}; // of a redirect
    };

    // Without an identity it speaks http, with one https.
    explicit MirrorServer(const ServerIdentity* identity = nullptr);
    MirrorServer(const MirrorServer&) = delete;
    MirrorServer& operator=(const MirrorServer&) = delete;

    // Paths without an answer are not found.
    void answer(const QByteArray& path, const Reply& reply);
    void redirect(const QByteArray& path, const QByteArray& location) {
        answer(path, {.body = {}, .status = 302, .location = location});
    }
    QUrl url(const QString& path) const;

    // The paths that were asked for, in order, and the last request whole.
    QStringList asked() const;
    QByteArray lastRequest() const;

private:
    class Listener;
    void listen(std::stop_token stop);
    void serve(qintptr descriptor, std::stop_token stop);

    ServerIdentity _identity;
    std::atomic<int> _port = 0;
    mutable std::mutex _mutex;
    QHash<QByteArray, Reply> _replies;
    QStringList _asked;
    QByteArray _lastRequest;
    std::jthread _thread;
};
