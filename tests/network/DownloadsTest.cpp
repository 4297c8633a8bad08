// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Background.h"
#include "platform/base/Bundle.h"
#include "platform/base/ToolDownloads.h"
#include "tests/support/TestEnvironment.h"
#include "tests/support/network/MirrorServer.h"
#include "tools/fetch/Fetch.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using Manner = MirrorServer::Manner;

// Certificates made for the run, of an authority that only the tests know.
class Authority {
public:
    Authority() {
        run({"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-keyout", "ca.key", "-out", "ca.pem", "-subj",
             "/CN=Authority of a test", "-days", "2"});
        run({"req", "-newkey", "rsa:2048", "-nodes", "-keyout", "server.key", "-out", "server.csr", "-subj",
             "/CN=a server"});
        good = sign("good", "IP:127.0.0.1", {"-days", "2"});
        expired = sign("expired", "IP:127.0.0.1", {"-days", "-1"});
        if (QFile file(expired.certificate); file.size() == 0) // newer versions ask for the dates themselves
            expired =
                sign("expired", "IP:127.0.0.1", {"-not_before", "20200101000000Z", "-not_after", "20200201000000Z"});
        wrongName = sign("name", "DNS:elsewhere.example", {"-days", "2"});
    }
    static const Authority& shared() {
        static const Authority authority;
        return authority;
    }
    QString file(const QString& name) const { return _folder.filePath(name); }
    QList<QSslCertificate> certificates() const { return QSslCertificate::fromPath(file("ca.pem")); }

    ServerIdentity good, expired, wrongName;

private:
    void run(const QStringList& arguments) {
        QProcess process;
        process.setWorkingDirectory(_folder.path());
        process.start("openssl", arguments);
        process.waitForFinished(60'000);
    }
    ServerIdentity sign(const QString& name, const QString& subject, const QStringList& dates) {
        QFile extensions(file(name + ".ext"));
        EXPECT_TRUE(extensions.open(QIODevice::WriteOnly));
        extensions.write("subjectAltName=" + subject.toLatin1() + "\n");
        extensions.close();
        run(QStringList{"x509", "-req", "-in", "server.csr", "-CA", "ca.pem", "-CAkey", "ca.key", "-CAcreateserial",
                        "-extfile", name + ".ext", "-out", name + ".pem"} +
            dates);
        return {file(name + ".pem"), file("server.key")};
    }
    QTemporaryDir _folder;
};

class Fetch : public testing::Test {
protected:
    static void SetUpTestSuite() {
        static int count = 1;
        static char name[] = "test";
        static char* arguments[] = {name, nullptr};
        if (!QCoreApplication::instance())
            new QCoreApplication(count, arguments); // to the end of the process
    }
    static FetchRequest requestOf(const QUrl& url) {
        return {.url = url, .timeout = std::chrono::seconds(20), .trusted = Authority::shared().certificates()};
    }
};

} // namespace

TEST_F(Fetch, a_document_comes_whole_and_the_request_tells_nothing_about_the_user) {
    MirrorServer server;
    server.answer("/list", {.body = "what it says"});
    const FetchAnswer answer = fetch({server.url("/list")});
    EXPECT_EQ(answer.data, "what it says") << answer.error.toStdString();
    EXPECT_EQ(answer.redirects, 0);
    const QByteArray request = server.lastRequest().toLower();
    EXPECT_TRUE(request.contains("user-agent: lumaro\r\n") && request.contains("accept-language: *\r\n"))
        << request.toStdString();
    EXPECT_FALSE(request.contains("cookie:"));
}

TEST_F(Fetch, what_is_wrong_ends_it_without_a_document) {
    MirrorServer server;
    server.answer("/cut", {.body = "half of it", .manner = Manner::cut});
    server.answer("/slow", {.body = QByteArray(10'000, 'x'), .manner = Manner::slow});
    server.answer("/silent", {.body = {}, .manner = Manner::silent});
    server.answer("/endless", {.body = QByteArray(100'000, 'x'), .manner = Manner::endless});
    server.answer("/large", {.body = QByteArray(1'000'001, 'x')});
    server.answer("/error", {.body = "<html>", .status = 500});
    server.answer("/nothing", {.body = {}, .status = 204});
    server.redirect("/away", "file:///etc/passwd");
    server.redirect("/nowhere", "");
    const struct {
        const char* path;
        int milliseconds;
        const char* error;
    } cases[] = {{"/cut", 20'000, ""},
                 {"/slow", 700, "no answer in time"},
                 {"/silent", 700, "no answer in time"},
                 {"/endless", 20'000, "larger than allowed"},
                 {"/large", 20'000, "larger than allowed"},
                 {"/missing", 20'000, ""},
                 {"/error", 20'000, ""},
                 {"/nothing", 20'000, "the server answered 204"},
                 {"/away", 20'000, "a redirect to file:///etc/passwd is refused"},
                 {"/nowhere", 20'000, ""}};
    for (const auto& c : cases) {
        const FetchAnswer answer = fetch({.url = server.url(c.path),
                                          .timeout = std::chrono::milliseconds(c.milliseconds),
                                          .maximumBytes = 1'000'000});
        EXPECT_FALSE(answer.data) << c.path;
        EXPECT_FALSE(answer.error.isEmpty()) << c.path;
        EXPECT_TRUE(answer.error.contains(QLatin1String(c.error))) << c.path << ": " << answer.error.toStdString();
    }
    for (const char* address : {"file:///etc/passwd", "ftp://127.0.0.1/a", "data:,x", "http:///a", "list", ""})
        EXPECT_EQ(fetch({QUrl(QString::fromUtf8(address))}).error, "not an address of the web") << address;
}

TEST_F(Fetch, a_document_as_large_as_allowed_is_taken) {
    MirrorServer server;
    server.answer("/list", {.body = QByteArray(1'000'000, 'x')});
    const FetchAnswer answer = fetch({.url = server.url("/list"), .maximumBytes = 1'000'000});
    EXPECT_EQ(answer.data, QByteArray(1'000'000, 'x')) << answer.error.toStdString();
}

TEST_F(Fetch, redirects_are_followed_and_counted_as_far_as_allowed) {
    MirrorServer server;
    for (int i = 0; i < 10; ++i)
        server.redirect("/" + QByteArray::number(i), "/" + QByteArray::number(i + 1)); // relative ones
    server.answer("/10", {.body = "the end"});
    server.redirect("/loop", "/loop");
    const FetchAnswer allowed = fetch({.url = server.url("/0"), .maximumRedirects = 10});
    EXPECT_EQ(allowed.data, "the end") << allowed.error.toStdString();
    EXPECT_EQ(allowed.redirects, 10);
    EXPECT_EQ(allowed.url, server.url("/10"));
    EXPECT_EQ(fetch({.url = server.url("/0"), .maximumRedirects = 9}).error, "too many redirects");
    EXPECT_EQ(fetch({.url = server.url("/loop"), .maximumRedirects = 10}).error, "too many redirects");
    EXPECT_EQ(server.asked().count("/loop"), 11);
}

TEST_F(Fetch, certificates_are_checked) {
    const Authority& authority = Authority::shared();
    const struct {
        const char* name;
        const ServerIdentity& identity;
        bool isKnown;
        bool isTaken;
    } cases[] = {{"good", authority.good, true, true},
                 {"of an unknown authority", authority.good, false, false},
                 {"expired", authority.expired, true, false},
                 {"of another server", authority.wrongName, true, false}};
    for (const auto& c : cases) {
        MirrorServer server(&c.identity);
        server.answer("/list", {.body = "secret"});
        FetchRequest request = requestOf(server.url("/list"));
        if (!c.isKnown)
            request.trusted.clear();
        const FetchAnswer answer = fetch(request);
        EXPECT_EQ(answer.data.has_value(), c.isTaken) << c.name << ": " << answer.error.toStdString();
        EXPECT_EQ(server.asked().size(), c.isTaken ? 1 : 0) << c.name;
    }
}

TEST_F(Fetch, a_redirect_may_lead_to_https_but_never_from_it_to_http) {
    MirrorServer plain;
    MirrorServer safe(&Authority::shared().good);
    plain.answer("/list", {.body = "plain"});
    safe.answer("/list", {.body = "safe"});
    plain.redirect("/up", safe.url("/list").toEncoded());
    safe.redirect("/along", safe.url("/list").toEncoded());
    safe.redirect("/down", plain.url("/list").toEncoded());
    EXPECT_EQ(fetch(requestOf(plain.url("/up"))).data, "safe");
    EXPECT_EQ(fetch(requestOf(safe.url("/along"))).data, "safe");
    EXPECT_FALSE(fetch(requestOf(safe.url("/down"))).data);
    EXPECT_FALSE(plain.asked().contains("/list"));
}

// By the program of ours

TEST_F(Fetch, the_player_gets_the_answer_from_its_run_loop) {
    TestEnvironment env;
    MirrorServer server(&Authority::shared().good);
    server.redirect("/first", "/list");
    server.answer("/list", {.body = "ok 1 line\nand more\n"});
    server.redirect("/loop", "/loop");
    qputenv("SSL_CERT_FILE", Authority::shared().file("ca.pem").toLocal8Bit());
    platform::ToolDownloads downloads(platform::Bundle::main());
    const auto answerOf = [&](const QString& path) {
        std::optional<platform::DownloadAnswer> answer;
        const auto download =
            downloads.fetch({.url = server.url(path), .timeout = 30}, [&](const auto& given) { answer = given; });
        EXPECT_FALSE(answer);
        EXPECT_TRUE(env.runLoop.runPosted());
        return answer.value_or(platform::DownloadAnswer{});
    };
    const platform::DownloadAnswer good = answerOf("/first");
    EXPECT_EQ(good.data, "ok 1 line\nand more\n") << good.error.toStdString();
    EXPECT_EQ(good.redirects, 1);
    EXPECT_EQ(good.url, server.url("/list"));
    const platform::DownloadAnswer bad = answerOf("/loop");
    EXPECT_FALSE(bad.data);
    EXPECT_EQ(bad.error, "too many redirects");
    EXPECT_EQ(bad.redirects, 10);
    qunsetenv("SSL_CERT_FILE");
}

TEST_F(Fetch, one_that_hangs_ends_at_once_with_whoever_wanted_it) {
    TestEnvironment env;
    MirrorServer server;
    server.answer("/silent", {.body = {}, .manner = Manner::silent});
    platform::ToolDownloads downloads(platform::Bundle::main());
    bool isAnswered = false;
    auto download =
        downloads.fetch({.url = server.url("/silent"), .timeout = 60}, [&](const auto&) { isAnswered = true; });
    QElapsedTimer waited;
    waited.start();
    while (server.asked().isEmpty() && waited.elapsed() < 30'000)
        env.runLoop.runPosted(0.02);
    ASSERT_EQ(server.asked().size(), 1);
    download.reset();
    EXPECT_TRUE(platform::background::waitUntilIdle(30)) << "the program goes on";
    EXPECT_FALSE(env.runLoop.runPosted(0.1));
    EXPECT_FALSE(isAnswered);
}
