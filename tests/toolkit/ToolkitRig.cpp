// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/toolkit/ToolkitRig.h"

#include "platform/window/VideoLayer.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QTimer>

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <utility>

const harness::MediaFixture& media() {
    static const harness::MediaFixture fixture(LUMARO_BINARY_DIR "/tests/media");
    return fixture;
}

QUrl urlOf(const std::filesystem::path& path) {
    return QUrl::fromLocalFile(QFile::decodeName(path.c_str()));
}

QUrl numberedMovie() {
    return urlOf(media().makeNumbered("numbered.mp4", {}));
}

std::filesystem::path scratch(const std::string& name, const std::string& content) {
    const std::filesystem::path folder = LUMARO_BINARY_DIR "/tests/media/scratch";
    std::filesystem::create_directories(folder);
    // Another test may be reading the one before.
    const std::filesystem::path unfinished = folder / (name + std::to_string(::getpid()));
    std::ofstream(unfinished, std::ios::binary | std::ios::trunc) << content;
    std::filesystem::rename(unfinished, folder / name);
    return folder / name;
}

RenderedPicture::RenderedPicture(const QSize& size)
    : _size(size)
    , _pixels(static_cast<unsigned char*>(std::aligned_alloc(64, stride() * static_cast<std::size_t>(size.height())))) {
    std::memset(_pixels.get(), 0, stride() * static_cast<std::size_t>(size.height()));
}

harness::Color RenderedPicture::at(int x, int y) const {
    const unsigned char* pixel =
        _pixels.get() + static_cast<std::size_t>(y) * stride() + static_cast<std::size_t>(x) * 4;
    return {pixel[2], pixel[1], pixel[0]};
}

std::optional<int> RenderedPicture::number() const {
    constexpr int bits = 12;
    if (at(_size.width() / 6, _size.height() * 5 / 6).isNear({0, 0, 0}, 60))
        return std::nullopt;
    int number = 0;
    for (int bit = 0; bit < bits; ++bit) {
        const harness::Color color = at((2 * (bits - 1 - bit) + 1) * _size.width() / (2 * bits), _size.height() / 2);
        if (color.isNear({255, 255, 255}, 60))
            number |= 1 << bit;
        else if (!color.isNear({0, 0, 0}, 60))
            return std::nullopt;
    }
    return number;
}

double RenderedPicture::differenceTo(const RenderedPicture& other) const {
    double sum = 0;
    const std::size_t count = stride() * static_cast<std::size_t>(_size.height());
    for (std::size_t i = 0; i < count; ++i) {
        if (i % 4 != 3)
            sum += std::abs(int{_pixels.get()[i]} - int{other._pixels.get()[i]});
    }
    return sum / (static_cast<double>(count) * 3 / 4);
}

ToolkitRig::ToolkitRig() {
    platform::RunLoop::setMain(&loop);
    player().setObserver(this);
    toolkit.enter();
}

ToolkitRig::~ToolkitRig() {
    player().setObserver(nullptr);
    toolkit.exit();
    platform::RunLoop::setMain(nullptr);
    for (const QString& line : log.lines()) {
        if (line.startsWith("ERROR: ") && (expectedError.isEmpty() || !line.contains(expectedError)))
            ADD_FAILURE() << line.toStdString();
    }
}

bool ToolkitRig::waitFor(const std::function<bool()>& done) {
    const QDeadlineTimer deadline(10000);
    QTimer wake; // what is waited for may come without an event
    wake.start(5);
    while (!done() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return done();
}

void ToolkitRig::settle() {
    int before = -1;
    double since = loop.now();
    waitFor([&] {
        if (std::exchange(before, _reports) != _reports)
            since = loop.now();
        return loop.now() - since > 0.3;
    });
}

platform::OpenedMovie ToolkitRig::answerOf(const QUrl& url) {
    std::optional<platform::OpenedMovie> answer;
    const auto opening = toolkit.openAsync(url, [&](platform::OpenedMovie opened) { answer = std::move(opened); });
    waitFor([&] { return answer.has_value(); });
    return answer.value_or(platform::OpenedMovie{});
}

std::unique_ptr<platform::Movie> ToolkitRig::open(const QUrl& url) {
    const platform::OpenedMovie opened = answerOf(url);
    if (!opened.info)
        return nullptr;
    auto movie = std::make_unique<platform::Movie>(*opened.info, player());
    armEnd(*movie);
    armJump(*movie);
    return movie;
}

std::unique_ptr<platform::Movie> ToolkitRig::show(const QUrl& url) {
    auto movie = open(url);
    EXPECT_TRUE(movie);
    player().load(movie.get());
    EXPECT_TRUE(shows(0));
    settle();
    times.clear();
    return movie;
}

void ToolkitRig::playerFrameChanged() {
    ++_reports;
    const QRect whole(QPoint(0, 0), screen.size());
    if (!player().videoLayer()->renderPixels(whole, whole, screen.pixels(), screen.stride()))
        std::memset(screen.pixels(), 0, screen.stride() * static_cast<std::size_t>(screen.size().height()));
}

void ToolkitRig::playerStateChanged() {
    ++_reports;
    if (times.empty() || times.back() != player().time())
        times.push_back(player().time());
}

void ToolkitRig::armEnd(platform::Movie& movie) {
    movie.callWhenStopped([this, &movie] {
        ++ends;
        armEnd(movie);
    });
}

void ToolkitRig::armJump(platform::Movie& movie) {
    movie.callWhenTimeJumps([this, &movie] {
        ++jumps;
        armJump(movie);
    });
}
