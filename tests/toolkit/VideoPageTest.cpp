// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/VideoPage.h"
#include "tests/support/Files.h"
#include "tests/toolkit/ToolkitRig.h"
#include "tools/screen/HttpServer.h"

#include <QDir>
#include <QFile>

#include <cstdlib>

namespace {

/// A page on a server beside a movie, and a program of yt-dlp's name that comes before all others.
class VideoPage : public testing::Test {
protected:
    VideoPage() {
        const QString movie = QString::fromStdString(media().makeNumbered("page.mp4", {.frames = 60}).string());
        QFile::copy(movie, folder.filePath("movie.mp4"));
        writeFile(folder.filePath("page.html"), "<!DOCTYPE html><html><body>a video</body></html>\n");
        server = std::make_unique<harness::HttpServer>(folder.filePath("movie.mp4").toStdString());
        page = QUrl(QString::fromStdString(server->url("/beside/page.html")));
        QDir(folder.path()).mkdir("bin");
        qputenv("PATH", (folder.filePath("bin") + ':').toUtf8() + path);
    }
    ~VideoPage() override { qputenv("PATH", path); }

    void setProgram(const QString& script) {
        const QString file = writeFile(folder.filePath("bin/yt-dlp"), ("#!/bin/sh\n" + script + '\n').toUtf8());
        QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QString answering(const std::string& url) const {
        return "printf '%s\\n' \"$@\" > " + folder.filePath("asked") + "; echo " + QString::fromStdString(url);
    }
    bool wasAsked() const { return QFile::exists(folder.filePath("asked")); }

    const QByteArray path = qgetenv("PATH");
    const std::atomic<bool> goesOn{false};
    QTemporaryDir folder;
    std::unique_ptr<harness::HttpServer> server;
    QUrl page;
};

} // namespace

TEST_F(VideoPage, the_program_is_asked_only_where_the_user_wants_it_and_the_address_is_no_movie) {
    setProgram(answering(server->url("/movie.mp4")));
    ToolkitRig rig;
    EXPECT_FALSE(rig.answerOf(page).info) << "it is off at first";
    EXPECT_FALSE(wasAsked());
    rig.toolkit.setOpensPages([] { return true; });
    EXPECT_TRUE(rig.answerOf(QUrl(QString::fromStdString(server->url("/movie.mp4")))).info);
    EXPECT_FALSE(wasAsked());
    const platform::OpenedMovie opened = rig.answerOf(page);
    ASSERT_TRUE(opened.info);
    EXPECT_EQ(opened.info->url, page) << "what the list keeps";
    EXPECT_EQ(opened.info->source().toString().toStdString(), server->url("/movie.mp4")) << "what is played";
    EXPECT_EQ(opened.info->videoSampleCount, 60U);
    QFile asked(folder.filePath("asked"));
    ASSERT_TRUE(asked.open(QFile::ReadOnly));
    EXPECT_TRUE(asked.readAll().endsWith("\n--\n" + page.toEncoded() + '\n')) << "never taken for an option";
}

TEST_F(VideoPage, what_the_program_answers_is_not_trusted) {
    for (const char* answer : {"file:///etc/passwd", "/etc/passwd", "lavfi://x", "", "--help", "http://"}) {
        setProgram(answering(answer));
        EXPECT_EQ(platform::streamOfPage(page, goesOn), std::nullopt) << answer;
    }
    setProgram(answering("https://a.example/b") + "; echo https://a.example/second");
    EXPECT_EQ(platform::streamOfPage(page, goesOn), QUrl("https://a.example/b"));
    setProgram("echo https://a.example/b; exit 1");
    EXPECT_EQ(platform::streamOfPage(page, goesOn), std::nullopt) << "it failed";
    setProgram("yes https://a.example/b");
    EXPECT_EQ(platform::streamOfPage(page, goesOn), std::nullopt) << "endless";
    EXPECT_EQ(platform::streamOfPage(QUrl("rtsp://a.example/b"), goesOn), std::nullopt);
    const std::atomic<bool> cancelled{true};
    setProgram("sleep 1000");
    EXPECT_EQ(platform::streamOfPage(page, cancelled), std::nullopt) << "ends with the player";
}
