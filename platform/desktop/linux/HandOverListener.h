// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/linux/HandOver.h"

#include <QByteArray>
#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace platform {

/// Takes hand-overs from a listening socket on a thread of its own, so that a launch has its answer at once, however
/// busy the player is. All clients together make it hold no more than 16 MB: who sends more than it holds is let go,
/// the one with the largest part first, and while a large message waits for the main thread no other is read.
class HandOverListener {
public:
    /// Owns the socket from here on. `receive` is called on this thread, the main one, by its event loop.
    HandOverListener(int socket, std::function<void(const HandOver&)> receive);
    HandOverListener(const HandOverListener&) = delete;
    HandOverListener& operator=(const HandOverListener&) = delete;
    /// What was not received by then is dropped.
    ~HandOverListener();

private:
    struct Client;

    // On the thread.
    void run();
    void acceptClient();
    void readClient(Client& client);
    void letLargestGo();
    void deliver(HandOver message, qsizetype size);
    bool isFull() const;

    void wake() const;

    int _socket;
    int _wake;
    std::function<void(const HandOver&)> _receive;
    /// What the event loop calls is called in its name.
    std::unique_ptr<QObject> _receiver = std::make_unique<QObject>();
    std::vector<std::unique_ptr<Client>> _clients; ///< the thread's
    std::atomic<qsizetype> _waiting = 0;           ///< the sizes of messages that the main thread has not received
    std::atomic<bool> _ends = false;
    std::thread _thread;
};

} // namespace platform
