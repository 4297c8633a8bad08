// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/fetch/Fetch.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSslConfiguration>
#include <QTimer>

#include <memory>

namespace {

constexpr int statusOk = 200;

bool isWeb(const QUrl& url) {
    return url.isValid() && !url.host().isEmpty() &&
           (url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http"));
}

bool isRedirect(int status) {
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

/// One fetching, from the first request to the end. The network's own following of redirects is not used: it would not
/// say how many there were.
class Fetching {
public:
    explicit Fetching(const FetchRequest& request)
        : _request(request) {
        _deadline.setSingleShot(true);
        QObject::connect(&_deadline, &QTimer::timeout, &_loop, [this] { fail(QStringLiteral("no answer in time")); });
        _answer.url = request.url;
    }

    FetchAnswer run() {
        _deadline.start(_request.timeout);
        ask();
        if (!_hasEnded)
            _loop.exec();
        return _answer;
    }

private:
    QNetworkRequest webRequest() const {
        QNetworkRequest request(_answer.url);
        request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
        request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
        request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
        request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Lumaro"));
        request.setRawHeader("Accept-Language", "*");
        request.setRawHeader("Accept-Encoding", "identity"); // what comes is as long as it seems
        if (!_request.trusted.isEmpty()) {
            QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
            configuration.addCaCertificates(_request.trusted);
            request.setSslConfiguration(configuration);
        }
        return request;
    }

    void ask() {
        if (!isWeb(_answer.url)) {
            fail(QStringLiteral("not an address of the web"));
            return;
        }
        _data.clear();
        _reply.reset(_network.get(webRequest()));
        QObject::connect(_reply.get(), &QNetworkReply::readyRead, &_loop, [this] { read(); });
        QObject::connect(_reply.get(), &QNetworkReply::finished, &_loop, [this] { finished(); });
    }

    void read() {
        _data += _reply->read(_request.maximumBytes + 1 - _data.size());
        if (_data.size() > _request.maximumBytes)
            fail(QStringLiteral("larger than allowed"));
    }

    void finished() {
        if (_hasEnded)
            return;
        const int status = _reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (isRedirect(status)) {
            redirected(_answer.url.resolved(_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl()));
            return;
        }
        if (_reply->error() == QNetworkReply::NoError)
            read();
        if (_hasEnded)
            return;
        if (_reply->error() != QNetworkReply::NoError)
            fail(_reply->errorString());
        else if (status != statusOk)
            fail(QStringLiteral("the server answered %1").arg(status));
        else
            end(_data);
    }

    void redirected(const QUrl& target) {
        if (!isWeb(target) || (_answer.url.scheme() == QLatin1String("https") && target.scheme() != u"https"))
            fail(QStringLiteral("a redirect to %1 is refused").arg(target.toString()));
        else if (_answer.redirects == _request.maximumRedirects)
            fail(QStringLiteral("too many redirects"));
        else {
            ++_answer.redirects;
            _answer.url = target;
            // Not from within the signal of the reply that ask() lets go.
            QMetaObject::invokeMethod(
                &_loop, [this] { ask(); }, Qt::QueuedConnection);
        }
    }

    void fail(const QString& error) {
        _answer.error = error;
        end(std::nullopt);
    }

    void end(const std::optional<QByteArray>& data) {
        if (_hasEnded)
            return;
        _hasEnded = true;
        _answer.data = data;
        _deadline.stop();
        _loop.quit();
    }

    struct Later {
        void operator()(QNetworkReply* reply) const {
            reply->disconnect();
            reply->deleteLater();
        }
    };

    const FetchRequest& _request;
    FetchAnswer _answer;
    QByteArray _data;
    bool _hasEnded = false;
    QEventLoop _loop;
    QTimer _deadline;
    QNetworkAccessManager _network;
    std::unique_ptr<QNetworkReply, Later> _reply;
};

} // namespace

FetchAnswer fetch(const FetchRequest& request) {
    return Fetching(request).run();
}
