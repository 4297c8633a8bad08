// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/e2e/PlayerFixture.h"
#include "tools/screen/HttpServer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>

using namespace harness;

namespace {

using Arguments = std::vector<std::string>;

const Arguments h264 = {"-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"};

Arguments operator+(Arguments first, const Arguments& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

// A picture of one colour, two seconds of it, with a tone when sound is asked for.
Arguments picture(const Color& color, const std::string& size = "320x180") {
    return {"-f", "lavfi", "-i", "color=c=" + ffmpegColor(color) + ":s=" + size + ":r=25:d=2"};
}
const Arguments tone = {"-f", "lavfi", "-i", "sine=frequency=440:duration=2"};

struct Format {
    const char* name; // of the file
    Arguments arguments;
    Color color{200, 0, 0};
    int width = 320, height = 180; // as displayed
    double seconds = 2;
    int frames = 50; // 0: without picture; -1: whatever the container says
};

std::vector<Format> formats() {
    // Neighbours differ in colour, so that walking through the list shows each.
    const Color red{200, 0, 0}, green{0, 150, 0}, blue{0, 0, 200};
    return {
        {"h264-aac.mp4", picture(red) + tone + h264 + Arguments{"-c:a", "aac"}, red},
        {"h264.mkv", picture(green) + tone + h264 + Arguments{"-c:a", "aac"}, green},
        {"hevc.mkv",
         picture(blue) + Arguments{"-c:v", "libx265", "-preset", "ultrafast", "-x265-params", "log-level=none",
                                   "-pix_fmt", "yuv420p"},
         blue},
        {"vp9-opus.webm",
         picture(red) + tone +
             Arguments{"-c:v", "libvpx-vp9", "-cpu-used", "8", "-deadline", "realtime", "-c:a", "libopus"},
         red},
        {"mpeg4-mp3.avi", picture(green) + tone + Arguments{"-c:v", "mpeg4", "-q:v", "3", "-c:a", "libmp3lame"}, green},
        {"stream.ts", picture(blue) + tone + h264 + Arguments{"-c:a", "aac", "-f", "mpegts"}, blue, 320, 180, 2, -1},
        {"quick.mov", picture(red) + tone + h264 + Arguments{"-c:a", "aac"}, red},
        {"silent.mp4", picture(green) + h264, green},
        {"short.mp4", picture(blue) + h264 + Arguments{"-frames:v", "10"}, blue, 320, 180, 0.4, 10},
        {"variable.mkv", picture(red) + Arguments{"-vf", "select='lt(n,20)+not(mod(n,5))'", "-vsync", "vfr"} + h264,
         red, 320, 180, 1.84, -1},
        {"wide-pixels.mp4", picture(green, "160x180") + Arguments{"-vf", "setsar=2/1"} + h264, green},
    };
}

// Other containers say how long and how fast, not how many: with sound a little longer the result is one more.
bool countsFrames(const std::string& file) {
    return file.ends_with(".mp4") || file.ends_with(".mov");
}

class Formats : public PlayerFixture {
protected:
    QJsonArray inspect(const Arguments& files, int expectedStatus = 0) {
        LumaroProcess process(user, {}, Arguments{"--inspect"} + files);
        EXPECT_EQ(process.waitForExit(), expectedStatus) << process.errorOutput();
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(process.output()), &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString() << process.output();
        return document.array();
    }

    // Presses Return in each alert until the log has named so many files that could not be opened.
    bool dismissAlerts(int count) {
        return tapUntil(XK_Return, [&] {
            int failures = 0;
            for (const std::string& line : player->errorLines())
                failures += line.find("QT failed to open movie.") != std::string::npos;
            return failures >= count;
        });
    }

    // Red on the left and blue on the right, to be turned anticlockwise.
    std::string rotated(int degrees) {
        const std::string upright = media().make(
            "upright.mp4", picture(red) + Arguments{"-vf", "drawbox=x=160:w=160:h=180:color=blue:t=fill"} + h264);
        return media().makeTurned("rotated" + std::to_string(degrees) + ".mov", upright, degrees / 90);
    }
};

} // namespace

TEST_F(Formats, are_inspected_as_they_are_shown) {
    std::vector<Format> wanted = formats();
    const Arguments cover = {"-c:v", "mjpeg", "-frames:v", "1", "-disposition:v", "attached_pic"};
    wanted.push_back({.name = "tone.mp3", .arguments = tone, .frames = 0});
    wanted.push_back({.name = "cover.mp3", .arguments = tone + picture(red) + cover, .frames = 0});
    wanted.push_back({.name = "tone.flac", .arguments = tone + Arguments{"-c:a", "flac"}, .frames = 0});
    // Its units of time do not fit 31 bits.
    const Arguments hours = Arguments{"-f", "lavfi", "-i", "color=s=64x36:r=1:d=14400"} + h264;
    wanted.push_back(
        {"four hours.mp4", hours + Arguments{"-video_track_timescale", "600000"}, {}, 64, 36, 14400, 14400});
    Arguments files;
    for (const Format& format : wanted)
        files.push_back(media().make(format.name, format.arguments).string());
    wanted.push_back({"rotated90.mov", {}, {}, 180, 320, 2, 50});
    files.push_back(rotated(90));

    const QJsonArray found = inspect(files);
    ASSERT_EQ(std::size_t(found.size()), wanted.size());
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        SCOPED_TRACE(wanted[i].name);
        const QJsonObject movie = found[int(i)].toObject();
        const QJsonArray bounds = movie["naturalBounds"].toArray();
        EXPECT_EQ(movie["path"].toString().toStdString(), files[i]);
        if (wanted[i].frames != 0) {
            EXPECT_EQ(bounds[2].toInt(), wanted[i].width);
            EXPECT_EQ(bounds[3].toInt(), wanted[i].height);
        }
        if (wanted[i].frames >= 0)
            EXPECT_NEAR(movie["frameCount"].toInt(-1), wanted[i].frames, countsFrames(files[i]) ? 0 : 1);
        else
            EXPECT_GT(movie["frameCount"].toInt(-1), 0);
        const double scale = movie["timeScale"].toDouble(), duration = movie["duration"].toDouble();
        EXPECT_GT(scale, 0);
        EXPECT_LE(duration, 2147483647.0);
        EXPECT_NEAR(duration / scale, wanted[i].seconds, 0.15);
        EXPECT_EQ(movie["durationInSeconds"].toInt(), int(duration / scale));
    }
}

TEST_F(Formats, are_shown_one_after_the_other) {
    Arguments arguments = {"--set", "QVDefaultMovieSize=3", "--set", "QVPlaylistAutoNext=0"};
    const std::vector<Format> wanted = formats();
    for (const Format& format : wanted)
        arguments.push_back(media().make(format.name, format.arguments).string());
    start(arguments);
    for (const Format& format : wanted) {
        EXPECT_TRUE(colorBecomes(format.color)) << format.name;
        probe.tap(XK_Page_Down);
    }
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Formats, a_turned_phone_video_stands_upright) {
    start({"--set", "QVDefaultMovieSize=1", "--set", "QVPlaylistAutoNext=0", rotated(90), rotated(180), rotated(270)});
    const Color pureBlue{0, 0, 255};
    const struct {
        int degrees, redX, redY, blueX, blueY;
        Region picture;
    } turns[] = {{90, 640, 480, 640, 240, {550, 200, 180, 320}},
                 {180, 720, 360, 560, 360, {480, 270, 320, 180}},
                 {270, 640, 240, 640, 480, {550, 200, 180, 320}}};
    for (const auto& turn : turns) {
        SCOPED_TRACE(turn.degrees);
        EXPECT_TRUE(probe.waitForColor(turn.redX, turn.redY, red));
        EXPECT_TRUE(probe.waitForColor(turn.blueX, turn.blueY, pureBlue));
        const Region ofRed = probe.extentOf(red, 60), ofBlue = probe.extentOf(pureBlue, 60);
        EXPECT_EQ(std::min(ofRed.x, ofBlue.x), turn.picture.x);
        EXPECT_EQ(std::min(ofRed.y, ofBlue.y), turn.picture.y);
        EXPECT_EQ(std::max(ofRed.x + ofRed.width, ofBlue.x + ofBlue.width), turn.picture.x + turn.picture.width);
        EXPECT_EQ(std::max(ofRed.y + ofRed.height, ofBlue.y + ofBlue.height), turn.picture.y + turn.picture.height);
        probe.tap(XK_Page_Down);
    }
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Formats, sound_without_picture_plays_to_its_end_and_the_next_movie_follows) {
    start({media().make("tone.mp3", tone).string(), numbered("red.mp4", red, 300)});
    EXPECT_TRUE(logs("QVPlaylistController: Current movie finished."));
    EXPECT_TRUE(colorBecomes(red));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Formats, names_are_taken_as_they_are) {
    const std::vector<std::string> names = {
        "with space.mp4", "F\u00fc\u00dfe.mp4", "\U0001F3AC.mp4", "100%.mp4",    "%41.mp4", "a#b.mp4",
        "what?.mp4",      "a;b&c.mp4",          "-dash.mp4",      "http: x.mp4", "a|b.mp4", "pic%03d.mp4"};
    const Color colors[] = {red, green, blue};
    Arguments arguments = {"--set", "QVPlaylistDefaultArrangement=0", "--set", "QVPlaylistAutoNext=0", "--"};
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string movie = numbered("n.mp4", colors[i % 3], 100);
        std::filesystem::copy_file(movie, user.folder() / names[i]);
        arguments.push_back(names[i]);
    }
    start(arguments, user.folder().string());
    for (std::size_t i = 0; i < names.size(); ++i) {
        ASSERT_TRUE(colorBecomes(colors[i % 3])) << names[i];
        probe.tap(XK_Page_Down);
    }
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Formats, each_file_that_cannot_be_opened_is_reported_and_the_rest_plays) {
    const auto inFolder = [&](const char* name) { return (user.folder() / name).string(); };
    std::ofstream(inFolder("empty.mp4"));
    std::ofstream(inFolder("text.mp4")) << "This is a text, whatever its name says.\n";
    const std::string whole = numbered("whole.mp4", green, 300);
    std::filesystem::copy_file(whole, inFolder("truncated.mp4"));
    std::filesystem::resize_file(inFolder("truncated.mp4"), std::filesystem::file_size(whole) / 2);
    ASSERT_EQ(::mkfifo(inFolder("pipe.mp4").c_str(), 0600), 0);
    std::filesystem::create_directory(inFolder("bare"));
    const HttpServer http(whole);
    Arguments bad = {inFolder("missing.mp4"),   inFolder("empty.mp4"), inFolder("text.mp4"),
                     inFolder("truncated.mp4"), inFolder("pipe.mp4"),  "nosuch://place/movie.mp4",
                     http.url("/missing.mp4"),  http.url("/early.mp4")};
    if (::geteuid() != 0) {
        std::filesystem::copy_file(whole, inFolder("secret.mp4"));
        std::filesystem::permissions(inFolder("secret.mp4"), std::filesystem::perms::none);
        bad.push_back(inFolder("secret.mp4"));
    }
    start(bad + Arguments{inFolder("bare"), numbered("red.mp4", red, 300)});
    EXPECT_TRUE(dismissAlerts(int(bad.size())));
    EXPECT_TRUE(tapUntil(XK_Return, [&] { return probe.pixel(screenWidth / 4, screenHeight * 5 / 6).isNear(red); }));
    // It plays while the alert is still up.
    EXPECT_TRUE(tapUntil(XK_Escape, [&] { return !player->isRunning(); }));
    EXPECT_EQ(player->waitForExit(), 0);
}

TEST_F(Formats, a_list_of_nothing_playable_says_so_and_can_be_left) {
    const std::string text = (user.folder() / "text.mp4").string();
    std::ofstream(text) << "no movie\n";
    start({text});
    EXPECT_TRUE(tapUntil(XK_Return, [&] {
        return player->errorOutput().find("No playable movies foung in playlist.") != std::string::npos;
    }));
    EXPECT_TRUE(tapUntil(XK_Escape, [&] { return !player->isRunning(); }));
    EXPECT_EQ(player->waitForExit(), 0);
}

TEST_F(Formats, bad_files_do_not_keep_inspection_from_the_good_ones) {
    const std::string good = numbered("red.mp4", red, 300);
    const std::string text = (user.folder() / "text.mp4").string();
    std::ofstream(text) << "no movie\n";
    const QJsonArray found = inspect({text, (user.folder() / "missing.mp4").string(), good}, 1);
    ASSERT_FALSE(found.isEmpty());
    EXPECT_EQ(found.last().toObject()["frameCount"].toInt(), 300);
}

TEST_F(Formats, inspection_says_when_its_output_cannot_be_written) {
    const std::string movie = numbered("red.mp4", red, 300);
    for (const std::string target : {"/dev/full", "/dev/null"}) {
        harness::ChildProcess::Options options;
        options.arguments = {"/bin/sh", "-c", "exec '" LUMARO_PROGRAM "' --inspect \"$0\" >" + target, movie};
        options.environment = {{"HOME", user.folder().string()}, {"LUMARO_RESOURCES", LUMARO_BINARY_DIR "/resources"}};
        harness::ChildProcess process(options);
        EXPECT_EQ(process.waitForExit(), target == "/dev/full" ? 1 : 0) << process.errorOutput();
    }
}

TEST_F(Formats, a_movie_from_a_server_plays_and_jumps) {
    MediaFixture::Numbered served;
    served.frames = 900;
    served.color = green;
    const HttpServer http(media().makeNumbered("served.mp4", served));
    start({"--set", "QVPlaylistAutoPlay=0", "--set", "QVJumpInterval=20", http.url("/movie.mp4")});
    ASSERT_TRUE(frameBecomes(0));
    probe.tap(XK_Right, {XK_Control_L});
    ASSERT_TRUE(frameBecomes(600));
    probe.tap(XK_space);
    ASSERT_TRUE(frameBecomes([](int seen) { return seen > 610; }, "later while playing"));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Formats, a_server_that_closes_in_the_middle_ends_the_movie_and_the_next_follows) {
    MediaFixture::Numbered movie;
    movie.frames = 60;
    movie.color = green;
    movie.encoder = h264 + Arguments{"-movflags", "+faststart"};
    const HttpServer http(media().makeNumbered("served-early.mp4", movie));
    start({http.url("/early.mp4"), numbered("red.mp4", red, 300)});
    EXPECT_TRUE(tapUntil(XK_Return, [&] { return probe.pixel(screenWidth / 4, screenHeight * 5 / 6).isNear(red); }));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Formats, a_server_that_never_answers_is_given_up_while_the_player_stays_alive) {
    const HttpServer http(numbered("red.mp4", red, 1200));
    start({numbered("red.mp4", red, 1200)});
    ASSERT_TRUE(colorBecomes(red));
    const auto handedOver = startAnother({"--append", http.url("/never.mp4")});
    ASSERT_TRUE(logs("/never.mp4"));
    // It plays on, and keys are heard.
    const std::optional<int> before = frame();
    ASSERT_TRUE(before);
    EXPECT_TRUE(frameBecomes([&](int seen) { return seen > *before + 30; }, "30 later while the server is silent"));
    probe.tap(XK_space);
    EXPECT_TRUE(logs("QVMovieView: Stop Playing movie"));
    EXPECT_TRUE(logs("QT failed to open movie."));
    probe.tap(XK_Return);
    EXPECT_EQ(handedOver->waitForExit(), 0);
    EXPECT_TRUE(tapUntil(XK_Escape, [&] { return !player->isRunning(); }));
    EXPECT_EQ(player->waitForExit(), 0);
}
