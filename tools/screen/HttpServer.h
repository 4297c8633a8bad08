// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

namespace harness {

// A server on loopback that behaves well or badly, by the path asked for:
//   /movie.mp4    the file, with ranges        /missing.mp4  404
//   /early.mp4    a third of the file, then the connection closes though all of it was promised
//   /never.mp4    takes the request and never answers
//   /beside/NAME  another file of the same folder
//   /live/NAME    the same, but an index of HLS is that of a live stream, which began with this object: of its parts,
//                 each of two seconds, the last four that are there by now
// A thread a connection; ends with this object.
class HttpServer {
public:
    explicit HttpServer(std::filesystem::path file);
    ~HttpServer();
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    std::string url(const std::string& path) const; // "http://127.0.0.1:port" and the path

    // Out of order it takes no connections and breaks those that there are; in order again it is where it was.
    enum class Order { works, broken };
    void setOrder(Order order) { _isBroken = order == Order::broken; }

private:
    void openListener();
    void listen();
    // Whether a connection is to end.
    bool isOver() const { return _ending || _isBroken; }
    std::string liveIndex(const std::string& index) const;
    void serve(int connection);
    void send(int connection, const std::string& request, const std::string& content, const char* type, bool early);

    std::filesystem::path _folder;
    std::string _content;
    int _listener = -1;
    int _port = 0;
    std::atomic<bool> _ending = false;
    std::atomic<bool> _isBroken = false;
    const std::chrono::steady_clock::time_point _begin = std::chrono::steady_clock::now();
    std::thread _thread;
};

} // namespace harness
