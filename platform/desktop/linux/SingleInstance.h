// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/linux/HandOver.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace platform {

class HandOverListener;

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
    /// Hands over to the running player; true when one took it. Needs no application object. A player answers at once,
    /// however busy it is: one that has not after 0.4 seconds counts as none. Very many files go in parts, of which all
    /// but the first are appended.
    bool handOver(const HandOver& message) const;
    /// Becomes the running player: the event loop calls `receive` for each hand-over from here on. False when another
    /// one is, or the socket cannot be made.
    bool listen(std::function<void(const HandOver&)> receive);
    /// Is no running player any more, so that the next launch is one; for a player that receives nothing more.
    void close();

private:
    QString lockPath() const;
    bool send(const QByteArray& message) const;

    QString _path;
    int _lock = -1;
    std::unique_ptr<HandOverListener> _listener;
};

} // namespace platform
