// SPDX-License-Identifier: GPL-3.0-or-later
// How long the small picture of a place in a movie takes, from the pointer's coming to rest to the picture's being
// there: the goal is 100 ms at 1080p H.264. Movies are made by ffmpeg once, and kept. Another one is named by
// LUMARO_MOVIE.
#include "platform/base/QtRunLoop.h"
#include "platform/movie/mpv/MpvToolkit.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QProcess>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

constexpr double seconds = 120;

QString movie(const QString& name, const QStringList& video) {
    const QString path = QStringLiteral(LUMARO_BINARY_DIR) + u'/' + name;
    if (!QFile::exists(path)) {
        const QString unfinished = path + QStringLiteral(".part.mkv");
        QStringList arguments{
            "-v", "error", "-y", "-f", "lavfi", "-i", QStringLiteral("testsrc2=s=1920x1080:r=24:d=%1").arg(seconds)};
        QProcess::execute("ffmpeg", arguments + video + QStringList{unfinished});
        QFile::rename(unfinished, path);
    }
    return path;
}

void picture(benchmark::State& state, const QString& path) {
    platform::MpvToolkit toolkit;
    const QUrl url = QUrl::fromLocalFile(qEnvironmentVariable("LUMARO_MOVIE", path));
    std::mt19937 random(1);
    std::vector<double> times;
    for (auto _ : state) {
        const double place = std::uniform_real_distribution<>(0, seconds)(random);
        const auto begin = std::chrono::steady_clock::now();
        QEventLoop loop;
        const auto opening = toolkit.keyframeAsync(url, place, QSize(224, 224), [&](const QImage& found) {
            if (found.isNull())
                state.SkipWithError("no picture");
            loop.quit();
        });
        loop.exec();
        times.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
    }
    state.counters["slowest_ms"] = *std::ranges::max_element(times);
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    platform::QtRunLoop loop;
    platform::RunLoop::setMain(&loop);
    benchmark::Initialize(&argc, argv);
    const QStringList h264{"-c:v", "libx264", "-preset", "veryfast", "-crf", "20", "-g", "250"};
    benchmark::RegisterBenchmark("place in 1080p H.264",
                                 [path = movie("places-h264.mkv", h264)](auto& state) { picture(state, path); })
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
