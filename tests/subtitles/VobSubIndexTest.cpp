// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/input/SubtitleText.h"
#include "subtitles/vobsub/IndexParser.h"
#include "subtitles/vobsub/QVVobSubSubtitles.h"
#include "tests/subtitles/SubtitleFiles.h"
#include "tests/support/CapturedLog.h"

#include <limits>

namespace {

const std::string header = "# VobSub index file, v7 (do not modify this line!)\n";
const std::string stream = "id: en, index: 0\n";

IndexParser::Result parsed(const std::string& text) {
    const auto name = [](const QString& code) { return code.toUpper(); };
    return IndexParser::parse(text, name);
}

VobSubIndex indexOf(const std::string& lines) {
    const std::string text = header + lines;
    const auto result = parsed(text);
    EXPECT_TRUE(result.index) << result.wrongLine;
    return result.index.value_or(VobSubIndex());
}

std::vector<std::int64_t> timesOf(const std::string& lines) {
    std::vector<std::int64_t> times;
    const VobSubIndex index = indexOf(stream + lines);
    for (const QVVobSubPos& position : index._streams.at(0)._subPos)
        times.push_back(position._timestamp);
    return times;
}

std::string stamp(const std::string& time) {
    return "timestamp: " + time + ", filepos: 0\n";
}

using Times = std::vector<std::int64_t>;

class VobSubIndexFiles : public SubtitleFiles {};

} // namespace

TEST(VobSubIndex, a_usual_index_is_read_whole) {
    const VobSubIndex index = indexOf("# Settings\r\n"
                                      "\r\n"
                                      "  size: 720x576\r\n"
                                      "org: 10, -20\r\n"
                                      "scale: 100 %, 50%\r\n"
                                      "alpha: 80%\r\n"
                                      "smooth: OLD\r\n"
                                      "fadein/out: 100, 250\r\n"
                                      "align: on at Center bottom\r\n"
                                      "time offset: -01:02:03:004\r\n"
                                      "forced subs: ON\r\n"
                                      "palette: 010203, 828282, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xfffefd\r\n"
                                      "custom colors: ON, tridx: 1000, colors: 000000, 444444, 8c8c8c, eeeeee\r\n"
                                      "langidx: 3\r\n"
                                      "id: de, index: 31\r\n"
                                      "# Vob/Cell ID: 2, 5 (PTS: 12345678901)\r\n"
                                      "timestamp: 00:01:02:500, filepos: 000001a2b\r\n"
                                      "id: fr, index: 0\r\n"
                                      "alt:  R\u00E9alisateur\t\r\n"
                                      "timestamp: 00:00:01:000, filepos: 1\r\n");
    EXPECT_EQ(index._size, QSizeF(720, 576));
    EXPECT_EQ(index._origin, QPointF(10, -20));
    EXPECT_EQ(index._scaleX, 1.0F);
    EXPECT_EQ(index._scaleY, 0.5F);
    EXPECT_EQ(index._alpha, 0.8F);
    EXPECT_EQ(index._smooth, 2);
    EXPECT_EQ(index._fadeIn, 0.1);
    EXPECT_EQ(index._fadeOut, 0.25);
    EXPECT_TRUE(index._align);
    EXPECT_EQ(index._alignH, 1);
    EXPECT_EQ(index._alignV, 2);
    EXPECT_EQ(static_cast<std::int32_t>(index._timeOffset), -3'723'004);
    EXPECT_TRUE(index._onlyForced);
    EXPECT_EQ(index._idxInUse, 3);
    EXPECT_EQ(index._originalPalette[0], (VobSubColor{1, 2, 3, 0}));
    EXPECT_EQ(index._originalPalette[15], (VobSubColor{0xFF, 0xFE, 0xFD, 0}));
    EXPECT_TRUE(index._hasCustomPalette);
    EXPECT_EQ(index._trIdx, 1);
    EXPECT_EQ(index._customPalette[0], (VobSubColor{0, 0, 0, 0}));
    EXPECT_EQ(index._customPalette[3], (VobSubColor{0xEE, 0xEE, 0xEE, 0xFF}));
    ASSERT_EQ(index._streams.size(), 2U);
    EXPECT_EQ(index._streams[0]._index, 31);
    EXPECT_EQ(index._streams[0]._languageName, QStringLiteral("DE"));
    EXPECT_EQ(index._streams[1]._languageID, QStringLiteral("fr"));
    EXPECT_EQ(index._streams[1]._languageName, QStringLiteral("R\u00E9alisateur"));
    for (const QVVobSubStreamInfo& one : index._streams) {
        ASSERT_EQ(one._subPos.size(), 1U);
        EXPECT_EQ(one._subPos[0]._vobid, 2);
        EXPECT_EQ(one._subPos[0]._cellid, 5);
        EXPECT_EQ(one._subPos[0]._celltimestamp, 12'345'678'901);
    }
    EXPECT_EQ(index._streams[0]._subPos[0]._timestamp, 62'500);
    EXPECT_EQ(index._streams[0]._subPos[0]._pos, 0x1A2B);
}

TEST(VobSubIndex, what_it_leaves_unsaid_is_zero_but_scale_and_opacity_are_whole) {
    const VobSubIndex index = indexOf(stream + stamp("00:00:01:000"));
    EXPECT_EQ(index._size, QSizeF(0, 0));
    EXPECT_EQ(index._origin, QPointF(0, 0));
    for (const float share : {index._scaleX, index._scaleY, index._alpha})
        EXPECT_EQ(share, 1.0F);
    EXPECT_EQ(index._fadeIn + index._fadeOut, 0);
    for (const std::int32_t number : {index._smooth, index._alignH, index._alignV, index._idxInUse, index._trIdx})
        EXPECT_EQ(number, 0);
    EXPECT_EQ(index._timeOffset, 0U);
    EXPECT_FALSE(index._align || index._onlyForced || index._hasCustomPalette);
    for (const VobSubColor& color : index._customPalette)
        EXPECT_EQ(color.red | color.green | color.blue | color.alpha, 0);
    const QVVobSubPos& position = index._streams.at(0)._subPos.at(0);
    EXPECT_EQ(position._vobid, -1);
    EXPECT_EQ(position._cellid, -1);
    EXPECT_EQ(position._celltimestamp, 0);
}

TEST(VobSubIndex, delays_move_the_times_after_them) {
    const struct {
        const char* what;
        std::string lines;
        Times times;
    } cases[] = {
        {"forward, adding up",
         "delay: 00:00:01:000\n" + stamp("00:00:01:000") + "delay: +00:00:00:500\n" + stamp("00:00:02:000"),
         {2000, 3500}},
        {"back, but not behind the record before",
         stamp("00:00:10:000") + "delay: -00:00:05:000\n" + stamp("00:00:12:000") + stamp("00:00:13:000"),
         {10'000, 10'000, 11'000}},
        {"back before the first record", "delay: -00:00:05:000\n" + stamp("00:00:01:000"), {-4000}},
        {"without a delay times may go back", stamp("00:00:02:000") + stamp("00:00:01:000"), {2000, 1000}},
        {"a negative time of zero hours", stamp("-00:00:00:500"), {-500}},
        {"as far as 32 bits go",
         "delay: 999999999999:0:0:0\n" + stamp("99999:0:0:0") + stamp("-99999999999:0:0:0"),
         {2'147'483'647, 0}},
    };
    for (const auto& one : cases)
        EXPECT_EQ(timesOf(one.lines), one.times) << one.what;
    EXPECT_EQ(
        indexOf(stream + "delay: 0:0:1:0\nid: de, index: 1\n" + stamp("0:0:1:0"))._streams[1]._subPos[0]._timestamp,
        1000);
}

TEST(VobSubIndex, values_may_be_short_or_strange) {
    EXPECT_EQ(indexOf("fadein/out:\n")._fadeOut, 0.05);
    EXPECT_EQ(indexOf("fadein/out: 10\n")._fadeIn, 0.01);
    EXPECT_EQ(indexOf("fadein/out: 10, 20 or so\n")._fadeOut, 0.02);
    const std::pair<const char*, std::int32_t> smooth[] = {{"OLD", 2}, {"2", 2},   {"On", 1}, {"1", 1},
                                                           {"off", 0}, {"OFF", 0}, {"0", 0}};
    for (const auto& [word, value] : smooth)
        EXPECT_EQ(indexOf("smooth: 1\nsmooth: " + std::string(word) + '\n')._smooth, value) << word;
    const std::tuple<const char*, std::int32_t, std::int32_t> alignments[] = {
        {"LEFT CENTER", 0, 1}, {"right top", 2, 0}, {"CENTERED BOTTOM", 1, 2}};
    for (const auto& [words, horizontal, vertical] : alignments) {
        const VobSubIndex aligned = indexOf("align: ON at CENTER CENTER\nalign: 1 at " + std::string(words) + '\n');
        EXPECT_EQ(std::pair(aligned._alignH, aligned._alignV), std::pair(horizontal, vertical)) << words;
    }
    EXPECT_EQ(indexOf("time offset: 250\n")._timeOffset, 250U);
    EXPECT_EQ(static_cast<std::int32_t>(indexOf("time offset: -250\n")._timeOffset), -250);
    EXPECT_FALSE(indexOf("forced subs: ON\nforced subs: 0\n")._onlyForced);
    EXPECT_EQ(indexOf("time offset: 1:2\n")._timeOffset, 0U);
    EXPECT_EQ(indexOf("forced subs: One day\n")._onlyForced, true);
    EXPECT_EQ(indexOf("align: 0 at nowhere\n")._align, false);
    EXPECT_EQ(indexOf("custom colors: OFF, tridx: 0110, colors: 1, 2, 3, 4\n")._trIdx, 6);
    EXPECT_EQ(indexOf("langidx: 99999999999\n")._idxInUse, 2'147'483'647);
    // The first key of the list counts, wherever it stands.
    EXPECT_EQ(indexOf("langidx: 3 size: 4x5\n")._size, QSizeF(4, 5));
    EXPECT_EQ(indexOf(stream + "alt: id\n")._streams[0]._languageName, QStringLiteral("id"));
    EXPECT_EQ(indexOf(stream + "alt: \xC3\n")._streams.size(), 1U);
    const VobSubIndex far = indexOf(stream + "timestamp: 0:0:0:1, filepos: FFFFFFFFFFFFFFFFFF\n");
    EXPECT_EQ(far._streams[0]._subPos[0]._pos, std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(far._streams[0]._subPos[0]._vobid, -1);
    // Headers of version 4 and older have one scale for both directions.
    const std::string old = "\n# VobSub index file, v4\nscale: 75%\n";
    EXPECT_EQ(parsed(old).index->_scaleY, 0.75F);
    EXPECT_TRUE(parsed("").index);
}

TEST(VobSubIndex, a_line_that_is_not_understood_spoils_the_index) {
    const QString bad = QLatin1String(
        "colour: 3|no key at all|size: 720|size: 720 x 576|scale: 100%|smooth: maybe|"
        "fadein/out: now|fadein/out: 10 or so|align: ON|align: ON at LEFT|align: ON at LEFT below|forced subs: maybe|"
        "custom colors: maybe, tridx: 1000, colors: 1, 2, 3, 4|langidx: en|alpha: high|"
        "palette: 0, 1, 2|"
        "custom colors: ON, colors: 1, 2, 3, 4|custom colors: ON, tridx: 1000|"
        "custom colors: ON, tridx: 1000, colors: 1, 2, 3|id: en, index: 32|id: en, index: -1|"
        "id: en|id:en, index: 0|alt: nobody's|delay: 00:00:01:000|"
        "timestamp: 00:00:01:000, filepos: 0|# VobSub index file, v8");
    for (const QString& words : bad.split(u'|')) {
        const std::string line = words.toStdString() + '\n';
        const bool isHeader = line.front() == '#';
        const std::string text = (isHeader ? "" : header) + line + stream;
        const auto result = parsed(text);
        EXPECT_FALSE(result.index) << line;
        EXPECT_EQ(result.wrongLine, line);
    }
    for (const char* const line : {"delay: 1:2:3\n", "delay: soon\n", "timestamp: 00:00:01:000\n",
                                   "timestamp: 00:00:01, filepos: 0\n", "timestamp: 00:00:01:000, filepos: here\n"}) {
        const std::string text = header + stream + line + stamp("0:0:1:0");
        EXPECT_EQ(parsed(text).wrongLine, line);
    }
    // A line is read in pieces, so a comment that is too long is one no more.
    EXPECT_FALSE(parsed(header + '#' + std::string(999, 'x')).index);
    EXPECT_TRUE(parsed(header + '#' + std::string(998, 'x')).index);
    std::string many = header;
    for (int number = 0; number < 1000; ++number)
        many += stream;
    EXPECT_FALSE(parsed(many).index);
}

TEST_F(VobSubIndexFiles, the_probe_wants_the_header_on_the_first_line) {
    write(QStringLiteral("film.rar"), "");
    const struct {
        const char* text;
        bool isValid;
    } cases[] = {
        {"# VobSub index file, v7 (do not modify this line!)\n", true},
        {"\xEF\xBB\xBF# VobSub index file, v3\r\n", true},
        {"\n# VobSub index file, v7\n", false},
        {"# VobSub index file\n", false},
    };
    for (const auto& one : cases) {
        const QString path = write(QStringLiteral("film.idx"), one.text);
        const SubtitleText text = SubtitleText::beginningOfFile(path);
        EXPECT_EQ(QVVobSubSubtitles::isFormatValid(path, text.view()), one.isValid) << one.text;
    }
    const QString alone = write(QStringLiteral("other.idx"), header);
    EXPECT_FALSE(QVVobSubSubtitles::isFormatValid(alone, header));
}

TEST_F(VobSubIndexFiles, a_bad_index_is_told_with_its_line_and_has_no_tracks) {
    const CapturedLog log;
    write(QStringLiteral("film.sub"), "");
    const QString path = write(QStringLiteral("film.idx"), header + stream + "subtitle: 1\n" + stream);
    EXPECT_TRUE(registry.subtitlesWithFilePath(path, owner).empty());
    EXPECT_EQ(log.count(QStringLiteral("ERROR: QVVobSubInfo: Error parsing line: \"subtitle: 1\n\".")), 1);
    EXPECT_FALSE(QVVobSubInfo::infoWithFile(folder.path()));
    EXPECT_TRUE(log.contains(QStringLiteral("Unable to open index file \"%1\" for parsing.").arg(folder.path())));
}
