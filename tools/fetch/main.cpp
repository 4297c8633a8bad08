// SPDX-License-Identifier: GPL-3.0-or-later
// fetch ADDRESS MAXIMUM_REDIRECTS MAXIMUM_BYTES TIMEOUT_MILLISECONDS
// Prints a line, and after "ok" the document:
//   ok REDIRECTS ADDRESS_IN_THE_END
//   failed REDIRECTS REASON
#include "tools/fetch/Fetch.h"

#include <QCoreApplication>
#include <QNetworkProxyFactory>

#include <cstdio>
#include <cstdlib>

namespace {

/// As other programs have it: a file of certificates to trust, for networks with an authority of their own.
QList<QSslCertificate> ownCertificates() {
    const QString path = qEnvironmentVariable("SSL_CERT_FILE");
    return path.isEmpty() ? QList<QSslCertificate>()
                          : QSslCertificate::fromPath(path, QSsl::Pem, QSslCertificate::PatternSyntax::FixedString);
}

} // namespace

int main(int count, char** arguments) {
    const QCoreApplication application(count, arguments);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() != 5)
        return 2;
    QNetworkProxyFactory::setUseSystemConfiguration(true);
    const FetchAnswer answer = fetch({.url = QUrl(words[1]),
                                      .timeout = std::chrono::milliseconds(words[4].toInt()),
                                      .maximumBytes = words[3].toLongLong(),
                                      .maximumRedirects = words[2].toInt(),
                                      .trusted = ownCertificates()});
    const QString said = answer.data ? answer.url.toString(QUrl::FullyEncoded) : answer.error.simplified();
    std::printf("%s %d %s\n", answer.data ? "ok" : "failed", answer.redirects, said.toUtf8().constData());
    if (answer.data)
        std::fwrite(answer.data->constData(), 1, static_cast<std::size_t>(answer.data->size()), stdout);
    std::fflush(stdout);
    // A name that is still being looked up would be waited for.
    std::_Exit(answer.data ? 0 : 1);
}
