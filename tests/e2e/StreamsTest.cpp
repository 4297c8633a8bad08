// SPDX-License-Identifier: GPL-3.0-or-later
// What comes from a server in parts: in several qualities, live, and over a connection that breaks.
#include "tests/e2e/PlayerFixture.h"
#include "tools/screen/HttpServer.h"

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

using namespace harness;

namespace {

class Streams : public PlayerFixture {
protected:
    Streams() {
        write("all.m3u8", "#EXTM3U\n#EXT-X-STREAM-INF:BANDWIDTH=700000\n" + makeParts("green", green) +
                              "\n#EXT-X-STREAM-INF:BANDWIDTH=2000000\n" + makeParts("red", red) + '\n');
        http = std::make_unique<HttpServer>(folder / "all.m3u8");
    }

    void write(const std::string& name, const std::string& text) const {
        std::ofstream(folder / name, std::ios::binary) << text;
    }
    // An index of parts of two seconds, which are one file.
    std::string makeParts(const std::string& name, const Color& color) const {
        MediaFixture::Numbered movie;
        movie.frames = 1800;
        movie.color = color;
        movie.encoder.insert(movie.encoder.end(), {"-c:a", "aac", "-f", "hls", "-hls_time", "2", "-hls_playlist_type",
                                                   "vod", "-hls_flags", "single_file"});
        const std::filesystem::path index = media().makeNumbered(name + ".m3u8", movie);
        std::ifstream file(index);
        std::string text{std::istreambuf_iterator<char>(file), {}};
        const std::string made = ".making.ts";
        for (auto at = text.find(made); at != std::string::npos; at = text.find(made))
            text.replace(at, made.size(), name + ".ts");
        write(name + ".m3u8", text);
        std::filesystem::copy_file(index.parent_path() / made, folder / (name + ".ts"));
        return name + ".m3u8";
    }
    int frameNow() { return frame().value_or(0); }

    const QTemporaryDir temporary;
    const std::filesystem::path folder = temporary.path().toStdString();
    std::unique_ptr<HttpServer> http;
};

} // namespace

TEST_F(Streams, the_best_quality_plays_and_a_key_changes_it_on_the_way) {
    start({http->url("/beside/all.m3u8")});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 3; }, "playing"));
    ASSERT_TRUE(colorBecomes(red)) << "the best one";
    const int before = frameNow();
    probe.tap(XK_q);
    ASSERT_TRUE(logs("Quality: 384 × 216, 700 kbit/s (2/2)"));
    ASSERT_TRUE(colorBecomes(green));
    EXPECT_TRUE(frameBecomes([&](int seen) { return seen > before && seen < before + 300; }, "a little later"));
    // A resting movie shows the other one's picture of its time.
    probe.tap(XK_space);
    const std::optional<int> rested = settledFrame();
    probe.tap(XK_q);
    ASSERT_TRUE(colorBecomes(red));
    EXPECT_EQ(settledFrame(), rested);
    probe.tap(XK_space);
    EXPECT_TRUE(frameBecomes([&](int seen) { return seen > rested.value_or(0) + 10; }, "going on"));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Streams, a_live_one_catches_up_by_key_and_goes_on_when_its_server_is_back) {
    start({http->url("/live/red.m3u8")});
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 3; }, "playing"));
    probe.tap(XK_space);
    ASSERT_TRUE(settledFrame());
    std::this_thread::sleep_for(Seconds(5));
    const int rested = frameNow();
    probe.tap(XK_space);
    probe.tap(XK_End);
    ASSERT_TRUE(logs("Set Text: Live"));
    EXPECT_TRUE(waitUntil([&] { return frameNow() > rested + 100; }, Seconds(3))) << "it is as far behind as it was";

    http->setOrder(HttpServer::Order::broken);
    ASSERT_TRUE(logs("Set Text: Reconnecting..."));
    std::this_thread::sleep_for(Seconds(2));
    const int before = frameNow();
    http->setOrder(HttpServer::Order::works);
    EXPECT_TRUE(frameBecomes([&](int seen) { return seen > before + 240; }, "what came after the break"));
    EXPECT_FALSE(isLogged("Connection Lost"));
    ASSERT_TRUE(quitsCleanly());
}
