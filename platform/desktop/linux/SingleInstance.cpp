// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/SingleInstance.h"

#include "platform/base/Log.h"
#include "platform/desktop/linux/HandOverListener.h"
#include "platform/desktop/linux/LocalSocket.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <utility>

namespace platform {

namespace {

constexpr mode_t forThisUser = 0600;
/// A start is not to be delayed by more than half a second, whoever holds the lock.
constexpr std::chrono::milliseconds answerTimeout{400};

bool isPrivateFolder(const QByteArray& path) {
    struct stat status {};
    return ::lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::getuid() &&
           (status.st_mode & 022) == 0;
}

/// Where sockets lie when there is no folder of the session.
QByteArray folderOfOurOwn() {
    return "/tmp/lumaro-" + QByteArray::number(::getuid());
}

/// Another launch that only looks holds the lock for an instant.
bool takeLock(int lock) {
    constexpr int attempts = 20;
    constexpr unsigned pauseInMicroseconds = 500;
    for (int i = 0; i < attempts; ++i) {
        if (::flock(lock, LOCK_EX | LOCK_NB) == 0)
            return true;
        ::usleep(pauseInMicroseconds);
    }
    return false;
}

} // namespace

QString SingleInstance::defaultSocketPath() {
    QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    if (folder.isEmpty() || !isPrivateFolder(folder)) {
        folder = folderOfOurOwn();
        ::mkdir(folder.constData(), 0700);
        if (!isPrivateFolder(folder))
            return {};
    }
    // A player on another display is another player.
    const QByteArray display = qgetenv("WAYLAND_DISPLAY") + '\n' + qgetenv("DISPLAY");
    const QByteArray name = QCryptographicHash::hash(display, QCryptographicHash::Sha1).toHex().left(12);
    return QFile::decodeName(folder + "/lumaro-" + name + ".socket");
}

QStringList SingleInstance::socketPathsOfAllDisplays() {
    QByteArray session = qgetenv("XDG_RUNTIME_DIR");
    // A process that the session did not start may not know of the session's folder.
    if (session.isEmpty())
        session = "/run/user/" + QByteArray::number(::getuid());
    QStringList paths;
    for (const QByteArray& name : {session, folderOfOurOwn()}) {
        if (!isPrivateFolder(name))
            continue;
        const QDir folder(QFile::decodeName(name));
        const QStringList sockets =
            folder.entryList({QStringLiteral("lumaro-*.socket")}, QDir::System | QDir::NoSymLinks, QDir::Time);
        for (const QString& socket : sockets)
            paths.append(folder.filePath(socket));
    }
    return paths;
}

SingleInstance::SingleInstance(QString socketPath)
    : _path(std::move(socketPath)) {}

SingleInstance::~SingleInstance() {
    close();
}

void SingleInstance::close() {
    if (_listener)
        ::unlink(QFile::encodeName(_path).constData());
    _listener.reset();
    if (_lock >= 0)
        ::close(std::exchange(_lock, -1));
}

bool SingleInstance::isTaken() const {
    const int lock = ::open(QFile::encodeName(lockPath()).constData(), O_RDWR | O_CLOEXEC);
    if (lock < 0)
        return false;
    const bool taken = ::flock(lock, LOCK_SH | LOCK_NB) != 0;
    ::close(lock);
    return taken;
}

QString SingleInstance::lockPath() const {
    return _path + QStringLiteral(".lock");
}

bool SingleInstance::handOver(const HandOver& message) const {
    bool isTakenByOne = false;
    for (const QByteArray& part : handOverMessage::encoded(message)) {
        if (!send(part))
            break;
        isTakenByOne = true;
    }
    return isTakenByOne;
}

bool SingleInstance::send(const QByteArray& message) const {
    QDeadlineTimer deadline(answerTimeout);
    const int socket = connectToLocalSocket(_path, answerTimeout);
    if (socket < 0)
        return false;
    const auto isReady = [socket, &deadline](short event) {
        pollfd waited{socket, event, 0};
        return ::poll(&waited, 1, static_cast<int>(deadline.remainingTime())) > 0;
    };
    qsizetype sent = 0;
    while (sent < message.size() && isReady(POLLOUT)) {
        const ssize_t count = ::send(socket, message.constData() + sent,
                                     static_cast<std::size_t>(message.size() - sent), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count <= 0)
            break;
        sent += count;
        deadline.setRemainingTime(answerTimeout); // it listens
    }
    char answer = 0;
    const bool taken = sent == message.size() && isReady(POLLIN) && ::recv(socket, &answer, 1, MSG_DONTWAIT) == 1 &&
                       answer == handOverMessage::acknowledgement;
    ::close(socket);
    return taken;
}

bool SingleInstance::listen(std::function<void(const HandOver&)> receive) {
    const auto address = localAddress(_path);
    if (!address)
        return false;
    // Whoever holds the lock is the running player; a socket left behind by a crash is then nobody's.
    _lock = ::open(QFile::encodeName(lockPath()).constData(), O_RDWR | O_CREAT | O_CLOEXEC, forThisUser);
    if (_lock < 0 || !takeLock(_lock))
        return false;
    ::unlink(address->sun_path);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (socket < 0 || ::bind(socket, reinterpret_cast<const sockaddr*>(&*address), sizeof(*address)) != 0 ||
        ::chmod(address->sun_path, forThisUser) != 0 || ::listen(socket, 8) != 0) {
        Log::write(QStringLiteral("WARNING: SingleInstance: Can't listen at %1: %2")
                       .arg(_path, QString::fromLocal8Bit(std::strerror(errno))));
        if (socket >= 0)
            ::close(socket);
        ::close(std::exchange(_lock, -1)); // nobody is to ask here
        return false;
    }
    _listener = std::make_unique<HandOverListener>(socket, std::move(receive));
    return true;
}

} // namespace platform
