// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/SingleInstance.h"
#include "platform/desktop/linux/LocalSocket.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <functional>
#include <future>
#include <vector>

using platform::HandOver;
using platform::SingleInstance;

namespace {

class SingleInstanceTest : public testing::Test {
protected:
    // No event loop has run in which objects left for later would end.
    ~SingleInstanceTest() override { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }
    static bool waitFor(const std::function<bool()>& done) {
        const QDeadlineTimer deadline(10000);
        QTimer wake; // what is waited for may come without an event
        wake.start(2);
        while (!done() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return done();
    }
    bool listens(SingleInstance& instance) {
        return instance.listen([this](const HandOver& message) { received.push_back(message); });
    }
    /// A second launch, which waits for its answer while this one runs its event loop.
    bool handOver(const HandOver& message) {
        auto launch = std::async(std::launch::async, [&] { return SingleInstance(path).handOver(message); });
        const std::size_t before = received.size();
        waitFor([&] { return launch.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
        // The answer may come before the main thread has the message.
        return launch.get() && waitFor([&] { return received.size() > before; });
    }
    /// A connection to the socket that says the bytes and waits.
    int connected(const QByteArray& bytes) const {
        const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        const QByteArray place = QFile::encodeName(path);
        std::memcpy(address.sun_path, place.constData(), static_cast<std::size_t>(place.size()));
        EXPECT_EQ(::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
        // One that the player lets go can't send all.
        for (qsizetype sent = 0; sent < bytes.size();) {
            const ssize_t count =
                ::send(socket, bytes.constData() + sent, static_cast<std::size_t>(bytes.size() - sent), MSG_NOSIGNAL);
            if (count <= 0)
                break;
            sent += count;
        }
        return socket;
    }

    int argumentCount = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{argumentCount, arguments};
    QTemporaryDir folder;
    QString path = folder.filePath("player.socket");
    std::vector<HandOver> received;
};

} // namespace

TEST_F(SingleInstanceTest, a_second_launch_hands_its_files_to_the_first) {
    EXPECT_FALSE(SingleInstance(path).handOver({false, {"/a"}}));
    {
        SingleInstance first(path);
        ASSERT_TRUE(listens(first));
        EXPECT_TRUE(SingleInstance(path).isTaken());
        SingleInstance second(path);
        EXPECT_FALSE(listens(second));

        HandOver many{false, {}};
        for (int i = 0; i < 20000; ++i)
            many.files.append(QStringLiteral("/movies/a rather long name of a movie %1.mp4").arg(i));
        const std::vector<HandOver> messages = {{true, {"/ü %1 #.mp4", "http://x/y", "line\nbreak"}}, many};
        for (const HandOver& message : messages)
            EXPECT_TRUE(handOver(message));
        EXPECT_EQ(received, messages);
    }
    SingleInstance next(path);
    EXPECT_TRUE(listens(next)) << "the next one follows the first";
}

TEST_F(SingleInstanceTest, what_a_killed_player_left_is_taken_over_and_is_for_this_user_alone) {
    int ends[2];
    ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
    const mode_t mask = ::umask(0);
    const pid_t player = ::fork();
    if (player == 0) {
        SingleInstance killed(path);
        const char listening = killed.listen([](const HandOver&) {}) ? 'y' : 'n';
        [[maybe_unused]] const ssize_t written = ::write(ends[1], &listening, 1);
        for (;;)
            ::pause();
    }
    ::umask(mask);
    char listening = 0;
    ASSERT_EQ(::read(ends[0], &listening, 1), 1);
    ASSERT_EQ(listening, 'y');
    EXPECT_TRUE(SingleInstance(path).isTaken());
    for (const QString& file : {path, QString(path + ".lock")}) {
        struct stat facts {};
        ASSERT_EQ(::lstat(QFile::encodeName(file).constData(), &facts), 0);
        EXPECT_EQ(facts.st_mode & 0777U, 0600U) << file.toStdString();
    }
    ::kill(player, SIGKILL);
    ::waitpid(player, nullptr, 0);
    ::close(ends[0]);
    ::close(ends[1]);

    ASSERT_TRUE(QFile::exists(path)) << "a killed player leaves its socket";
    EXPECT_FALSE(SingleInstance(path).isTaken());
    EXPECT_FALSE(SingleInstance(path).handOver({false, {"/a"}}));
    SingleInstance next(path);
    ASSERT_TRUE(listens(next));
    EXPECT_TRUE(handOver({true, {"/b"}}));
    EXPECT_EQ(received, (std::vector<HandOver>{{true, {"/b"}}}));
}

TEST_F(SingleInstanceTest, a_busy_player_answers_and_receives_later) {
    SingleInstance instance(path);
    ASSERT_TRUE(listens(instance));
    HandOver many{false, {}};
    for (int i = 0; i < 50000; ++i)
        many.files.append(QStringLiteral("/a rather long name of a movie %1.mp4").arg(i));
    // A large message waits for the one before to be received.
    EXPECT_TRUE(SingleInstance(path).handOver({true, {"/first"}}));
    EXPECT_TRUE(received.empty());
    EXPECT_TRUE(handOver(many));
    EXPECT_TRUE(waitFor([&] { return received.size() == 4; }));
    QStringList files;
    for (std::size_t part = 1; part < received.size(); ++part) {
        EXPECT_EQ(received[part].append, part > 1) << part;
        files += received[part].files;
    }
    EXPECT_EQ(files, many.files);

    instance.close();
    SingleInstance next(path);
    EXPECT_TRUE(listens(next)) << "the next one need not wait for the end of the process";
}

TEST_F(SingleInstanceTest, who_holds_the_lock_and_says_nothing_is_soon_given_up) {
    const int lock = ::open(QFile::encodeName(path + ".lock").constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_EQ(::flock(lock, LOCK_EX), 0);
    const int silent = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const auto address = platform::localAddress(path);
    ASSERT_EQ(::bind(silent, reinterpret_cast<const sockaddr*>(&*address), sizeof *address), 0);
    ASSERT_EQ(::listen(silent, 0), 0);
    std::vector<int> callers;
    for (const char* what : {"its queue takes the caller", "its queue is full"}) {
        QElapsedTimer timer;
        timer.start();
        EXPECT_TRUE(SingleInstance(path).isTaken());
        EXPECT_FALSE(SingleInstance(path).handOver({false, {"/a"}})) << what;
        SingleInstance instance(path);
        EXPECT_FALSE(listens(instance)) << what;
        constexpr int halfASecondOnABusyMachine = 1500;
        EXPECT_LT(timer.elapsed(), halfASecondOnABusyMachine) << what;
        callers.push_back(platform::connectToLocalSocket(path, std::chrono::milliseconds(1)));
    }
    for (const int socket : callers)
        ::close(socket);
    ::close(silent);
    ::close(lock);
}

TEST_F(SingleInstanceTest, clients_and_their_messages_are_limited) {
    SingleInstance instance(path);
    ASSERT_TRUE(listens(instance));
    const auto isOpen = [](int socket) {
        char answer = 0;
        return ::recv(socket, &answer, 1, MSG_DONTWAIT) < 0 && errno == EAGAIN;
    };
    constexpr std::size_t maximumClients = 32;
    std::vector<int> sockets;
    const auto connectOne = [&](const QByteArray& bytes) {
        sockets.push_back(connected(bytes));
        QCoreApplication::processEvents(); // the listener's queue is short
        QCoreApplication::processEvents(); // a client is read after it was accepted
    };
    while (sockets.size() < maximumClients)
        connectOne("\0");
    EXPECT_TRUE(std::all_of(sockets.begin(), sockets.end(), isOpen));
    connectOne("\0");
    EXPECT_TRUE(waitFor([&] { return !isOpen(sockets[0]); })) << "the oldest one goes";
    EXPECT_TRUE(std::all_of(sockets.begin() + 1, sockets.end(), isOpen));

    connectOne(QByteArray::fromHex("0040000061"));
    connectOne(QByteArray::fromHex("0040000161"));
    EXPECT_TRUE(waitFor([&] { return !isOpen(sockets.back()); })) << "more than 4 MiB is refused before it comes";
    EXPECT_TRUE(isOpen(sockets[sockets.size() - 2])) << "4 MiB are waited for";

    // All of them together hold a few of the 64 MiB that they send.
    const QByteArray half = QByteArray::fromHex("00400000") + QByteArray(2 << 20, 'a');
    for (const int socket : sockets)
        ::close(socket);
    sockets.clear();
    while (sockets.size() < maximumClients)
        connectOne(half);
    constexpr auto maximumHolding = 3;
    EXPECT_TRUE(waitFor([&] { return std::ranges::count_if(sockets, isOpen) <= maximumHolding; }));
    EXPECT_GE(std::ranges::count_if(sockets, isOpen), 1);
    // Each file takes more memory than the byte that parts it from the next.
    connectOne(QByteArray::fromHex("00100000") + QByteArray(1 << 20, '\0'));
    EXPECT_TRUE(waitFor([&] { return !isOpen(sockets.back()); }));
    for (const int socket : sockets)
        ::close(socket);
    EXPECT_TRUE(received.empty());
}

TEST_F(SingleInstanceTest, clients_that_misbehave_keep_nobody_out) {
    SingleInstance instance(path);
    ASSERT_TRUE(listens(instance));
    std::vector<int> sockets;
    for (int i = 0; i < 40; ++i) { // more than are kept at once
        sockets.push_back(connected(i % 2 == 0 ? QByteArray() : QByteArray("\0\0\0\x20rep", 7)));
        QCoreApplication::processEvents(); // the listener's queue is short
    }
    const int huge = connected(QByteArray("\x7f\xff\xff\xff garbage", 12));
    ::close(connected(QByteArray("\0\0\0\x20rep", 7)));
    // Refused: the connection ends without an answer.
    char answer = 0;
    ssize_t count = -1;
    EXPECT_TRUE(waitFor([&] { return (count = ::recv(huge, &answer, 1, MSG_DONTWAIT)) >= 0 || errno == ECONNRESET; }));
    EXPECT_LE(count, 0);
    EXPECT_TRUE(handOver({true, {"/good"}}));
    EXPECT_EQ(received, (std::vector<HandOver>{{true, {"/good"}}}));
    for (const int socket : sockets)
        ::close(socket);
    ::close(huge);
}
