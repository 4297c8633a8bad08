// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
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
// A thread a connection; ends with this object.
class HttpServer {
public:
    explicit HttpServer(std::filesystem::path file);
    ~HttpServer();
    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    std::string url(const std::string& path) const; // "http://127.0.0.1:port" and the path

private:
    void listen();
    void serve(int connection);
    void send(int connection, const std::string& request, const std::string& content, const char* type, bool early);

    std::filesystem::path _folder;
    std::string _content;
    int _listener = -1;
    int _port = 0;
    std::atomic<bool> _ending = false;
    std::thread _thread;
};

} // namespace harness
