// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QSslCertificate>
#include <QString>
#include <QUrl>

#include <chrono>
#include <optional>

/// A document to fetch, and how much it may take.
struct FetchRequest {
    /// Of http or https; others are refused.
    QUrl url;
    /// In all: finding the server, being redirected, and the document itself.
    std::chrono::milliseconds timeout{10'000};
    qsizetype maximumBytes = 1024 * 1024;
    int maximumRedirects = 10;
    /// Trusted beside the system's certificates.
    QList<QSslCertificate> trusted = {};
};

struct FetchAnswer {
    /// None when it failed; then `error` says why, in English.
    std::optional<QByteArray> data;
    QString error;
    /// How many redirects were followed, and where the last one led.
    int redirects = 0;
    QUrl url;
};

/// Fetches the document and waits for it, handling events meanwhile. Certificates are checked. Redirects lead to http
/// and https only, and from https to https. Nothing is sent that tells about the user: no language, no cookies, no
/// version. Needs the application object.
FetchAnswer fetch(const FetchRequest& request);
