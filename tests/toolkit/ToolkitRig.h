// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/QtRunLoop.h"
#include "platform/movie/Movie.h"
#include "platform/movie/mpv/MpvToolkit.h"
#include "tests/support/CapturedLog.h"
#include "tools/screen/MediaFixture.h"

#include <QCoreApplication>
#include <QSize>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

/// Movies made once and kept beside the build.
const harness::MediaFixture& media();
QUrl urlOf(const std::filesystem::path& path);
/// 300 numbered pictures at 30 a second, a keyframe every 30.
QUrl numberedMovie();
/// A file of that content, made anew.
std::filesystem::path scratch(const std::string& name, const std::string& content);

/// A picture as it is rendered: 32 bits a pixel, blue first.
class RenderedPicture {
public:
    explicit RenderedPicture(const QSize& size);
    unsigned char* pixels() const { return _pixels.get(); }
    std::size_t stride() const { return static_cast<std::size_t>(_size.width()) * 4; }
    const QSize& size() const { return _size; }
    harness::Color at(int x, int y) const;
    /// The number that the movie's picture carries; none when it carries none (whole).
    std::optional<int> number() const;
    /// The mean difference of a channel, 0 to 255.
    double differenceTo(const RenderedPicture& other) const;

private:
    struct Freed {
        void operator()(unsigned char* pixels) const { std::free(pixels); }
    };
    QSize _size;
    std::unique_ptr<unsigned char, Freed> _pixels;
};

/// The real player with a screen in memory, in place of a window.
class ToolkitRig : private platform::MoviePlayer::Observer {
public:
    ToolkitRig();
    ~ToolkitRig() override;

    platform::MoviePlayer& player() { return toolkit.player(); }
    /// Runs the event loop until then; false when it did not come within ten seconds.
    static bool waitFor(const std::function<bool()>& done);
    /// Opens the movie; what it reports is counted.
    platform::OpenedMovie answerOf(const QUrl& url);
    std::unique_ptr<platform::Movie> open(const QUrl& url);
    /// Opens it, loads it and waits for its first picture.
    std::unique_ptr<platform::Movie> show(const QUrl& url);
    bool shows(int number) {
        return waitFor([this, number] { return screen.number() == number; });
    }
    /// Lets what was asked of the player be done: nothing is reported for a while.
    void settle();

    struct Application {
        int count = 1;
        char name[5] = "test";
        char* arguments[2] = {name, nullptr};
        QCoreApplication application{count, arguments};
    };

    CapturedLog log;
    /// Errors of the player's that the test is about.
    QString expectedError;
    Application application;
    platform::QtRunLoop loop;
    platform::MpvToolkit toolkit;
    RenderedPicture screen{QSize(384, 216)};
    /// The times reported, each once in a row.
    std::vector<std::int32_t> times;
    int ends = 0;
    int jumps = 0;

private:
    void playerFrameChanged() override;
    void playerFrameDue() override { playerFrameChanged(); }
    void playerStateChanged() override;
    void armEnd(platform::Movie& movie);
    void armJump(platform::Movie& movie);
    int _reports = 0;
};
