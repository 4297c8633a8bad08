// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/ToneMapping.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <mutex>
#include <thread>
#include <vector>

namespace platform {

namespace {

// Candelas per square metre: of the screen's white, of the brightest light that PQ can say, of a film that does not say
// how bright it gets, and of the screen for which HLG is made.
constexpr double white = 203;
constexpr double pqPeak = 10000;
constexpr double usualPeak = 1000;
constexpr double hlgPeak = 1000;

constexpr double hlgGamma = 1.2;
constexpr double screenGamma = 2.2;

// ST 2084.
constexpr double m1 = 2610.0 / 16384, m2 = 2523.0 / 4096 * 128;
constexpr double c1 = 3424.0 / 4096, c2 = 2413.0 / 4096 * 32, c3 = 2392.0 / 4096 * 32;

/// From a code of 0 to 1 to candelas, and back.
double pqLight(double code) {
    const double power = std::pow(code, 1 / m2);
    return pqPeak * std::pow(std::max(power - c1, 0.0) / (c2 - c3 * power), 1 / m1);
}

double pqCode(double light) {
    const double power = std::pow(light / pqPeak, m1);
    return std::pow((c1 + c2 * power) / (1 + c3 * power), m2);
}

/// BT.2100: from a code of 0 to 1 to the share of the camera's brightest light.
double hlgLight(double code) {
    constexpr double a = 0.17883277, b = 0.28466892, c = 0.55991073;
    return code <= 0.5 ? code * code / 3 : (std::exp((code - c) / a) + b) / 12;
}

/// BT.2390: the codes of PQ are left alone up to a knee, from which a spline leads to the brightest.
struct RollOff {
    explicit RollOff(double peak)
        : from(pqCode(std::max(peak, white)))
        , maximum(pqCode(white) / from)
        , knee(std::clamp(1.5 * maximum - 0.5, 0.0, 1.0)) {}

    double from;    // the code of the film's brightest light
    double maximum; // the screen's, as a share of it
    double knee;

    double place(double code) const { return knee >= 1 ? 0 : std::clamp((code / from - knee) / (1 - knee), 0.0, 1.0); }
    double operator()(double code) const {
        const double share = std::min(code / from, 1.0);
        if (share <= knee)
            return code;
        const double t = place(code), t2 = t * t, t3 = t2 * t;
        return from * ((2 * t3 - 3 * t2 + 1) * knee + (t3 - 2 * t2 + t) * (1 - knee) + (3 * t2 - 2 * t3) * maximum);
    }
};

// The share of each colour in what is seen as brightness: BT.2020 and BT.709.
constexpr double wideRed = 0.2627, wideGreen = 0.6780, wideBlue = 0.0593;
constexpr double red = 0.2126, green = 0.7152, blue = 0.0722;

// Pictures of fewer pixels than these are not worth a thread.
constexpr int pixelsOfAThread = 200'000;
constexpr unsigned maximumThreads = 4;

// What is rounded off is spread over neighbours: skies have no bands.
constexpr float dither[4][4] = {{0.03F, 0.53F, 0.16F, 0.66F},
                                {0.78F, 0.28F, 0.91F, 0.41F},
                                {0.22F, 0.72F, 0.09F, 0.59F},
                                {0.97F, 0.47F, 0.84F, 0.34F}};

// Of the grid, each way: codes of PQ and HLG are so even to the eye that what lies between two is right to half a step.
constexpr int side = 33;
constexpr std::size_t greenStep = side, redStep = side * side;

/// The grid's corners between the near one and the far one of the tetrahedron that a colour lies in, by which of red
/// and green (4), green and blue (2), red and blue (1) lies further from the near one. Two cases are none.
struct Corners {
    std::size_t second, third;
};
constexpr Corners corners[8] = {
    {1, 1 + greenStep},     {1, 1}, {greenStep, greenStep + 1},    {greenStep, greenStep + redStep}, {1, 1 + redStep},
    {redStep, redStep + 1}, {1, 1}, {redStep, redStep + greenStep}};

using Whole [[gnu::vector_size(16)]] = std::int32_t;
using Bytes [[gnu::vector_size(4)]] = std::uint8_t;

using Light = std::array<double, 3>;

/// What the screen's light should be, where 1 is its white, in the colours of BT.2020.
Light lightOf(const Light& codes, DynamicRange::Transfer transfer) {
    Light light{};
    if (transfer == DynamicRange::Transfer::pq) {
        std::ranges::transform(codes, light.begin(), [](double code) { return pqLight(code) / white; });
        return light;
    }
    std::ranges::transform(codes, light.begin(), hlgLight);
    const double seen = wideRed * light[0] + wideGreen * light[1] + wideBlue * light[2];
    for (double& part : light)
        part *= hlgPeak / white * std::pow(seen, hlgGamma - 1);
    return light;
}

/// The same share of all three keeps the hue; rolled off each for itself, the brightest go to white.
Light rolledOff(const Light& light, const RollOff& rollOff) {
    const auto curve = [&](double part) { return pqLight(rollOff(pqCode(part * white))) / white; };
    const double top = std::ranges::max(light);
    const double share = top > 0 ? curve(top) / top : 0;
    const double own = rollOff.place(pqCode(top * white));
    Light result{};
    std::ranges::transform(light, result.begin(),
                           [&](double part) { return (1 - own) * share * part + own * curve(part); });
    return result;
}

/// In the colours of BT.709, within 0 and 1: what lies outside is moved towards the grey of the same brightness.
Light narrowed(const Light& wide) {
    Light light{1.66049 * wide[0] - 0.58764 * wide[1] - 0.07285 * wide[2],
                -0.12455 * wide[0] + 1.13290 * wide[1] - 0.00835 * wide[2],
                -0.01815 * wide[0] - 0.10058 * wide[1] + 1.11873 * wide[2]};
    const double seen = std::clamp(red * light[0] + green * light[1] + blue * light[2], 0.0, 1.0);
    const auto [least, most] = std::ranges::minmax(light);
    double kept = 1;
    if (least < 0)
        kept = std::min(kept, seen / (seen - least));
    if (most > 1)
        kept = std::min(kept, (1 - seen) / (most - seen));
    for (double& part : light)
        part = std::clamp(seen + kept * (part - seen), 0.0, 1.0);
    return light;
}

} // namespace

ToneMapping::ToneMapping(const DynamicRange& range)
    : _range(range) {
    const bool isPQ = range.transfer == DynamicRange::Transfer::pq;
    const RollOff rollOff(!isPQ ? hlgPeak : range.peak > 0 ? range.peak : usualPeak);
    const auto byte = [](double light) { return static_cast<float>(std::pow(light, 1 / screenGamma) * 255); };
    const auto code = [](int place) { return static_cast<double>(place) / (side - 1); };
    _grid.reserve(redStep * side);
    for (int r = 0; r < side; ++r) {
        for (int g = 0; g < side; ++g) {
            for (int b = 0; b < side; ++b) {
                const Light light = narrowed(rolledOff(lightOf({code(r), code(g), code(b)}, range.transfer), rollOff));
                _grid.push_back(Colour{byte(light[2]), byte(light[1]), byte(light[0]), 0});
            }
        }
    }
}

std::shared_ptr<const ToneMapping> ToneMapping::of(const DynamicRange& range) {
    static std::mutex mutex; // held while it is calculated: who asks meanwhile waits for it
    static std::weak_ptr<const ToneMapping> latest;
    if (!range.isHigh())
        return nullptr;
    const std::scoped_lock lock(mutex);
    std::shared_ptr<const ToneMapping> mapping = latest.lock();
    if (!mapping || mapping->range() != range) {
        mapping = std::make_shared<const ToneMapping>(range);
        latest = mapping;
    }
    return mapping;
}

void ToneMapping::mapLines(int first, int end, int width, const std::uint8_t* from, std::size_t fromStride,
                           std::uint8_t* to, std::size_t toStride) const {
    // 65535 is a hair below the last place of the grid, so that there is always a next one.
    constexpr float scale = (side - 1) / 65536.0F;
    for (int y = first; y < end; ++y) {
        const std::uint8_t* source = from + static_cast<std::size_t>(y) * fromStride;
        std::uint8_t* target = to + static_cast<std::size_t>(y) * toStride;
        for (int x = 0; x < width; ++x, source += 8, target += 4) {
            std::uint16_t codes[3];
            std::memcpy(codes, source, sizeof(codes));
            const float r = scale * codes[0], g = scale * codes[1], b = scale * codes[2];
            const int ri = static_cast<int>(r), gi = static_cast<int>(g), bi = static_cast<int>(b);
            const float rest[3] = {r - static_cast<float>(ri), g - static_cast<float>(gi), b - static_cast<float>(bi)};
            const float large = std::max({rest[0], rest[1], rest[2]}), small = std::min({rest[0], rest[1], rest[2]});
            const float middle = rest[0] + rest[1] + rest[2] - large - small;
            const std::size_t order =
                (rest[0] > rest[1] ? 4U : 0U) | (rest[1] > rest[2] ? 2U : 0U) | (rest[0] > rest[2] ? 1U : 0U);
            const auto [second, third] = corners[order];
            const Colour* at = &_grid[static_cast<std::size_t>(ri) * redStep +
                                      static_cast<std::size_t>(gi) * greenStep + static_cast<std::size_t>(bi)];
            const Colour colour = (1 - large) * at[0] + (large - middle) * at[second] + (middle - small) * at[third] +
                                  small * at[redStep + greenStep + 1] + dither[y % 4][x % 4];
            const auto bytes = __builtin_convertvector(__builtin_convertvector(colour, Whole), Bytes);
            std::memcpy(target, &bytes, sizeof(bytes));
        }
    }
}

void ToneMapping::map(const QSize& size, const std::uint8_t* from, std::size_t fromStride, std::uint8_t* to,
                      std::size_t toStride) const {
    const auto lines = [&](int first, int end) { mapLines(first, end, size.width(), from, fromStride, to, toStride); };
    const int worthwhile = 1 + size.width() * size.height() / pixelsOfAThread;
    const unsigned processors = std::clamp(std::thread::hardware_concurrency(), 1U, maximumThreads);
    const int parts = std::min(worthwhile, static_cast<int>(processors));
    std::vector<std::jthread> others;
    for (int i = 1; i < parts; ++i)
        others.emplace_back(lines, size.height() * i / parts, size.height() * (i + 1) / parts);
    lines(0, size.height() / parts);
}

} // namespace platform
