// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/VideoPage.h"

#include "platform/base/ToolProcess.h"

#include <QByteArray>

#include <algorithm>
#include <array>

namespace platform {

namespace {

/// Seconds.
constexpr double pageTimeout = 30;
/// Bytes: addresses of streams are long, but not that long.
constexpr qsizetype maximumAnswer = 1 << 16;

bool isOfTheWeb(const QUrl& url) {
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QStringLiteral("http") || url.scheme() == QStringLiteral("https"));
}

} // namespace

std::optional<QUrl> streamOfPage(const QUrl& page, const std::atomic<bool>& cancelled) {
    if (!isOfTheWeb(page))
        return std::nullopt;
    QByteArray answer;
    ToolRequest request;
    request.program = QStringLiteral("yt-dlp");
    // Picture and sound in one stream: only one is opened.
    request.arguments = {QStringLiteral("--ignore-config"),  QStringLiteral("--no-cache-dir"),
                         QStringLiteral("--no-playlist"),    QStringLiteral("--no-warnings"),
                         QStringLiteral("--socket-timeout"), QStringLiteral("10"),
                         QStringLiteral("--format"),         QStringLiteral("best"),
                         QStringLiteral("--get-url"),        QStringLiteral("--"),
                         page.toString(QUrl::FullyEncoded)};
    request.timeout = pageTimeout;
    request.dropsErrors = true;
    request.output = [&](const QByteArray& piece) { answer += piece; };
    request.maximumOutput = maximumAnswer;
    request.mayGoOn = [&] { return !cancelled; };
    if (runTool(request) != 0)
        return std::nullopt;
    const QUrl stream(QString::fromUtf8(answer.left(answer.indexOf('\n')).trimmed()));
    return isOfTheWeb(stream) ? std::optional(stream) : std::nullopt;
}

bool mayBePage(const QUrl& url, const OpenedMovie& opened) {
    using namespace movieError;
    // Pages are served to browsers, and sites may turn others away.
    static constexpr std::array errors{invalidMovie,  serverAsksForLogin, serverForbids,
                                       serverRefuses, needsRanges,        couldNotOpen};
    return isOfTheWeb(url) && !opened.info && std::ranges::find(errors, opened.error) != errors.end();
}

} // namespace platform
