// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class QSocketNotifier;

namespace platform {

/// What one launch hands to the running player.
struct HandOver {
    bool append = false;
    /// Absolute paths and URLs.
    QStringList files;
    friend bool operator==(const HandOver&, const HandOver&) = default;
};

/// One running player for each user and display: a socket in the user's runtime folder, for this user alone, and a lock
/// beside it that ends with the process, so that a socket that a crash left is nobody's. Main thread.
class SingleInstance {
public:
    /// The socket's place; empty when there is no folder that only the user can write to.
    static QString defaultSocketPath();
    /// The places of all players of this user that may be running, on whatever display, the newest first.
    static QStringList socketPathsOfAllDisplays();
    explicit SingleInstance(QString socketPath);
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    ~SingleInstance();

    /// Whether a player is running, as far as can be told without asking it.
    bool isTaken() const;
    /// Hands over to the running player; true when one took it. Needs no application object. A player that does not
    /// answer within three seconds counts as none.
    bool handOver(const HandOver& message) const;
    /// Becomes the running player: `receive` is called for each hand-over from here on. False when another one is, or
    /// the socket cannot be made.
    bool listen(std::function<void(const HandOver&)> receive);

    /// The message as it goes over the socket, and back; nothing readable gives no files.
    static QByteArray encoded(const HandOver& message);
    static HandOver decoded(const QByteArray& bytes);

private:
    struct Client;
    QString lockPath() const;
    void acceptClient();
    void readClient(Client& client);

    QString _path;
    int _socket = -1;
    int _lock = -1;
    std::unique_ptr<QSocketNotifier> _notifier;
    std::vector<std::unique_ptr<Client>> _clients;
    std::function<void(const HandOver&)> _receive;
};

} // namespace platform
