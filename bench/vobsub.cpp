// SPDX-License-Identifier: GPL-3.0-or-later
// Bitmap subtitles of a DVD: reading an index.
#include "subtitles/vobsub/IndexParser.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

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

} // namespace

BENCHMARK_MAIN();
