// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/SubtitleMarkup.h"

#include <gtest/gtest.h>

#include <ostream>

namespace {

using platform::LineSide;
using platform::TextFace;
using SubtitlePlacement::Place;

/// The text with "[faces colour|" and "]" around each run.
std::string shown(const SubtitleMarkup::Cue& cue) {
    QString result;
    qsizetype at = 0;
    for (const platform::TextRun& run : cue.text.runs) {
        EXPECT_GE(run.start, at) << "runs lie across each other";
        EXPECT_GT(run.length, 0);
        result += cue.text.text.mid(at, run.start - at) + u'[';
        const std::pair<TextFace, QChar> faces[] = {{TextFace::italic, u'i'},
                                                    {TextFace::bold, u'b'},
                                                    {TextFace::underlined, u'u'},
                                                    {TextFace::struckOut, u's'}};
        for (const auto& [face, letter] : faces)
            if (run.faces.testFlag(face))
                result += letter;
        if (run.color.isValid())
            result += run.color.name();
        result += u'|' + cue.text.text.mid(run.start, run.length) + u']';
        at = run.start + run.length;
    }
    EXPECT_LE(at, cue.text.text.size());
    return (result + cue.text.text.mid(at)).toStdString();
}

std::string shown(const QString& text) {
    return shown(SubtitleMarkup::read(text));
}

struct Case {
    const char* text;
    const char* shown;
};

} // namespace

TEST(SubtitleMarkup, tags_act_or_are_left_out) {
    const Case cases[] = {
        {"a <i>b</i> c", "a [i|b] c"},
        {"<I>a</I> <B>b</b>", "[i|a] [b|b]"},
        {"<u>a</u><s>b</s><em>c</em><strong>d</strong>", "[u|a][s|b][i|c][b|d]"},
        {"<i>a <b>b</b></i> c", "[i|a ][ib|b] c"},
        {"<i>a <b>b</i> c</b>", "[i|a ][ib|b][b| c]"},
        {"<i><i>a</i> b</i> c", "[i|a b] c"},
        {"<i>first\nsecond", "[i|first\nsecond]"},
        {"a</i> b</font>", "a b"},
        {"<i>a<i/> b", "[i|a] b"},
        {"<i >a</ i> b", "[i|a] b"},
        {"<i></i>a", "a"},
        {"<font color=\"#ff8000\">a</font> b", "[#ff8000|a] b"},
        {"<font color='Red'>a</font><FONT COLOR=00ff00>b</FONT>", "[#ff0000|a][#00ff00|b]"},
        {"<font face=\"Red Sans\" size=5 color=#0AF>a</font>", "[#00aaff|a]"},
        {"<font color = \"blue\" >a</font>", "[#0000ff|a]"},
        {"<font size=\"20\">a</font> <font>b</font> <font color=\"nonsense\">c</font>", "a b c"},
        {"<font color=transparent>a</font><font color=\"red>b</font>", "a[#ff0000|b]"},
        {"<font color=red>a<font size=1>b</font>c</font>d", "[#ff0000|abc]d"},
        {"<font bgcolor=red>a</font>", "a"},
        {"<v Roger Bingham>a</v> <lang en>b</lang> <ruby>c<rt>d</rt></ruby>", "a b cd"},
        {"<c>a</c><c.loud.yellow.bg_blue>b</c> <i.loud>c</i>", "a[#ffff00|b] [i|c]"},
        {"<00:00:01.500>a<00:02.000> b", "a b"},
        {"a<br>b<BR/>c<br />d", "a\nb\nc\nd"},
        {"<p class=\"x\">a</p><span style='color:red'>b</span>", "ab"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(shown(c.text), c.shown) << c.text;
}

TEST(SubtitleMarkup, codes_in_braces_act_or_are_left_out) {
    const Case cases[] = {
        {"{\\i1}a{\\i0} b", "[i|a] b"},
        {"{\\b1\\u1}a{\\b0} b{\\u0} c", "[bu|a][u| b] c"},
        {"{\\b700}a{\\b400} b{\\b1}c{\\b}d", "[b|a] b[b|c]d"},
        {"<i>a{\\i0}b</i>c", "[i|a]bc"},
        {"{\\c&H0000FF&}a{\\c} b", "[#ff0000|a] b"},
        {"{\\1c&HFF8000&\\3c&HFFFFFF&}a", "[#0080ff|a]"},
        {"{\\c&HFF&}a{\\r}b{\\i1}c{\\rSigns}d", "[#ff0000|a]b[i|c]d"},
        {"{\\pos(10,20)\\fad(100,200)\\fnArial\\fs20\\bord2\\blur1\\be1\\iclip(1,2,3,4)\\alpha&H80&}a", "a"},
        {"{\\t(0,500,\\i1\\c&HFF&)}a", "a"},
        {"{\\p1}m 0 0 l 100 0{\\p0}a", "a"},
        {"{\\i1 a remark \\b1}a", "[ib|a]"},
        {"a\\Nb\\nc\\hd", "a\nb\nc\u00A0d"},
        {"{y:i}a\nb", "[i|a]\nb"},
        {"{Y:b,i}a\nb", "[ib|a\nb]"},
        {"{y:b}{c:$0000FF}a\n{C:$FF0000}b\nc", "[b#ff0000|a]\n[#0000ff|b\nc]"},
        {"{f:Arial}{s:20}{P:1}{o:1,2}a", "a"},
        {"/a\nb\n/- c", "[i|a]\nb\n[i|- c]"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(shown(c.text), c.shown) << c.text;
}

TEST(SubtitleMarkup, entities_are_the_characters_they_name) {
    const Case cases[] = {
        {"a &amp; b &lt;i&gt; &quot;c&quot; &#39;d&#39; &apos;", "a & b <i> \"c\" 'd' '"},
        {"a&nbsp;b &eacute;&Eacute;&yuml; &hellip;&mdash;&rsquo;&euro;", "a\u00A0b éÉÿ …—’€"},
        {"&#233;&#xe9;&#XE9;&#x1F600; &#146;", "ééé😀 ’"},
        {"&amp;lt;", "&lt;"},
        {"a&#10;b", "a\nb"},
        {"<i>&gt;</i>", "[i|>]"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(shown(c.text), c.shown) << c.text;
}

TEST(SubtitleMarkup, what_only_looks_like_markup_stays) {
    for (const char* text : {"a < b > c",
                             "I <3 you",
                             "<-- here -->",
                             "<unknown>",
                             "<i think so>",
                             "<a better day>",
                             "<i",
                             "a <b",
                             "</>",
                             "<>",
                             "<in>",
                             "x<y && y>z",
                             "{not a code}",
                             "{",
                             "{\\an8 never closed",
                             "{\\an8 {really} closed",
                             "{}",
                             "{x:i}a",
                             "a {y:i}b",
                             "AT&T",
                             "Q&A; fine",
                             "&unknown;",
                             "&amp",
                             "&;",
                             "&#;",
                             "&#x;",
                             "&#0;",
                             "&#7;",
                             "&#xD800;",
                             "&#x110000;",
                             "&#-5;",
                             "&#99999999999;",
                             "C:\\new\\Nile\\home",
                             "\\\\host\\name",
                             "back\\slash",
                             "\\",
                             "/usr/bin",
                             "/ 5",
                             "//",
                             "/",
                             "a /b"})
        EXPECT_EQ(shown(text), text);
    // Without markup nothing is touched, not even what is not displayed.
    EXPECT_EQ(SubtitleMarkup::read("  a\tb\r\nc ").text.text, "  a\tb\r\nc ");
}

TEST(SubtitleMarkup, the_first_place_counts) {
    const struct {
        const char* text;
        std::optional<Place> place;
    } cases[] = {
        {"a", {}},
        {"<i>a</i>", {}},
        {"{\\an8}a", Place{Place::Row::top, LineSide::middle}},
        {"a {\\an7}b", Place{Place::Row::top, LineSide::left}},
        {"{\\i1\\an9}{\\an1}a", Place{Place::Row::top, LineSide::right}},
        {"{\\an4}a", Place{Place::Row::middle, LineSide::left}},
        {"{\\an6}{\\r}a", Place{Place::Row::middle, LineSide::right}},
        {"{\\an1}a", Place{Place::Row::bottom, LineSide::left}},
        {"{\\an2}a", Place{}},
        {"{\\a6}a", Place{Place::Row::top, LineSide::middle}},
        {"{\\a11}a", Place{Place::Row::middle, LineSide::right}},
        {"{\\a1}a", Place{Place::Row::bottom, LineSide::left}},
        {"{\\an0}a", {}},
        {"{\\an10}a", {}},
        {"{\\a4}{\\a12}{\\an99999999999}a", {}},
        {"{\\alpha8}{\\an}a", {}},
    };
    for (const auto& c : cases) {
        const SubtitleMarkup::Cue cue = SubtitleMarkup::read(c.text);
        EXPECT_TRUE(cue.place == c.place) << c.text;
        EXPECT_FALSE(cue.text.text.contains(u'\\')) << c.text;
    }
}

TEST(SubtitleMarkup, white_space_around_markup_and_what_is_nothing_else_go) {
    EXPECT_EQ(shown("{\\an8}\n <i> a </i> \n"), "[i|a]");
    for (const char* text : {"<i></i>", "{\\an8}", "<i> </i>\n<br>", "{\\p1}m 0 0", "&nbsp;"})
        EXPECT_EQ(shown(text), "") << text;
}

TEST(SubtitleMarkup, a_hostile_text_takes_no_longer_than_its_length) {
    for (const char* piece :
         {"<", "<i>", "<c>a", "{\\", "{y:", "&", "&#", "\\N", "/a\n", "<font color=", "{\\t(", "a\\n"}) {
        const SubtitleMarkup::Cue cue = SubtitleMarkup::read(QString(piece).repeated(1'000'000));
        EXPECT_LE(cue.text.text.size(), 100'000) << piece;
    }
}
