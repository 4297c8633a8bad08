// SPDX-License-Identifier: GPL-3.0-or-later
// Files that ask for more than any film needs: where reading them ends.
#include "subtitles/vobsub/IndexParser.h"
#include "subtitles/vobsub/PackReader.h"
#include "subtitles/vobsub/QVVobSubSubtitles.h"
#include "tests/subtitles/SubtitleFiles.h"
#include "tests/subtitles/VobSubFiles.h"
#include "tests/support/CapturedLog.h"

namespace {

const std::string indexHeader = "# VobSub index file, v7 (do not modify this line!)\n";

class HostileFiles : public SubtitleFiles {
protected:
    QString write(const QString& name, const vobsub::Bytes& bytes) {
        return writeFile(folder.filePath(name), {bytes.data(), bytes.data() + bytes.size()});
    }

    /// A unit of nearly 64 KiB with a picture of a few pixels.
    static vobsub::Bytes wastefulUnit() {
        constexpr std::size_t waste = 60'000;
        vobsub::Bytes unit = vobsub::unit(uncropped(randomBitmap(60, 20, 30, 1)));
        const auto numberAt = [&](std::size_t at) { return static_cast<std::size_t>(unit[at] << 8 | unit[at + 1]); };
        const auto raise = [&](std::size_t at) {
            const std::size_t raised = numberAt(at) + waste;
            unit[at] = static_cast<std::uint8_t>(raised >> 8);
            unit[at + 1] = static_cast<std::uint8_t>(raised);
        };
        // Each control sequence says where the next one is, the last one where it is itself.
        const std::size_t first = numberAt(2), second = numberAt(first + 2);
        raise(first + 2);
        raise(second + 2);
        raise(0);
        raise(2);
        unit.insert(unit.begin() + static_cast<std::ptrdiff_t>(first), waste, 0);
        return unit;
    }
};

} // namespace

TEST_F(HostileFiles, the_pictures_of_a_track_stop_before_they_fill_the_memory) {
    constexpr std::size_t positions = 6000; // of the same unit: some 340 MiB
    vobsub::DataWriter data;
    data.append(wastefulUnit(), 0, 0);
    write("film.sub", data.bytes());
    std::string index = indexHeader + "id: en, index: 0\n";
    for (std::size_t i = 0; i < positions; ++i)
        index += "timestamp: 00:" + std::to_string(10 + i / 600) + ":" + std::to_string(i / 10 % 60) + ":" +
                 std::to_string(i % 10 * 100) + ", filepos: 0\n";
    const auto track = load("film.idx", index);
    ASSERT_TRUE(track);
    const CapturedLog log;
    track->preload();
    track->waitForLoading();
    EXPECT_GT(track->count(), 4000U);
    EXPECT_LT(track->count(), 4500U);
}

TEST_F(HostileFiles, positions_that_lead_over_the_same_bytes_again_and_again_come_to_an_end) {
    // A unit whose second pack lies behind 16 MiB of packets of video, whose payloads are holes of the file.
    vobsub::DataWriter writer;
    const vobsub::Bytes unit = vobsub::unit(uncropped(randomBitmap(240, 160, 4, 1)));
    ASSERT_GT(unit.size(), 4096U);
    writer.append(unit, 3, 0);
    const vobsub::Bytes& bytes = writer.bytes();
    QFile file(write("data.sub", {bytes.begin(), bytes.begin() + 2048}));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    constexpr qint64 packet = 6 + 0xFFFF;
    constexpr qint64 count = 256;
    for (qint64 i = 0; i < count; ++i) {
        file.seek(2048 + i * packet);
        file.write("\x00\x00\x01\xE0\xFF\xFF", 6);
    }
    file.seek(2048 + count * packet);
    file.write(reinterpret_cast<const char*>(bytes.data()) + 2048, static_cast<qint64>(bytes.size()) - 2048);
    file.close();

    const auto data = DataFile::open(file.fileName());
    ASSERT_TRUE(data);
    std::atomic<bool> abort = false;
    PackReader reader(*data, 3, abort);
    int read = 0;
    while (read < 20 && reader.readByLengths(0))
        ++read;
    EXPECT_GE(read, 4) << "the streams of a file pass over one another";
    EXPECT_LT(read, 12);
    PackReader another(*data, 3, abort);
    EXPECT_TRUE(another.readByLengths(0));
}

TEST_F(HostileFiles, an_index_has_a_limited_number_of_streams) {
    std::string streams;
    for (int i = 0; i < 256; ++i)
        streams += "id: en, index: " + std::to_string(i % 32) + "\n";
    const auto parse = [](const std::string& text) {
        return IndexParser::parse(text, [](const QString& code) { return code; });
    };
    const auto all = parse(indexHeader + streams).index;
    ASSERT_TRUE(all);
    EXPECT_EQ(all->_streams.size(), 256U);
    EXPECT_FALSE(parse(indexHeader + streams + "id: en, index: 0\n").index);
}

TEST_F(HostileFiles, a_text_has_limited_lines_and_cues_limited_texts) {
    constexpr std::size_t large = 18'000'000;
    constexpr qsizetype maximum = 16 * 1024 * 1024 + 2000;
    const auto filled = [](std::string text, const std::string& piece) {
        while (text.size() < large)
            text += piece;
        return text;
    };
    const auto expectTwo = [&](const char* name, const std::string& content) {
        SCOPED_TRACE(name);
        const auto track = load(name, content);
        ASSERT_TRUE(track);
        ASSERT_EQ(track->count(), 2U);
        const QVSubtitle& first = *track->cues()[0];
        EXPECT_LE(first.text().size(), maximum);
        EXPECT_GT(first.text().size(), maximum / 2);
        EXPECT_TRUE(first.text().startsWith(first.beginningOfText(100)));
        EXPECT_NEAR(static_cast<double>(first.beginningOfText(100).size()), 90, 10);
        EXPECT_EQ(track->cues()[1]->text(), "after");
    };
    const CapturedLog log;
    const std::string blockStart = "1\n00:00:01,000 --> 00:00:02,000\n";
    const std::string nextBlock = "\n\n2\n00:00:05,000 --> 00:00:06,000\nafter\n\n";
    expectTwo("lines.srt", filled(blockStart, "many w\xC3\xB6rter in lines\n") + nextBlock);
    expectTwo("lines.srt", filled(blockStart, "many w\xF6rter in lines\n") + nextBlock);
    EXPECT_FALSE(log.contains("too long"));
    expectTwo("film.srt", filled(blockStart, "many w\xC3\xB6rter ") + nextBlock);
    expectTwo("film.sub", filled("{25}{50}", "many w\xF6rter ") + "\n{125}{150}after\n");
    expectTwo("film.txt", filled("00:00:01:", "many words ") + "\n00:00:05:after\n");
    for (const char* name : {"film.srt", "film.sub", "film.txt"})
        EXPECT_TRUE(
            log.contains((std::string(name) + "\" has lines that are too long, their ends are left out.").c_str()));
}

TEST_F(HostileFiles, a_run_of_line_ends_is_looked_through_once) {
    settings.defaults().setBool(true, kQVSubtitlesRepair);
    // Looked through for each of them it would take minutes.
    const std::string ends(1'000'000, '\r');
    EXPECT_EQ(load("film.srt", "1\n00:00:01,000 --> 00:00:02,000\nA\n" + ends)->count(), 1U);
    EXPECT_EQ(load("film.sub", "{1}{2}A\n" + ends + "{2}{3}B\n")->count(), 2U);
    EXPECT_EQ(load("film.txt", "0:0:1:A\n" + ends + "\n0:0:2:B\n")->count(), 2U);
}

TEST_F(HostileFiles, a_text_has_a_limited_number_of_cues) {
    constexpr std::size_t maximum = 2'000'000;
    std::string lines;
    lines.reserve((maximum + 10) * 7);
    for (std::size_t i = 0; i < maximum + 10; ++i)
        lines += "{1}{2}a\n";
    const CapturedLog log;
    const auto track = load("film.sub", lines);
    ASSERT_TRUE(track);
    EXPECT_EQ(track->count(), maximum);
    EXPECT_TRUE(log.contains("WARNING: QVMicroDVDSubtitles: \"film.sub\" is too large, its end is left out."));
}
