// SPDX-License-Identifier: GPL-3.0-or-later
// What calls itself a movie and is a list of other files: what of it may be opened.
#include "tests/toolkit/ToolkitRig.h"
#include "tools/screen/HttpServer.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

namespace {

const std::string hlsOfPart = "#EXTM3U\n#EXT-X-TARGETDURATION:2\n#EXTINF:2.0,\n";

/// A folder with a numbered movie, as one that can be a part of others too, and lists of them.
class References : public testing::Test {
protected:
    References() {
        harness::MediaFixture::Numbered movie;
        movie.frames = 60;
        movie.sound = false;
        const std::string numbered = media().makeNumbered("part.mp4", movie).string();
        const std::vector<std::string> copied = {"-i", numbered, "-c", "copy"};
        std::vector<std::string> fragmented = copied;
        fragmented.insert(fragmented.end(), {"-movflags", "frag_keyframe+empty_moov+default_base_moof"});
        const std::vector<std::string> sound = {"-f", "lavfi",          "-i", "sine=d=2", "-write_xing",
                                                "0",  "-id3v2_version", "0"};
        for (const auto& [name, arguments] : std::map<std::string, std::vector<std::string>>{
                 {"part.ts", copied}, {"part.mp4", fragmented}, {"sound.mp3", sound}})
            std::filesystem::copy_file(media().make(name, arguments), pathOf(name));
    }
    std::string pathOf(const std::string& name) const {
        return folder.filePath(QString::fromStdString(name)).toStdString();
    }
    static std::string textOf(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::string write(const std::string& name, const std::string& text) const {
        std::ofstream(pathOf(name), std::ios::binary) << text;
        return pathOf(name);
    }
    static std::string hls(const std::string& part) { return hlsOfPart + part + "\n#EXT-X-ENDLIST\n"; }
    static std::string dash(const std::string& part) {
        return "<?xml version=\"1.0\"?>\n<MPD xmlns=\"urn:mpeg:dash:schema:mpd:2011\" type=\"static\" "
               "mediaPresentationDuration=\"PT2S\" "
               "profiles=\"urn:mpeg:dash:profile:isoff-main:2011\"><Period><AdaptationSet "
               "contentType=\"video\"><Representation id=\"0\" mimeType=\"video/mp4\" codecs=\"avc1.64000d\" "
               "bandwidth=\"10000\" width=\"384\" height=\"216\"><BaseURL>" +
               part + "</BaseURL></Representation></AdaptationSet></Period></MPD>\n";
    }
    std::int16_t errorOf(const std::string& url) {
        rig.expectedError = QStringLiteral("ERROR");
        return rig.answerOf(QUrl(QString::fromStdString(url))).error;
    }

    QTemporaryDir folder;
    ToolkitRig rig;
};

} // namespace

TEST_F(References, a_local_file_opens_nothing_but_itself_whatever_it_is_called) {
    const std::string name = pathOf("part.mp4");
    const struct {
        const char* what;
        std::string text;
    } cases[] = {
        {"HLS", hls("part.ts")},
        {"DASH", dash("part.mp4")},
        {"concat", "ffconcat version 1.0\nfile 'part.mp4'\n"},
        {"M3U", "#EXTM3U\n" + name + '\n'},
        {"EDL", "# mpv EDL v0\n" + name + '\n'},
        {"cue sheet", "FILE \"" + name + "\" MP3\n  TRACK 01 AUDIO\n    INDEX 01 00:00:00\n"},
    };
    for (const auto& one : cases) {
        for (const char* extension : {".mp4", ".m3u8", ".mpd", ".mkv"})
            EXPECT_NE(errorOf("file://" + write(std::string("list") + extension, one.text)), platform::movieError::none)
                << one.what << extension;
    }
}

TEST_F(References, a_list_that_also_passes_for_a_movie_shows_nothing_else) {
    const std::string path =
        write("both.mp4", "# mpv EDL v0\n" + pathOf("part.mp4") + "\n#\n" + textOf(pathOf("sound.mp3")));
    rig.expectedError = QStringLiteral("ERROR");
    const auto movie = rig.open(QUrl::fromLocalFile(QString::fromStdString(path)));
    ASSERT_TRUE(movie) << "it no longer passes for one: the test shows nothing";
    rig.player().load(movie.get());
    rig.player().play();
    EXPECT_TRUE(rig.waitFor([&] { return rig.player().time() > 0; }));
    EXPECT_EQ(rig.screen.number(), std::nullopt);
}

TEST_F(References, streams_in_parts_play_from_a_network) {
    const harness::HttpServer server(pathOf("part.mp4"));
    write("list.m3u8", hls("part.ts"));
    write("list.mpd", dash("part.mp4"));
    for (const char* list : {"/beside/list.m3u8", "/beside/list.mpd"}) {
        const auto movie = rig.show(QUrl(QString::fromStdString(server.url(list))));
        ASSERT_TRUE(movie) << list;
        rig.player().play();
        EXPECT_TRUE(rig.waitFor([&] { return rig.screen.number().value_or(0) > 30; })) << list;
    }
}

TEST_F(References, the_qualities_of_a_stream_are_its_pictures_and_what_is_live_has_no_end) {
    const harness::HttpServer server(pathOf("part.mp4"));
    write("part.m3u8", hls("part.ts"));
    write("other.m3u8", hls("part.ts"));
    write("all.m3u8", "#EXTM3U\n#EXT-X-STREAM-INF:BANDWIDTH=700000\npart.m3u8\n"
                      "#EXT-X-STREAM-INF:BANDWIDTH=2000000\nother.m3u8\n");
    std::string twice = dash("part.mp4");
    const std::string end = "</AdaptationSet>";
    twice.insert(twice.find(end), "<Representation id=\"1\" mimeType=\"video/mp4\" codecs=\"avc1.64000d\" "
                                  "bandwidth=\"20000\" width=\"384\" height=\"216\"><BaseURL>part.mp4</BaseURL>"
                                  "</Representation>");
    write("all.mpd", twice);
    const struct {
        const char* list;
        std::vector<std::int64_t> bitRates;
        std::vector<int> variantsOfLast;
    } cases[] = {{"/beside/all.m3u8", {700'000, 2'000'000}, {1}}, {"/beside/all.mpd", {10'000, 20'000}, {}}};
    for (const auto& c : cases) {
        const auto movie = rig.show(QUrl(QString::fromStdString(server.url(c.list))));
        ASSERT_TRUE(movie) << c.list;
        EXPECT_FALSE(movie->info().isLive);
        std::vector<std::int64_t> bitRates;
        for (const platform::MovieTrack& track : movie->tracks())
            bitRates.push_back(track.variantBitRate);
        EXPECT_EQ(bitRates, c.bitRates) << c.list;
        EXPECT_EQ(movie->tracks().back().variants, c.variantsOfLast) << c.list;
        EXPECT_EQ(movie->tracks().back().size, QSize(384, 216));
    }
    EXPECT_FALSE(rig.player().behindLive());
    const auto live = rig.show(QUrl(QString::fromStdString(server.url("/live/part.m3u8"))));
    EXPECT_TRUE(live->info().isLive);
    EXPECT_EQ(live->duration(), 0);
    EXPECT_LT(rig.player().behindLive().value_or(99), 9);
}

TEST_F(References, a_list_from_a_network_opens_no_file_of_this_machine) {
    const harness::HttpServer server(pathOf("part.mp4"));
    const std::string part = pathOf("part.ts");
    for (const std::string& address :
         {"file://" + part, "file:" + part, part, "concat:" + part, "subfile,,start,0,end,0,,:" + part,
          "crypto+file:" + part, "async:file:" + part}) {
        write("list.m3u8", hls(address));
        EXPECT_NE(errorOf(server.url("/beside/list.m3u8")), platform::movieError::none) << address;
    }
    // One that is found out to be hostile only when it is played.
    write("list.m3u8", hls("part.ts"));
    const auto movie = rig.open(QUrl(QString::fromStdString(server.url("/beside/list.m3u8"))));
    ASSERT_TRUE(movie);
    write("list.m3u8", hls("file://" + part));
    const auto said = [&] { return rig.log.count(QStringLiteral("ERROR: libmpv")) > 0; };
    rig.player().load(movie.get());
    EXPECT_TRUE(rig.waitFor([&] { return said() || rig.screen.number(); })) << rig.log.lines().join('\n').toStdString();
    EXPECT_EQ(rig.screen.number(), std::nullopt);
}
