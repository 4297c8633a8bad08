// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace platform {

/// A document to be fetched from the web, and how much that may take.
struct DownloadRequest {
    QUrl url;
    int maximumRedirects = 10;
    /// In seconds, for all of it.
    double timeout = 10;
    qsizetype maximumBytes = 1024 * 1024;
};

struct DownloadAnswer {
    /// None when it failed; then `error` says why, in English.
    std::optional<QByteArray> data;
    QString error;
    /// How many redirects were followed, and where the last one led.
    int redirects = 0;
    QUrl url;
};

/// One that is under way; destroying it ends it, without an answer.
class Download {
public:
    Download() = default;
    Download(const Download&) = delete;
    Download& operator=(const Download&) = delete;
    virtual ~Download() = default;
};

/// Fetches small documents of http and https, with certificates checked; redirects never lead from https to http, nor
/// to other schemes. Main thread.
class Downloads {
public:
    virtual ~Downloads() = default;
    /// Calls `answered` once, from the run loop, never from inside this call.
    [[nodiscard]] virtual std::unique_ptr<Download> fetch(const DownloadRequest& request,
                                                          std::function<void(const DownloadAnswer&)> answered) = 0;
};

} // namespace platform
