// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/NotificationCenter.h"
#include "platform/base/PropertyList.h"
#include "platform/base/StringComparison.h"
#include "playback/MovieSizing.h"

#include <QFile>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

namespace {

struct Tick {
    int number;
};

void sortingAThousandNames(benchmark::State& state) {
    std::vector<QString> names;
    for (int i = 0; i < 1000; ++i) // 389 has no factor in common with 1000: each number once, out of order.
        names.push_back(QStringLiteral("Season %1, Épisode %2.mkv").arg(i % 7).arg(i * 389 % 1000));
    const bool numerically = state.range(0) != 0;
    for ([[maybe_unused]] const auto step : state) {
        std::vector<QString> sorted = names;
        std::ranges::sort(sorted, [&](const QString& left, const QString& right) {
            return platform::compareCaseInsensitively(left, right, numerically) < 0;
        });
        benchmark::DoNotOptimize(sorted.data());
    }
}
BENCHMARK(sortingAThousandNames)->ArgName("numerically")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void postingToObservers(benchmark::State& state) {
    platform::NotificationCenter center;
    int sum = 0;
    std::vector<platform::Subscription> subscriptions;
    for (int i = 0; i < state.range(0); ++i)
        subscriptions.push_back(center.observe<Tick>([&sum](const Tick& tick) { sum += tick.number; }));
    for ([[maybe_unused]] const auto step : state)
        center.post(Tick{1});
    benchmark::DoNotOptimize(sum);
}
BENCHMARK(postingToObservers)->ArgName("observers")->Arg(1)->Arg(8);

void planningASize(benchmark::State& state) {
    const MovieSizing::Geometry geometry{{1920, 800}, {2560, 1440}, true, 1.5F};
    std::int32_t code = movieSize::smaller;
    for ([[maybe_unused]] const auto step : state) {
        benchmark::DoNotOptimize(MovieSizing::planSize(code, {1280, 533}, geometry));
        code = code == movieSize::custom ? movieSize::smaller : code + 1;
    }
}
BENCHMARK(planningASize);

QByteArray registeredSettings() {
    QFile file(QStringLiteral(LUMARO_SOURCE_DIR "/resources/UserDefaults.plist"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void readingTheRegisteredSettings(benchmark::State& state) {
    const QByteArray bytes = registeredSettings();
    if (bytes.isEmpty())
        state.SkipWithError("the registered settings are missing");
    for ([[maybe_unused]] const auto step : state)
        benchmark::DoNotOptimize(platform::propertyList::parse(bytes));
}
BENCHMARK(readingTheRegisteredSettings)->Unit(benchmark::kMicrosecond);

void writingTheRegisteredSettings(benchmark::State& state) {
    const auto settings = platform::propertyList::parse(registeredSettings());
    if (!settings)
        state.SkipWithError("the registered settings cannot be read");
    const QVariantMap dictionary = settings.value_or(QVariant()).toMap();
    for ([[maybe_unused]] const auto step : state)
        benchmark::DoNotOptimize(platform::propertyList::toXml(dictionary));
}
BENCHMARK(writingTheRegisteredSettings)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
