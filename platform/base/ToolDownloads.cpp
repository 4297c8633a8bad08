// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/ToolDownloads.h"

#include "platform/base/Background.h"
#include "platform/base/Bundle.h"
#include "platform/base/Delivery.h"
#include "platform/base/ToolProcess.h"

#include <stop_token>
#include <utility>

namespace platform {

namespace {

/// What the program says beside the document.
constexpr qsizetype maximumFirstLine = 16 * 1024;
/// The program keeps the time itself; this is for one that does not.
constexpr double secondsToSayIt = 1;

DownloadAnswer failed(const QString& error) {
    return {std::nullopt, error, 0, {}};
}

DownloadAnswer answerOf(const QByteArray& output) {
    const qsizetype end = output.indexOf('\n');
    const QString line = QString::fromUtf8(output.left(end < 0 ? 0 : end));
    const QString rest = line.section(u' ', 2);
    const int redirects = line.section(u' ', 1, 1).toInt();
    if (line.startsWith(QLatin1String("ok ")))
        return {output.mid(end + 1), {}, redirects, QUrl(rest)};
    return {std::nullopt, rest.isEmpty() ? QStringLiteral("no answer in time") : rest, redirects, {}};
}

DownloadAnswer runProgram(const QString& program, const DownloadRequest& request, const std::stop_token& stop) {
    QByteArray output;
    ToolRequest tool;
    tool.program = program;
    tool.arguments = {request.url.toString(QUrl::FullyEncoded), QString::number(request.maximumRedirects),
                      QString::number(request.maximumBytes), QString::number(static_cast<int>(request.timeout * 1000))};
    tool.timeout = request.timeout + secondsToSayIt;
    tool.dropsErrors = true;
    tool.output = [&output](const QByteArray& piece) { output += piece; };
    tool.maximumOutput = request.maximumBytes + maximumFirstLine;
    tool.stop = stop;
    return runTool(tool) ? answerOf(output) : failed(QStringLiteral("the program that fetches cannot be started"));
}

class ToolDownload final : public Download {
public:
    ToolDownload(const QString& program, const DownloadRequest& request,
                 std::function<void(const DownloadAnswer&)> answered) {
        // First: what is there already would be handed over at once.
        _delivery->receive(std::move(answered));
        background::run([delivery = _delivery, program, request, stop = _stop.get_token()] {
            delivery->deliver(runProgram(program, request, stop));
        });
    }
    ~ToolDownload() override {
        _delivery->abandon();
        _stop.request_stop();
    }

private:
    std::stop_source _stop;
    std::shared_ptr<Delivery<DownloadAnswer>> _delivery = std::make_shared<Delivery<DownloadAnswer>>();
};

} // namespace

std::unique_ptr<Download> ToolDownloads::fetch(const DownloadRequest& request,
                                               std::function<void(const DownloadAnswer&)> answered) {
    return std::make_unique<ToolDownload>(_bundle.pathForTool(QStringLiteral("fetch")), request, std::move(answered));
}

} // namespace platform
