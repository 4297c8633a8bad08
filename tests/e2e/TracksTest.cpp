// SPDX-License-Identifier: GPL-3.0-or-later
// The tracks inside movies: which sound plays, and which subtitles stand on the screen.
#include "tests/e2e/SubtitledMovie.h"
#include "tools/vobsub/VobSubWriter.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using namespace harness;

namespace {

const char* const subRip = "1\n00:00:01,000 --> 00:00:03,000\n<i>First</i> words\n\n"
                           "2\n00:00:05,000 --> 00:00:07,000\nA second cue\n\n";

/// A blue rectangle from 1 to 3 s on a picture of 720 by 480, as Blu-ray discs have it (there is no encoder for it).
std::string graphics(int x, int y, int width, int height) {
    std::string file;
    const auto number = [](std::string& out, unsigned value, int bytes) {
        while (bytes-- > 0)
            out += static_cast<char>(value >> (8 * bytes));
    };
    const auto segment = [&](double seconds, unsigned type, const std::string& content) {
        file += "PG";
        number(file, static_cast<unsigned>(seconds * 90000), 4);
        number(file, 0, 4);
        number(file, type, 1);
        number(file, static_cast<unsigned>(content.size()), 2);
        file += content;
    };
    const auto composition = [&](double seconds, unsigned place, bool isShown) {
        std::string content;
        number(content, 720, 2);
        number(content, 480, 2);
        number(content, 0x10, 1);
        number(content, place, 2);
        number(content, isShown ? 0x80 : 0, 1); // begins anew
        number(content, 0, 2);                  // no change of the palette alone, palette 0
        number(content, isShown ? 1 : 0, 1);
        if (isShown) {
            number(content, 0, 4); // object, window and flags
            number(content, static_cast<unsigned>(x), 2);
            number(content, static_cast<unsigned>(y), 2);
        }
        segment(seconds, 0x16, content);
        std::string window;
        number(window, 1, 1);
        number(window, 0, 1);
        for (const int side : {x, y, width, height})
            number(window, static_cast<unsigned>(side), 2);
        segment(seconds, 0x17, window);
    };
    // The file begins with the movie: what is first in it would be put at the movie's beginning.
    composition(0, 0, false);
    segment(0, 0x80, {});
    composition(1, 0, true);
    std::string palette(2, '\0');
    for (const int part : {1, 41, 110, 240, 255}) // blue, opaque
        number(palette, static_cast<unsigned>(part), 1);
    segment(1, 0x14, palette);
    std::string lines;
    number(lines, static_cast<unsigned>(width), 2);
    number(lines, static_cast<unsigned>(height), 2);
    for (int line = 0; line < height; ++line) {
        number(lines, 0, 1);
        number(lines, 0xC000U | static_cast<unsigned>(width), 2);
        number(lines, 1, 1);
        number(lines, 0, 2);
    }
    std::string object;
    number(object, 0, 3); // number and version
    number(object, 0xC0, 1);
    number(object, static_cast<unsigned>(lines.size()), 3);
    segment(1, 0x15, object + lines);
    segment(1, 0x80, {});
    composition(3, 2, false);
    segment(3, 0x80, {});
    return file;
}

class Tracks : public SubtitledMovie {
protected:
    std::string write(const std::string& name, const std::string& content) {
        const std::filesystem::path path = user.folder() / name;
        std::ofstream(path, std::ios::binary) << content;
        return path.string();
    }
    // The numbered movie in red with what the arguments put beside it.
    std::string mux(const std::string& name, const std::vector<std::string>& inputs,
                    const std::vector<std::string>& output) {
        std::vector<std::string> arguments{"-i", numbered("subtitled.mp4", red, 300)};
        for (const std::string& input : inputs)
            arguments.insert(arguments.end(), {"-i", input});
        arguments.insert(arguments.end(), {"-map", "0"});
        for (std::size_t i = 0; i < inputs.size(); ++i)
            arguments.insert(arguments.end(), {"-map", std::to_string(i + 1)});
        arguments.insert(arguments.end(), {"-c:v", "copy", "-c:a", "copy"});
        arguments.insert(arguments.end(), output.begin(), output.end());
        const std::filesystem::path made = media().make(name, arguments);
        const std::filesystem::path here = user.folder() / name;
        std::filesystem::create_symlink(made, here);
        return here.string();
    }
    Region boxOf(const Color& wanted) {
        return probe.picture({0, 0, screenWidth, screenHeight}).extentWhere([&](const Color& color) {
            return color.isNear(wanted, 90);
        });
    }
    bool stands(const Color& color) {
        return waitUntil([&] { return boxOf(color).width > 0; });
    }
    bool nothingStands(const Color& color) {
        return waitUntil([&] { return staysTrue([&] { return boxOf(color).width == 0; }, Seconds(0.15)); });
    }
};

constexpr Color white{255, 255, 255};
constexpr Color bright{0, 0, 255};
constexpr Color sign{0, 255, 0};

} // namespace

TEST_F(Tracks, texts_inside_are_drawn_in_the_users_style_and_chosen_by_language_and_key) {
    const std::string srt = write("en.srt", subRip),
                      other = write("de.srt", "1\n00:00:01,000 --> 00:00:03,000\nErste\n");
    const std::vector<std::string> languages{"-metadata:s:s:0", "language=eng", "-metadata:s:s:1", "language=ger"};
    const struct {
        const char* name;
        const char* codec;
    } cases[] = {{"texts.mkv", "srt"}, {"texts.mp4", "mov_text"}, {"scripts.mkv", "ass"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        std::vector<std::string> output{"-c:s", c.codec};
        output.insert(output.end(), languages.begin(), languages.end());
        startStanding(mux(c.name, {srt, other}, output), {"--set", "QVPreferredLanguages=[\"de\"]"});
        EXPECT_TRUE(logs("Switching to subtitles stream: \"German\""));
        jump(1, 2);
        EXPECT_TRUE(logs("QVTextSubView: Set Text: Erste"));
        probe.tap(XK_s);
        EXPECT_TRUE(logs("QVFeedbackOverlay: Set Text: Subtitles: Off"));
        probe.tap(XK_s);
        EXPECT_TRUE(logs("QVFeedbackOverlay: Set Text: Subtitles: English (1/2)"));
        EXPECT_TRUE(logs("QVTextSubView: Set Text: First words")) << "its markup acts";
        jump(1, 4);
        jump(1, 6);
        EXPECT_TRUE(logs("QVTextSubView: Set Text: A second cue"));
        ASSERT_TRUE(quitsCleanly());
    }
}

TEST_F(Tracks, bitmaps_and_styled_scripts_stand_in_the_picture_with_both_renderers) {
    vobsub::PairWriter writer;
    writer.addStream("en");
    vobsub::Subpicture picture{.bitmap = {180, 40}};
    picture.bitmap.fill(0, 0, 180, 40, 1);
    picture.x = 90;
    picture.y = 400;
    picture.colors[1] = 6; // blue
    picture.stop = 2000 * 90 / 1024;
    writer.add(0, 1000, picture);
    const std::string index = write("pair.idx", writer.index());
    const auto& bytes = writer.data().bytes();
    write("pair.sub", {bytes.begin(), bytes.end()});
    const std::string discs = write("discs.sup", graphics(90, 400, 180, 40));
    const std::string signs = "[Script Info]\nScriptType: v4.00+\nPlayResX: 384\nPlayResY: 216\n\n[V4+ Styles]\n"
                              "Format: Name, Fontname, Fontsize, PrimaryColour, OutlineColour, BorderStyle, Outline, "
                              "Alignment\nStyle: Default,Sans,20,&H00FFFFFF,&H00000000,1,1,2\n"
                              "Style: Sign,Sans,20,&H0000FF00,&H0000FF00,3,8,7\n\n[Events]\n"
                              "Format: Layer, Start, End, Style, Text\n"
                              "Dialogue: 0,0:00:01.00,0:00:03.00,Sign,{\\pos(40,20)}A sign\n";
    const std::string script = write("script.ass", signs);
    const struct {
        std::string file;
        Color color;
        int left; // 0: wherever its letters are
    } cases[] = {
        {mux("dvd.mkv", {index}, {"-c:s", "copy"}), bright, 90 * screenWidth / 720},
        {mux("discs.mkv", {discs}, {"-c:s", "copy"}), bright,
         (screenWidth - screenHeight * 720 / 480) / 2 + 90 * screenHeight / 480},
        {mux("signs.mkv", {script}, {"-c:s", "copy"}), sign, 0},
        {movie({{"ass", signs}}), sign, 0}, // in a file beside it
    };
    for (const char* renderer : {"", "opengl"}) {
        if (*renderer)
            environment = openGLEnvironment();
        for (const auto& c : cases) {
            SCOPED_TRACE(c.file + ' ' + renderer);
            startStanding(c.file);
            EXPECT_TRUE(nothingStands(c.color));
            probe.tap(XK_Right, {XK_Control_L});
            EXPECT_TRUE(stands(c.color));
            // Between the keyframe and the exact picture behind it there may be one without the subtitle.
            EXPECT_TRUE(c.left == 0 || waitUntil([&] { return std::abs(boxOf(c.color).x - c.left) <= 6; }))
                << boxOf(c.color).x;
            probe.tap(XK_s);
            EXPECT_TRUE(nothingStands(c.color)) << "switched off";
            probe.tap(XK_s);
            EXPECT_TRUE(stands(c.color));
            probe.tap(XK_Right, {XK_Control_L});
            EXPECT_TRUE(nothingStands(c.color));
            ASSERT_TRUE(quitsCleanly());
        }
    }
    environment.clear();
    // A stream has no index: what began before the keyframe that a jump finds is not known there.
    startStanding(mux("dvb.ts", {index}, {"-c:s", "dvb_subtitle"}));
    probe.tap(XK_space);
    EXPECT_TRUE(stands(bright));
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Tracks, sound_is_chosen_by_key_and_comes_back_with_the_movie) {
    const std::string tone = media().make("tone.mka", {"-f", "lavfi", "-i", "sine=880:d=10", "-c:a", "ac3"}).string();
    const std::string movie = mux("two.mkv", {tone},
                                  {"-metadata:s:a:0", "language=eng", "-metadata:s:a:1", "language=ger",
                                   "-metadata:s:a:1", "title=Audio\ndescription"});
    const std::vector<std::string> german{"--set", "QVPreferredLanguages=[\"de\"]"};
    startStanding(movie, german);
    probe.tap(XK_a);
    EXPECT_TRUE(logs("QVFeedbackOverlay: Set Text: Audio: English, Mono, AAC (1/2)"));
    EXPECT_TRUE(settledFrame()) << "the picture stays";
    ASSERT_TRUE(quitsCleanly());
    startStanding(movie, german);
    probe.tap(XK_a);
    EXPECT_TRUE(logs("QVFeedbackOverlay: Set Text: Audio: German, Audio description, Mono, AC-3 (2/2)"))
        << "the other one had come back";
    ASSERT_TRUE(quitsCleanly());
}

TEST_F(Tracks, a_movie_of_many_odd_tracks_plays_and_names_them) {
    const std::string srt = write("odd.srt", subRip);
    std::vector<std::string> output{"-c:s", "srt"};
    std::vector<std::string> inputs(64, srt);
    output.insert(output.end(), {"-metadata:s:s:0", "language=qqq", "-metadata:s:s:1",
                                 "title=" + std::string(400, 'x') + "\n<b>bold</b>"});
    startStanding(mux("many.mkv", inputs, output));
    probe.tap(XK_s, {XK_Shift_L});
    EXPECT_TRUE(logs("QVFeedbackOverlay: Set Text: Subtitles: "));
    probe.tap(XK_s);
    probe.tap(XK_s);
    jump(1, 2);
    EXPECT_TRUE(logs("QVTextSubView: Set Text: First words"));
    ASSERT_TRUE(quitsCleanly());
}
