// SPDX-License-Identifier: GPL-3.0-or-later
// A file of 100,000 cues: loading it, and finding cues in it.
#include "bench/BenchedMovie.h"
#include "subtitles/formats/SubtitleFormats.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <fstream>
#include <malloc.h>
#include <string>

namespace {

constexpr std::int32_t cueCount = 100'000;
constexpr std::int32_t unitsPerCue = 600; // a second each

std::string twoDigits(std::int32_t number) {
    return {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
}

std::string timeText(std::int32_t second, const char* rest) {
    return twoDigits(second / 3600) + ':' + twoDigits(second / 60 % 60) + ':' + twoDigits(second % 60) + ',' + rest;
}

/// A file of two lines a cue, about 12 MB, one letter in ten of them not ASCII.
class Film {
public:
    Film() {
        std::string text;
        for (std::int32_t number = 0; number < cueCount; ++number)
            text += std::to_string(number + 1) + '\n' + timeText(number, "000") + " --> " + timeText(number, "900") +
                    "\nWhere have you been all night\xE2\x80\x89? H\xC3\xA9l\xC3\xA8ne waited for you.\nI was at the "
                    "harbour "
                    "\xE2\x80\x93 watching ships.\n\n";
        std::ofstream(path.toStdString()) << text;
        size = text.size();
    }
    std::shared_ptr<QVSubtitles> open() {
        SubtitleRegistry registry(subtitleReaders(Settings::environment(), nullptr));
        const auto tracks = registry.subtitlesWithFilePath(path, owner);
        return tracks.empty() ? nullptr : tracks.front();
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("film.srt"));
    std::size_t size = 0;
    NoMovie owner;
};

Film& film() {
    static Film made;
    return made;
}

void loading(benchmark::State& state) {
    const auto track = film().open();
    double memory = 0;
    for ([[maybe_unused]] const auto step : state) {
        const auto before = mallinfo2();
        track->preload();
        if (track->count() != static_cast<std::size_t>(cueCount))
            state.SkipWithError("not all cues were read");
        state.PauseTiming();
        const auto after = mallinfo2();
        memory = static_cast<double>(after.uordblks + after.hblkhd - before.uordblks - before.hblkhd);
        track->unload();
        state.ResumeTiming();
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(film().size) * state.iterations());
    state.counters["memoryToFile"] = memory / static_cast<double>(film().size);
}
BENCHMARK(loading)->Unit(benchmark::kMillisecond);

void lookingUpTheCurrentCue(benchmark::State& state) {
    const auto track = film().open();
    track->preload();
    for ([[maybe_unused]] const auto step : state)
        benchmark::DoNotOptimize(track->subtitleForTime(100));
}
BENCHMARK(lookingUpTheCurrentCue);

void lookingUpAcrossAChange(benchmark::State& state) {
    const auto track = film().open();
    track->preload();
    std::int32_t time = 0;
    for ([[maybe_unused]] const auto step : state) {
        benchmark::DoNotOptimize(track->subtitleForTime(time));
        time += unitsPerCue;
        if (time >= cueCount * unitsPerCue) {
            track->reset();
            time = 0;
        }
    }
}
BENCHMARK(lookingUpAcrossAChange);

void seekingAcrossAllCues(benchmark::State& state) {
    const auto track = film().open();
    track->preload();
    bool forward = true;
    for ([[maybe_unused]] const auto step : state) {
        benchmark::DoNotOptimize(track->subtitleForTime(forward ? cueCount * unitsPerCue - 500 : 100));
        forward = !forward;
    }
}
BENCHMARK(seekingAcrossAllCues)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int count, char** arguments) {
    const QCoreApplication application(count, arguments);
    const Settings settings;
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
