// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/SingleInstance.h"

#include "platform/base/Log.h"
#include "platform/desktop/linux/LocalSocket.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSocketNotifier>
#include <QtEndian>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>
#include <utility>

namespace platform {

namespace {

constexpr char acknowledgement = 'k';
constexpr mode_t forThisUser = 0600;
constexpr quint32 maximumMessage = 8U << 20;
constexpr std::size_t maximumClients = 32;

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

struct SingleInstance::Client {
    int socket = -1;
    QByteArray received;
    std::unique_ptr<QSocketNotifier> notifier;
    ~Client() {
        notifier.reset();
        ::close(socket);
    }
};

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
    _clients.clear();
    _notifier.reset();
    if (_socket >= 0) {
        ::unlink(QFile::encodeName(_path).constData());
        ::close(_socket);
    }
    if (_lock >= 0)
        ::close(_lock);
}

QByteArray SingleInstance::encoded(const HandOver& message) {
    QByteArray body = message.append ? "append" : "replace";
    for (const QString& file : message.files)
        body += '\0' + file.toUtf8();
    QByteArray bytes(4, '\0');
    qToBigEndian(static_cast<quint32>(body.size()), bytes.data());
    return bytes + body;
}

HandOver SingleInstance::decoded(const QByteArray& bytes) {
    HandOver message;
    const QList<QByteArray> words = bytes.mid(4).split('\0');
    message.append = words.value(0) == "append";
    for (qsizetype i = 1; i < words.size(); ++i)
        message.files.append(QString::fromUtf8(words[i]));
    return message;
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
    const int socket = connectToLocalSocket(_path);
    if (socket < 0)
        return false;
    const timeval timeout{3, 0};
    ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof(timeout));
    ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &timeout, sizeof(timeout));
    const QByteArray bytes = encoded(message);
    qsizetype sent = 0;
    while (sent < bytes.size()) {
        const ssize_t count =
            ::send(socket, bytes.constData() + sent, static_cast<std::size_t>(bytes.size() - sent), MSG_NOSIGNAL);
        if (count <= 0)
            break;
        sent += count;
    }
    char answer = 0;
    const bool taken = sent == bytes.size() && ::recv(socket, &answer, 1, 0) == 1 && answer == acknowledgement;
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
    _socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (_socket < 0 || ::bind(_socket, reinterpret_cast<const sockaddr*>(&*address), sizeof(*address)) != 0 ||
        ::chmod(address->sun_path, forThisUser) != 0 || ::listen(_socket, 8) != 0) {
        Log::write(QStringLiteral("WARNING: SingleInstance: Can't listen at %1: %2")
                       .arg(_path, QString::fromLocal8Bit(std::strerror(errno))));
        return false;
    }
    _receive = std::move(receive);
    _notifier = std::make_unique<QSocketNotifier>(_socket, QSocketNotifier::Read);
    QObject::connect(_notifier.get(), &QSocketNotifier::activated, _notifier.get(), [this] { acceptClient(); });
    return true;
}

void SingleInstance::acceptClient() {
    const int socket = ::accept4(_socket, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (socket < 0)
        return;
    // A caller that never says anything must not keep others out.
    if (_clients.size() >= maximumClients)
        _clients.erase(_clients.begin());
    auto client = std::make_unique<Client>();
    client->socket = socket;
    client->notifier = std::make_unique<QSocketNotifier>(socket, QSocketNotifier::Read);
    Client* raw = client.get();
    QObject::connect(raw->notifier.get(), &QSocketNotifier::activated, raw->notifier.get(),
                     [this, raw] { readClient(*raw); });
    _clients.push_back(std::move(client));
}

void SingleInstance::readClient(Client& client) {
    char buffer[65536];
    const ssize_t count = ::recv(client.socket, buffer, sizeof(buffer), 0);
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (count > 0)
        client.received.append(buffer, count);
    const quint32 size = client.received.size() >= 4 ? qFromBigEndian<quint32>(client.received.constData()) : 0;
    const bool complete = client.received.size() >= 4 && client.received.size() - 4 >= static_cast<qsizetype>(size);
    if (count > 0 && size <= maximumMessage && !complete)
        return;
    std::optional<HandOver> message;
    if (complete) {
        ::send(client.socket, &acknowledgement, 1, MSG_NOSIGNAL);
        message = decoded(client.received.left(4 + static_cast<qsizetype>(size)));
    }
    // The notifier that called this goes with the client; it is only ended from outside its own signal.
    client.notifier->setEnabled(false);
    client.notifier.release()->deleteLater();
    std::erase_if(_clients, [&client](const auto& other) { return other.get() == &client; });
    if (message)
        _receive(*message);
}

} // namespace platform
