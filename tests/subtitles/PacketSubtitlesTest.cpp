// SPDX-License-Identifier: GPL-3.0-or-later
// The kinds of subtitle files that the movie library takes apart, read by the real one.
#include "subtitles/packets/PacketSubtitles.h"
#include "subtitles/packets/PacketFormat.h"
#include "subtitles/packets/TimedCue.h"
#include "tests/subtitles/SubtitleFiles.h"
#include "tests/support/CapturedLog.h"
#include "tests/support/EncodedText.h"

namespace {

struct FormatCase {
    const char* what;
    const char* name;
    std::string bytes;
    std::vector<ExpectedCue> cues; // milliseconds
    const char* format = nullptr;
};

const std::string script =
    "[Script Info]\nScriptType: v4.00+\n\n[V4+ Styles]\nFormat: Name, Fontname, Bold, Italic, "
    "Underline, Alignment\nStyle: Default,Arial,0,0,0,2\nStyle: Sign,Arial,-1,-1,0,8\n\n"
    "[Events]\nFormat: Layer, Start, End, Style, Name, MarginL, MarginR, MarginV, Effect, Text\n";

std::string event(const char* start, const char* end, const char* text, const char* style = "Default") {
    return std::string("Dialogue: 0,") + start + ',' + end + ',' + style + ",,0,0,0,," + text + '\n';
}

class PacketFiles : public SubtitleFiles {
protected:
    PacketFiles() { owner.scale = 1000; }

    void check(const std::vector<FormatCase>& cases) {
        for (const FormatCase& c : cases) {
            const auto track = open(write(QString::fromUtf8(c.name), c.bytes));
            ASSERT_TRUE(track || c.cues.empty()) << c.what;
            if (!track)
                continue;
            track->preload();
            track->waitForLoading();
            EXPECT_EQ(cuesOf(*track), c.cues) << c.what;
            if (c.format) {
                EXPECT_EQ(track->formatName().toStdString(), c.format) << c.what;
            }
        }
    }
};

} // namespace

TEST_F(PacketFiles, each_kind_gives_its_cues) {
    check({
        {"WebVTT: settings, notes, names, colours and hours left out",
         "film.vtt",
         "WEBVTT - made by hand\n\nNOTE nothing\n\nSTYLE\n::cue{}\n\nintro\n00:01.000 --> 00:02.500 line:5% "
         "align:start\n<v Anna>Hello &amp; <c.yellow>you</c>\nthere\n\n01:00:00.000 --> 01:00:01.000\nLate\n",
         {{1000, 2500, "{\\an7}<v Anna>Hello &amp; <c.yellow>you</c>\nthere"}, {3600000, 3601000, "Late"}},
         "WebVTT"},
        {"SubStation Alpha: styles, places, remarks, breaks",
         "film.ass",
         script + event("0:00:03.00", "0:00:04.50", "{\\i1}Later{\\i0}, {a remark}and\\Nhere, too") +
             event("0:00:01.00", "0:00:02.00", "Sign", "Sign") + event("0:00:05.00", "0:00:06.00", "{\\an9}Up") +
             event("0:00:07.00", "0:00:08.00", "{\\an2}Down again", "Sign") +
             "Comment: 0,0:00:07.00,0:00:08.00,,,,,,,no\n",
         {{1000, 2000, "{\\an8}{\\b1}{\\i1}Sign"},
          {3000, 4500, "{\\i1}Later{\\i0}, and\\Nhere, too"},
          {5000, 6000, "{\\an9}Up"},
          {7000, 8000, "{\\b1}{\\i1}Down again"}},
         "SubStation Alpha"},
        {"the older form, whose places count otherwise, under another name",
         "film.srt",
         "[Script Info]\r\n[V4 Styles]\r\nFormat: Name, Italic, Alignment\r\nStyle: Top,0,6\r\n[Events]\r\nFormat: "
         "Marked, Start, End, Style, Name, MarginL, MarginR, MarginV, Effect, Text\r\nDialogue: "
         "Marked=0,0:00:01.00,0:00:02.00,Top,,0,0,0,,A, B\r\n",
         {{1000, 2000, "{\\an8}A, B"}}},
        {"SubViewer, which looks like lines of a time each",
         "film.sub",
         "[INFORMATION]\n[TITLE]\n[END INFORMATION]\n[SUBTITLE]\n00:00:01.50,00:00:03.20\nOne[br]Two\n\n"
         "00:00:04.00,00:00:05.00\nThree\n",
         {{1500, 3200, "One\nTwo"}, {4000, 5000, "Three"}},
         "SubViewer"},
        {"the same with three digits", "film.sbv", "0:00:01.500,0:00:03.250\nA\n\n", {{1500, 3250, "A"}}},
        {"the older SubViewer",
         "film.txt",
         "******** START SCRIPT ********\n[00:00:01]\nOne|Two\n[00:00:03]\n\n[00:00:05]\nThree\n[00:00:06]\n\n",
         {{1000, 3000, "One\nTwo"}, {5000, 6000, "Three"}},
         "SubViewer 1"},
        {"MPL2: tenths of a second",
         "film.txt",
         "[10][25]/One|Two\n[30][]Three\n[50][60]Four\n",
         {{1000, 2500, "/One\nTwo"}, {3000, 5000, "Three"}, {5000, 6000, "Four"}},
         "MPL2"},
        {"SAMI: a page",
         "film.smi",
         "<SAMI>\n<HEAD><STYLE TYPE=\"text/css\"><!-- P { } --></STYLE></HEAD>\n<BODY>\n<SYNC Start=1000><P "
         "Class=ENCC>One<br>\n<i>two</i> &amp; more\n<SYNC Start=2000><P Class=ENCC>&nbsp;\n<SYNC Start=3000><P "
         "Class=ENCC><font color=\"red\">Three</font>\n<SYNC Start=4000><P>&nbsp;\n</BODY></SAMI>\n",
         {{1000, 2000, "One\n<i>two</i> &amp; more"}, {3000, 4000, "<font color=\"red\">Three</font>"}},
         "SAMI"},
        {"LRC: the words of a song",
         "film.lrc",
         "[ti:Song]\n[ar:Somebody]\n[00:01.00]One\n[00:02.50][00:04.00]Again\n",
         {{1000, 2500, "One"}, {2500, 4000, "Again"}, {4000, 9000, "Again"}},
         "LRC"},
        {"PJS",
         "film.pjs",
         "10,25,\"One|Two\"\n30,40,\"Three\"\n",
         {{1000, 2500, "One\nTwo"}, {3000, 4000, "Three"}},
         "PJS"},
        {"JACOsub",
         "film.jss",
         "#TITLE x\n0:00:01.00 0:00:02.00 VMB {remark}One\\n\\ITwo\\i\n0:00:03.00 0:00:04.00 D Three\n",
         {{1000, 2000, "One\n<i>Two</i>"}, {3000, 4000, "Three"}},
         "JACOsub"},
        {"RealText",
         "film.rt",
         "<window duration=\"10\">\n<time begin=\"1\" end=\"2\"/><b>One</b><br/>two\n<time begin=\"3\" "
         "end=\"4\"/>Three\n"
         "</window>\n",
         {{1000, 2000, "<b>One</b>\ntwo"}, {3000, 4000, "Three"}},
         "RealText"},
        {"Spruce",
         "film.stl",
         "$FontName = Arial\n00:00:01:00 , 00:00:02:00 , ^IOne^I|Two\n",
         {{1000, 2000, "<i>One</i>\nTwo"}},
         "Spruce"},
        {"MPSub: waits and lengths",
         "film.sub",
         "FORMAT=TIME\n\n1 2\nOne\n\n1 1\nTwo\n",
         {{1000, 3000, "One"}, {4000, 5000, "Two"}},
         "MPSub"},
        {"AQTitle: frames, of the movie's rate",
         "film.aqt",
         "-->> 25\nOne\n\n-->> 50\n\n",
         {{1000, 2000, "One"}},
         "AQTitle"},
        {"the name promises more than there is",
         "film.ass",
         "\x7F"
         "ELF\x02\x01\x01 what is this",
         {}},
        {"a time in a text is not one of these", "film.vtt", "Be there at 10:30, she said.\n", {}},
        {"nothing", "film.vtt", "", {}},
    });
}

TEST(PacketFormats, are_looked_for_in_the_first_hundred_lines) {
    const std::string line = "10,20,\"Words\"";
    EXPECT_EQ(packetFormatOf(line), PacketFormat::pjs);
    EXPECT_EQ(packetFormatOf(std::string(99, '\n') + line), PacketFormat::pjs);
    EXPECT_EQ(packetFormatOf(std::string(100, '\n') + line), std::nullopt);
}

TEST_F(PacketFiles, a_page_of_timed_text_gives_its_cues) {
    const std::string head =
        "<?xml version=\"1.0\" encoding=\"latin1\"?><tt xmlns=\"http://www.w3.org/ns/ttml\" "
        "xmlns:tts=\"http://www.w3.org/ns/ttml#styling\" xmlns:ttp=\"http://www.w3.org/ns/"
        "ttml#parameter\" ttp:frameRate=\"25\" ttp:tickRate=\"10\"><head><styling><style "
        "xml:id=\"s\" tts:color=\"#ff0000ff\"/><style xml:id=\"i\" tts:fontStyle=\"italic\"/>"
        "</styling><layout><region xml:id=\"top\" tts:displayAlign=\"before\"/></layout></head><body>";
    check({
        {"times of every form, styles, regions and spaces",
         "film.ttml",
         head +
             "<div begin=\"10s\"><p begin=\"1s\" end=\"2.5s\" style=\"s\">  \xC3\x89t\xC3\xA9  \n and\n<br/> more </p>"
             "<p begin=\"00:00:03:05\" dur=\"500ms\" region=\"top\">A <span style=\"i\">b &lt;c&gt; &amp;</span> d</p>"
             "</div><p begin=\"200t\" end=\"500f\" />"
             "<p begin=\"300t\" end=\"800f\" xml:space=\"preserve\">x  y</p></body></tt>",
         {{11000, 12500, "<font color=\"#ff0000\">\xC3\x89t\xC3\xA9 and\nmore</font>"},
          {13200, 13700, "{\\an8}A <i>b &lt;c> &amp;</i> d"},
          {30000, 32000, "x  y"}},
         "TTML"},
        {"one that breaks off",
         "film.dfxp",
         head + "<p begin=\"1s\" end=\"2s\">A</p><p begin=\"3s\" end=\"4s\">B",
         {{1000, 2000, "A"}}},
        {"entities that grow are not followed, nor is a file",
         "film.ttml",
         "<!DOCTYPE tt [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;\"><!ENTITY c "
         "\"&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;\"><!ENTITY f SYSTEM "
         "\"file:///etc/passwd\">]>\n<tt><body><p begin=\"1s\" end=\"2s\">A</p><p begin=\"3s\" end=\"4s\">&f;B&d;</p>"
         "</body></tt>",
         {{1000, 2000, "A"}}},
        {"a page of another kind", "film.ttml", "<html><p begin=\"1s\">A</p></html>", {}},
    });
}

TEST_F(PacketFiles, what_stands_at_once_stands_in_one_cue) {
    struct Case {
        const char* what;
        std::vector<TimedCue> cues, shown;
    };
    const Case cases[] = {
        {"one after the other, in any order", {{3, 4, "b", 0}, {1, 3, "a", 8}}, {{1, 3, "a", 8}, {3, 4, "b", 0}}},
        {"what came later stands above, what stands stays",
         {{0, 10, "a", 0}, {4, 6, "b", 0}},
         {{0, 4, "a", 0}, {4, 6, "b\na", 0}, {6, 10, "a", 0}}},
        {"those that come together are in the file's order",
         {{0, 10, "a", 0}, {0, 5, "b", 0}},
         {{0, 5, "a\nb", 0}, {5, 10, "a", 0}}},
        {"codes end with their cue", {{0, 10, "{\\c&HFF&}a", 0}, {0, 10, "b", 0}}, {{0, 10, "{\\c&HFF&}a\n{\\r}b", 0}}},
        {"two places are none", {{0, 10, "a", 8}, {5, 10, "b", 0}}, {{0, 5, "a", 8}, {5, 10, "b\na", 0}}},
        {"an end that is not known",
         {{0, -1, "a", 0}, {7000, -1, "b", 0}, {8000, 7999, "c", 0}, {9000, 9500, "d", 0}},
         {{0, 5000, "a", 0}, {7000, 8000, "b", 0}, {8000, 9000, "c", 0}, {9000, 9500, "d", 0}}},
    };
    for (const Case& c : cases) {
        std::size_t left = 0;
        EXPECT_EQ(oneAtATime(c.cues, left), c.shown) << c.what;
        EXPECT_EQ(left, 0U) << c.what;
    }
    // Each of a thousand over all the others.
    std::vector<TimedCue> hostile;
    for (int at = 0; at < 1000; ++at)
        hostile.push_back({at, 10'000 - at, QStringLiteral("x"), 0});
    std::size_t left = 0;
    for (const TimedCue& cue : oneAtATime(hostile, left))
        ASSERT_LE(cue.text.size(), 15);
    EXPECT_EQ(left, 992U);
}

TEST_F(PacketFiles, texts_are_decoded_as_they_are_chosen_to_be) {
    const std::string cue = "WEBVTT\n\n00:01.000 --> 00:02.000\n";
    // "Über" of an old file, found and chosen; the line that is no UTF-8 is left out when that is chosen.
    const QString path = write("film.vtt", cue + "\xDC"
                                                 "ber alles, sagte der M\xFC"
                                                 "ller\nA\n");
    const auto track = open(path);
    ASSERT_TRUE(track);
    track->preload();
    track->waitForLoading();
    EXPECT_EQ(cuesOf(*track).front().text, "\xC3\x9C"
                                           "ber alles, sagte der M\xC3\xBCller\nA");
    EXPECT_EQ(track->losses(), 0U);
    EXPECT_TRUE(track->subtitleForTime(1500));
    track->setEncoding(4);
    track->waitForLoading();
    ASSERT_TRUE(track->subtitleForTime(1500));
    EXPECT_EQ(track->subtitleForTime(1500)->text(), u"A") << "the old text stands on";
    EXPECT_EQ(track->losses(), 1U);
    // A file that is gone leaves what there is.
    QFile::remove(path);
    const CapturedLog log;
    track->setEncoding(12);
    track->waitForLoading();
    EXPECT_EQ(track->count(), 1U);

    // 16-bit units, with carriage returns alone.
    QByteArray wide("\xFF\xFE", 2);
    const QString text = QStringLiteral("WEBVTT\r\r00:01.000 --> 00:02.000\rÅ\r");
    wide.append(reinterpret_cast<const char*>(text.utf16()), text.size() * 2);
    EXPECT_EQ(cuesOf(*[&] {
                  auto loaded = open(write("wide.vtt", {wide.constData(), static_cast<std::size_t>(wide.size())}));
                  loaded->preload();
                  loaded->waitForLoading();
                  return loaded;
              }()),
              (std::vector<ExpectedCue>{{1000, 2000, "\xC3\x85"}}));
}

TEST_F(PacketFiles, a_script_of_its_makers_design_is_drawn_by_the_player_with_its_times_moved) {
    const std::string plain = script.substr(0, script.find("Style: Sign")) + script.substr(script.find("\n[Events]"));
    const struct {
        const char* what;
        std::string bytes;
        bool isDrawn;
    } cases[] = {
        {"one style", plain + event("0:00:01.00", "0:00:09.00", "{\\i1\\an8\\pbo5\\p0}Words"), false},
        {"two styles", script + event("0:00:01.00", "0:00:09.00", "Words"), true},
        {"a place",
         plain + event("0:00:01.00", "0:00:09.00", "Words") + event("0:00:02.00", "0:00:03.00", "{\\pos(1,2)}x"), true},
        {"a move", plain + event("0:00:01.00", "0:00:09.00", "{\\b1\\move(1,2,3,4)}Words"), true},
        {"a drawing", plain + event("0:00:01.00", "0:00:09.00", "{\\p1}m 0 0 l 9 9{\\p0}Words"), true},
        {"another kind", "WEBVTT\n\n00:01.000 --> 00:09.000\n{\\pos(1,2)}Words\n", false},
    };
    for (const auto& c : cases) {
        const QString path = write("film.ass", c.bytes);
        const auto track = open(path);
        ASSERT_TRUE(track) << c.what;
        track->preload();
        track->setShown(true);
        track->waitForLoading();
        track->setShift({.delay = 500, .speed = 1});
        EXPECT_EQ(owner.drawn, c.isDrawn ? path + " 500" : QString()) << c.what;
        EXPECT_EQ(track->subtitleForTime(5000) == nullptr, c.isDrawn) << c.what;
        EXPECT_GT(track->count(), 0U) << "the lines are there, to be brought in step by";
        track->setShown(false);
        EXPECT_EQ(owner.drawn, QString()) << c.what;
    }
}

TEST_F(PacketFiles, a_script_that_never_ends_is_given_up_when_its_track_goes) {
    std::string text = script;
    for (int at = 0; at < 600'000; ++at)
        text += event("0:00:01.00", "0:00:02.00", "x");
    const CapturedLog log;
    auto track = open(write("film.ass", text));
    track->preload();
    EXPECT_TRUE(track->isLoading()) << "the main thread waited";
    track->waitForLoading();
    EXPECT_GT(track->losses(), 400'000U);
    track->unload();
    track->preload();
    track.reset(); // waits for the worker, which looks at it often
}
