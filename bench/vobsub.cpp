// SPDX-License-Identifier: GPL-3.0-or-later
// Bitmap subtitles of a DVD: reading an index, and loading the pictures of a film.
#include "bench/BenchedMovie.h"
#include "bench/Letters.h"
#include "subtitles/vobsub/IndexParser.h"
#include "subtitles/vobsub/QVVobSubSubtitles.h"

#include <QCoreApplication>
#include <QImage>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <malloc.h>
#include <string>
#include <sys/resource.h>
#include <thread>

namespace {

/// The index of a DVD with so many languages, each shown so often.
std::string indexOf(int streams, int positions) {
    std::string text = "# VobSub index file, v7 (do not modify this line!)\n"
                       "size: 720x576\norg: 0, 0\nscale: 100%, 100%\nalpha: 100%\nfadein/out: 50, 50\n";
    for (int stream = 0; stream < streams; ++stream) {
        text += "\nid: en, index: " + std::to_string(stream) + "\n";
        for (int position = 0; position < positions; ++position) {
            const int second = position * 5;
            char line[80];
            std::snprintf(line, sizeof line, "timestamp: %02d:%02d:%02d:040, filepos: %09x\n", second / 3600,
                          second / 60 % 60, second % 60, 0x800U * static_cast<unsigned>(position));
            text += line;
        }
    }
    return text;
}

/// 32 languages of 1,500 subpictures; 30 ms are the most it may take.
void readingAnIndex(benchmark::State& state) {
    const std::string text = indexOf(32, 1500);
    for ([[maybe_unused]] const auto step : state) {
        const auto result = IndexParser::parse(text, [](const QString& code) { return code; });
        if (!result.index || result.index->_streams.size() != 32)
            state.SkipWithError("the index was not read");
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * state.iterations());
}
BENCHMARK(readingAnIndex)->Unit(benchmark::kMillisecond);

void readingAMillionPositions(benchmark::State& state) {
    const std::string text = indexOf(1, 1'000'000);
    for ([[maybe_unused]] const auto step : state)
        benchmark::DoNotOptimize(IndexParser::parse(text, [](const QString& code) { return code; }));
}
BENCHMARK(readingAMillionPositions)->Unit(benchmark::kMillisecond);

constexpr std::size_t cueCount = 1500;

/// A film of two hours.
class Film {
public:
    Film() {
        vobsub::PairWriter pair;
        pair.height = 576;
        pair.addStream("en");
        for (std::size_t i = 0; i < cueCount; ++i)
            pair.add(0, static_cast<std::int64_t>(i) * 4800, lettersLike(static_cast<unsigned>(i)));
        if (!pair.write(base.toStdString()))
            std::abort();
        size = pair.data().bytes().size();
    }
    std::shared_ptr<QVSubtitles> open() {
        return QVVobSubSubtitles::subtitlesWithFilePath(Settings::environment(), base + QStringLiteral(".idx"), owner)
            .front();
    }

    QTemporaryDir folder;
    QString base = folder.filePath(QStringLiteral("film"));
    std::size_t size = 0;
    NoMovie owner;
};

Film& film() {
    static Film made;
    return made;
}

void waitFor(QVSubtitles& track, std::size_t count) {
    while (track.count() < count)
        std::this_thread::sleep_for(std::chrono::microseconds(200));
}

double cpuSeconds() {
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double cpuSecondsOfChildren() {
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// CPU time of loading a film's pictures, and how much of that of ffmpeg on the same pair; 0.5 is the most it may be.
/// The memory of all cues may be 60 MB.
void loadingAFilm(benchmark::State& state) {
    double cpu = 0;
    double memory = 0;
    for ([[maybe_unused]] const auto step : state) {
        const auto track = film().open();
        const auto before = mallinfo2();
        const double begin = cpuSeconds();
        track->preload();
        waitFor(*track, cueCount);
        const double spent = cpuSeconds() - begin;
        const auto after = mallinfo2();
        state.SetIterationTime(spent);
        cpu += spent;
        memory = static_cast<double>(after.uordblks + after.hblkhd - before.uordblks - before.hblkhd);
    }
    const std::string idx = film().base.toStdString() + ".idx";
    const double begin = cpuSecondsOfChildren();
    constexpr int runs = 5;
    for (int i = 0; i < runs; ++i)
        if (std::system(("ffmpeg -nostdin -v error -i '" + idx + "' -map 0:s:0 -c:s dvdsub -f null -").c_str()) != 0)
            state.SkipWithError("ffmpeg failed");
    const double reference = (cpuSecondsOfChildren() - begin) / runs;
    const auto iterations = static_cast<double>(state.iterations());
    state.SetBytesProcessed(static_cast<std::int64_t>(film().size) * state.iterations());
    state.counters["ffmpegMs"] = reference * 1000;
    state.counters["toFfmpeg"] = cpu / iterations / reference;
    state.counters["memoryMB"] = memory / 1e6;
}
BENCHMARK(loadingAFilm)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(20);

/// How often another program took the processor from this thread.
long preemptions() {
    rusage usage{};
    ::getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_nivcsw;
}

/// The longest that one call of the main thread takes while the worker loads; 5 ms are the most it may be. Calls during
/// which another program had the processor say nothing about that; they are counted in worstMs.
void lookingUpWhileItLoads(benchmark::State& state) {
    using Clock = std::chrono::steady_clock;
    double longest = 0;
    double longestUnload = 0;
    double worst = 0;
    for ([[maybe_unused]] const auto step : state) {
        const auto track = film().open();
        const auto timed = [&](double& most, auto work) {
            const long before = preemptions();
            const auto begin = Clock::now();
            work();
            const double spent = std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
            worst = std::max(worst, spent);
            if (preemptions() == before)
                most = std::max(most, spent);
        };
        timed(longest, [&] { track->preload(); });
        for (std::int32_t time = 0; track->count() < cueCount; time = (time + 2880) % (7200 * 600)) {
            timed(longest, [&] { benchmark::DoNotOptimize(track->subtitleForTime(time)); });
            std::this_thread::sleep_for(std::chrono::microseconds(200)); // far more often than a movie asks
        }
        timed(longestUnload, [&] { track->unload(); });
    }
    state.counters["longestMs"] = longest;
    state.counters["longestUnloadMs"] = longestUnload;
    state.counters["worstMs"] = worst;
}
BENCHMARK(lookingUpWhileItLoads)->Unit(benchmark::kMillisecond)->Iterations(20);

/// From the kept run lengths to pixels.
void expandingAPicture(benchmark::State& state) {
    const auto track = film().open();
    track->preload();
    waitFor(*track, cueCount);
    const auto cue = track->cues().front();
    for ([[maybe_unused]] const auto step : state)
        benchmark::DoNotOptimize(cue->image()->expanded());
}
BENCHMARK(expandingAPicture)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int count, char** arguments) {
    const QCoreApplication application(count, arguments);
    const Settings settings;
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
