// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/HandOverListener.h"

#include <QMetaObject>

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace platform {

namespace {

constexpr std::size_t maximumClients = 32;
constexpr qsizetype maximumHeld = 6 << 20;
/// Of messages on their way to the main thread, each of which may be larger.
constexpr qsizetype maximumWaiting = 64 << 10;

} // namespace

struct HandOverListener::Client {
    explicit Client(int connection)
        : socket(connection) {}
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;
    ~Client() { ::close(socket); }

    int socket;
    QByteArray received;
    bool isDone = false;
};

HandOverListener::HandOverListener(int socket, std::function<void(const HandOver&)> receive)
    : _socket(socket)
    , _wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    , _receive(std::move(receive))
    , _thread([this] { run(); }) {}

HandOverListener::~HandOverListener() {
    _ends = true;
    wake();
    _thread.join();
    _receiver.reset();
    _clients.clear();
    ::close(_socket);
    ::close(_wake);
}

void HandOverListener::wake() const {
    ::eventfd_write(_wake, 1);
}

bool HandOverListener::isFull() const {
    return _waiting > maximumWaiting;
}

void HandOverListener::run() {
    std::vector<pollfd> polled;
    while (!_ends) {
        polled.assign({{_wake, POLLIN, 0}, {_socket, POLLIN, 0}});
        for (const auto& client : _clients)
            polled.push_back({isFull() ? -1 : client->socket, POLLIN, 0});
        if (::poll(polled.data(), polled.size(), -1) < 0 && errno != EINTR)
            return;
        eventfd_t count = 0;
        ::eventfd_read(_wake, &count);
        constexpr std::size_t others = 2;
        for (std::size_t index = others; index < polled.size() && !isFull(); ++index) {
            Client& client = *_clients[index - others];
            if (polled[index].revents != 0 && !client.isDone)
                readClient(client);
        }
        std::erase_if(_clients, [](const auto& client) { return client->isDone; });
        if (polled[1].revents != 0)
            acceptClient();
    }
}

void HandOverListener::acceptClient() {
    const int socket = ::accept4(_socket, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (socket < 0) {
        // Without a free descriptor the caller goes on waiting, and would be told of again at once.
        constexpr int pauseInMilliseconds = 50;
        pollfd wake{_wake, POLLIN, 0};
        if (errno == EMFILE || errno == ENFILE || errno == ENOMEM || errno == ENOBUFS)
            ::poll(&wake, 1, pauseInMilliseconds);
        return;
    }
    // A caller that never says anything must not keep others out.
    if (_clients.size() >= maximumClients)
        _clients.erase(_clients.begin());
    _clients.push_back(std::make_unique<Client>(socket));
}

void HandOverListener::readClient(Client& client) {
    char buffer[16384];
    const ssize_t count = ::recv(client.socket, buffer, sizeof buffer, 0);
    if (count < 0 && (errno == EAGAIN || errno == EINTR))
        return;
    if (count > 0)
        client.received.append(buffer, count);
    const auto size = handOverMessage::wholeSize(client.received);
    const bool isComplete = size && client.received.size() >= *size;
    const bool isTooLarge = size && *size > qsizetype(handOverMessage::maximumSize) + 4;
    client.isDone = count <= 0 || isComplete || isTooLarge;
    if (isComplete && !isTooLarge) {
        client.received.truncate(*size);
        if (auto message = handOverMessage::decoded(client.received)) {
            ::send(client.socket, &handOverMessage::acknowledgement, 1, MSG_NOSIGNAL);
            deliver(std::move(*message), *size);
        }
    } else if (!client.isDone) {
        // Exactly: growing by doubling would take twice as much. What is not written to is no memory yet.
        if (size && client.received.capacity() < *size)
            client.received.reserve(*size);
        letLargestGo();
    }
}

void HandOverListener::letLargestGo() {
    qsizetype held = 0;
    Client* largest = nullptr;
    for (const auto& client : _clients) {
        held += client->received.size();
        if (!largest || client->received.size() > largest->received.size())
            largest = client.get();
    }
    if (held <= maximumHeld)
        return;
    largest->isDone = true;
    largest->received = QByteArray();
}

void HandOverListener::deliver(HandOver message, qsizetype size) {
    _waiting += size;
    QMetaObject::invokeMethod(
        _receiver.get(),
        [this, size, received = std::move(message)] {
            _receive(received);
            _waiting -= size;
            wake();
        },
        Qt::QueuedConnection);
}

} // namespace platform
