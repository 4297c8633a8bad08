// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/screen/HttpServer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace harness {

namespace {

bool readable(int descriptor) {
    pollfd poll{descriptor, POLLIN, 0};
    return ::poll(&poll, 1, 50) > 0;
}

// Stops when the other side is gone.
void sendAll(int connection, const std::string& text, std::size_t from, std::size_t size,
             const std::function<bool()>& isOver) {
    while (size > 0 && !isOver()) {
        pollfd poll{connection, POLLOUT, 0};
        if (::poll(&poll, 1, 50) == 0)
            continue;
        const ssize_t sent = ::send(connection, text.data() + from, size, MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent <= 0)
            return;
        from += std::size_t(sent);
        size -= std::size_t(sent);
    }
}

std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

// The name after "/beside/", say, in the request; empty without one.
std::string nameBehind(const std::string& folder, const std::string& request) {
    const std::string prefix = ' ' + folder;
    const auto at = request.find(prefix);
    if (at == std::string::npos)
        return {};
    const std::string name = request.substr(at + prefix.size());
    return std::filesystem::path(name.substr(0, name.find(' '))).filename().string();
}

const char* typeOf(const std::string& name) {
    if (name.ends_with(".m3u8"))
        return "application/vnd.apple.mpegurl";
    return name.ends_with(".mpd") ? "application/dash+xml" : "video/mp4";
}

} // namespace

HttpServer::HttpServer(std::filesystem::path file)
    : _folder(file.parent_path())
    , _content(contentOf(file)) {
    openListener();
    _thread = std::thread([this] { listen(); });
}

// On the port that it had before.
void HttpServer::openListener() {
    _listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int again = 1;
    ::setsockopt(_listener, SOL_SOCKET, SO_REUSEADDR, &again, sizeof again);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(_port));
    socklen_t size = sizeof address;
    if (_listener < 0 || ::bind(_listener, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
        ::listen(_listener, 16) != 0 || ::getsockname(_listener, reinterpret_cast<sockaddr*>(&address), &size) != 0)
        throw std::runtime_error("no server on loopback");
    _port = ntohs(address.sin_port);
}

HttpServer::~HttpServer() {
    _ending = true;
    _thread.join();
    if (_listener >= 0)
        ::close(_listener);
}

std::string HttpServer::url(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(_port) + path;
}

void HttpServer::listen() {
    std::vector<std::thread> connections;
    while (!_ending) {
        if (_isBroken && _listener >= 0)
            ::close(std::exchange(_listener, -1));
        else if (!_isBroken && _listener < 0)
            openListener();
        if (_listener < 0 ? (std::this_thread::sleep_for(std::chrono::milliseconds(20)), true) : !readable(_listener))
            continue;
        const int connection = ::accept4(_listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection >= 0)
            connections.emplace_back([this, connection] {
                serve(connection);
                ::close(connection);
            });
    }
    for (std::thread& connection : connections)
        connection.join();
}

void HttpServer::serve(int connection) {
    std::string request;
    while (request.find("\r\n\r\n") == std::string::npos) {
        if (isOver())
            return;
        if (!readable(connection))
            continue;
        char buffer[4096];
        const ssize_t size = ::recv(connection, buffer, sizeof buffer, 0);
        if (size <= 0)
            return;
        request.append(buffer, std::size_t(size));
    }
    const auto asksFor = [&](const char* path) { return request.find(std::string(" ") + path) != std::string::npos; };
    if (asksFor("/never.mp4")) {
        while (!isOver() && !(readable(connection) && ::recv(connection, &request[0], 1, 0) <= 0)) {
        }
        return;
    }
    const std::string live = nameBehind("/live/", request);
    const std::string beside = live.empty() ? nameBehind("/beside/", request) : live;
    if (!beside.empty() && std::filesystem::exists(_folder / beside)) {
        const std::string content = contentOf(_folder / beside);
        const bool isLiveIndex = !live.empty() && content.find("#EXTINF") != std::string::npos;
        send(connection, request, isLiveIndex ? liveIndex(content) : content, typeOf(beside), false);
    } else if (asksFor("/movie.mp4") || asksFor("/early.mp4")) {
        send(connection, request, _content, "video/mp4", asksFor("/early.mp4"));
    } else {
        const std::string answer = "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\nConnection: close\r\n\r\n";
        sendAll(connection, answer, 0, answer.size(), [this] { return isOver(); });
    }
}

std::string HttpServer::liveIndex(const std::string& index) const {
    constexpr std::size_t window = 4, seconds = 2, atFirst = 3;
    std::istringstream lines(index);
    std::vector<std::string> parts;
    std::string part;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("#EXTINF") || line.starts_with("#EXT-X-BYTERANGE"))
            part += line + '\n';
        else if (!line.empty() && line.front() != '#')
            parts.push_back(std::exchange(part, {}) + line + '\n');
    }
    const auto passed = std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - _begin);
    const std::size_t last = std::min(parts.size(), atFirst + std::size_t(passed.count()) / seconds);
    const std::size_t first = last > window ? last - window : 0;
    std::string text = "#EXTM3U\n#EXT-X-VERSION:4\n#EXT-X-TARGETDURATION:" + std::to_string(seconds) +
                       "\n#EXT-X-MEDIA-SEQUENCE:" + std::to_string(first) + '\n';
    for (std::size_t i = first; i < last; ++i)
        text += parts[i];
    return text;
}

void HttpServer::send(int connection, const std::string& request, const std::string& content, const char* type,
                      bool early) {
    std::size_t from = 0;
    std::string lower = request;
    std::transform(lower.begin(), lower.end(), lower.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    const auto range = lower.find("range: bytes=");
    if (range != std::string::npos)
        from = std::min(content.size(), std::size_t(std::strtoull(lower.c_str() + range + 13, nullptr, 10)));
    std::string head = range == std::string::npos || early ? "HTTP/1.1 200 OK\r\n" : "HTTP/1.1 206 Partial Content\r\n";
    if (early)
        from = 0;
    else
        head += "Accept-Ranges: bytes\r\nContent-Range: bytes " + std::to_string(from) + "-" +
                std::to_string(content.size() - 1) + "/" + std::to_string(content.size()) + "\r\n";
    head += std::string("Content-Type: ") + type +
            "\r\nConnection: close\r\nContent-Length: " + std::to_string(content.size() - from) + "\r\n\r\n";
    sendAll(connection, head, 0, head.size(), [this] { return isOver(); });
    if (request.rfind("HEAD", 0) != 0)
        sendAll(connection, content, from, early ? content.size() / 3 : content.size() - from,
                [this] { return isOver(); });
}

} // namespace harness
