// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/PackReader.h"
#include "tests/subtitles/VobSubFiles.h"
#include "tests/support/CapturedLog.h"
#include "tests/support/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using vobsub::Bytes;
using vobsub::Layout;

namespace {

class VobSubPacks : public testing::Test {
protected:
    /// A unit of some packs (7,000 bytes), or of a part of one, with bytes that differ from unit to unit.
    static Bytes largeUnit(unsigned seed) { return vobsub::unit(uncropped(randomBitmap(240, 160, 4, seed))); }
    static Bytes smallUnit(unsigned seed) { return vobsub::unit(uncropped(randomBitmap(60, 20, 30, seed))); }

    QString write(const Bytes& bytes) {
        return writeFile(folder.filePath(QStringLiteral("data.sub")), {bytes.data(), bytes.data() + bytes.size()});
    }
    /// What a packet of stream 3 would be made of; empty when there is none.
    Bytes read(PackReader& reader, std::int64_t position) {
        for (const auto way : PackReader::ways) {
            auto unit = (reader.*way)(position);
            if (unit && ControlSequences::parse(unit->bytes, unit->dataSize))
                return unit->bytes;
        }
        return {};
    }
    Bytes read(DataFile& file, std::int64_t position) {
        PackReader reader(file, 3, abort);
        return read(reader, position);
    }
    Bytes read(const Bytes& bytes, std::int64_t position) {
        const auto file = DataFile::open(write(bytes));
        return file ? read(*file, position) : Bytes();
    }

    QTemporaryDir folder;
    std::atomic<bool> abort = false;
};

} // namespace

TEST(VobSubStream, elements_are_as_long_as_they_say) {
    using ProgramStream::Element;
    const struct {
        Bytes bytes;
        std::optional<Element> element;
    } elements[] = {
        {{0, 0, 1, 0xB9}, Element{Element::end, 4}},
        {{0, 0, 1, 0xBA, 0x44, 0, 0, 0, 0, 0, 0, 0, 0, 0xFB}, Element{Element::pack, 17}},
        {{0, 0, 1, 0xBA, 0x44, 0, 0, 0, 0, 0, 0, 0, 0}, std::nullopt},
        {{0, 0, 1, 0xBA, 0x2F, 0, 0, 0, 0, 0, 0, 0}, Element{Element::pack, 12}},
        {{0, 0, 1, 0xBA, 0x2F, 0, 0, 0, 0, 0, 0}, std::nullopt},
        {{0, 0, 1, 0xBA, 0x84, 0, 0, 0, 0, 0, 0, 0, 0, 0}, std::nullopt},
        {{0, 0, 1, 0xE0, 1, 2}, Element{Element::packet, 264}},
        {{0, 0, 1, 0xE0, 1}, std::nullopt},
        {{0, 0, 1, 0xB8, 0, 0}, std::nullopt},
        {{0, 0, 2, 0xE0, 0, 0}, std::nullopt},
        {{0, 1, 1, 0xE0, 0, 0}, std::nullopt},
        {{0, 0, 1, 0xBD, 0, 6, 0x81, 0, 2, 7, 7, 0x23}, Element{Element::privateStream1, 12, 0x23, 12}},
        {{0, 0, 1, 0xBD, 0, 5, 0x81, 0, 2, 7, 7, 0x23}, std::nullopt},
        {{0, 0, 1, 0xBD, 0, 6, 0x81, 0, 2, 7, 7}, std::nullopt},
        {{0, 0, 1, 0xBD, 0, 6, 0x81, 0}, std::nullopt},
        {{0, 0, 1, 0xBD, 0, 6, 0x41, 0, 2, 7, 7, 0x23}, std::nullopt},
    };
    for (const auto& [bytes, expected] : elements) {
        const auto found = ProgramStream::elementAt(bytes);
        ASSERT_EQ(found.has_value(), expected.has_value()) << testing::PrintToString(bytes);
        if (!found)
            continue;
        EXPECT_EQ(found->kind, expected->kind);
        EXPECT_EQ(found->length, expected->length);
        EXPECT_EQ(found->subStream, expected->subStream);
        EXPECT_EQ(found->payload, expected->payload);
    }
    const std::pair<Bytes, std::optional<std::size_t>> fills[] = {
        {{}, 0},
        {{0xFF, 0, 0, 0, 1, 0xBA}, 2},
        {{0xFF, 0, 0, 1}, 4},
        {{1}, 1},
        {{0, 1, 0}, std::nullopt},
        {{0xFF, 5}, std::nullopt},
        {{0, 0, 1, 0xB8}, std::nullopt},
    };
    for (const auto& [bytes, length] : fills)
        EXPECT_EQ(ProgramStream::fillLength(bytes), length) << testing::PrintToString(bytes);
}

TEST_F(VobSubPacks, units_are_put_together_from_packs_of_all_layouts) {
    struct Case {
        const char* name;
        Layout layout;
    };
    const Case cases[] = {
        {"the usual", {}},
        {"fill in place of a padding packet", {.paddingStream = false}},
        {"packs of video between", {.foreignPacks = 2}},
        {"all stuffing, and video between", {.stuffing = 7, .foreignPacks = 1}},
        {"a system header", {.systemHeader = true}},
        {"short packs", {.packSize = 700}},
        {"long packs", {.packSize = 4096}},
        {"one very long pack", {.packSize = 20000}},
        {"the last pack ends with its packet", {.shortLastPack = true}},
        {"fill between the packs", {.fillBetween = 1500}},
        {"everything at once",
         {.packSize = 1300,
          .stuffing = 3,
          .systemHeader = true,
          .paddingStream = false,
          .fillBetween = 7,
          .foreignPacks = 1}},
        {"packets without a length", {.packetLengthsOfZero = true}},
    };
    for (const Case& one : cases) {
        vobsub::DataWriter writer;
        const Bytes before = largeUnit(1);
        const Bytes large = largeUnit(2);
        const Bytes small = smallUnit(3);
        ASSERT_GT(large.size(), 4096U);
        writer.append(before, 5, 0, one.layout);
        const std::int64_t largeAt = writer.append(large, 3, 0, one.layout);
        const std::int64_t smallAt = writer.append(small, 3, 0, one.layout);
        writer.append(before, 5, 0, one.layout);
        EXPECT_EQ(read(writer.bytes(), largeAt), large) << one.name;
        EXPECT_EQ(read(writer.bytes(), smallAt), small) << one.name;
    }
}

TEST_F(VobSubPacks, a_position_that_is_a_little_off_is_found_again) {
    for (const Layout& layout : {Layout{}, Layout{.stuffing = 4}, Layout{.packSize = 900}}) {
        vobsub::DataWriter writer;
        writer.append(smallUnit(1), 3, 0, layout);
        const Bytes unit = largeUnit(2);
        const std::int64_t position = writer.append(unit, 3, 0, layout);
        writer.append(smallUnit(3), 3, 0, layout);
        const auto file = DataFile::open(write(writer.bytes()));
        for (int shift = -16; shift <= 16; ++shift)
            EXPECT_EQ(read(*file, position + shift), unit) << shift;
        EXPECT_TRUE(read(*file, position + 60).empty());
        EXPECT_TRUE(read(*file, position - 60).empty());
        PackReader reader(*file, 3, abort);
        EXPECT_FALSE(reader.readByLengths(position - 17));
        EXPECT_FALSE(reader.readByLengths(position + 14 + layout.stuffing + 17)) << "behind its packet";
    }
    // Damaged packs of others on the way are passed over from there, too.
    const Bytes unit = largeUnit(2);
    vobsub::DataWriter writer;
    const std::int64_t position = writer.append(unit, 3, 0, {.foreignPacks = 1});
    Bytes damaged = writer.bytes();
    for (std::size_t pack = 0; pack < damaged.size(); pack += 2048)
        if (damaged[pack + 17] != 0xBD)
            std::fill_n(damaged.begin() + static_cast<std::ptrdiff_t>(pack) + 14, 100, std::uint8_t{0x55});
    ASSERT_NE(damaged, writer.bytes());
    EXPECT_EQ(read(damaged, position), unit);
    EXPECT_EQ(read(damaged, position + 5), unit);
}

TEST_F(VobSubPacks, the_packs_of_another_stream_between_are_left_out) {
    // Two units whose packs take turns.
    const Bytes unit = largeUnit(1);
    vobsub::DataWriter own;
    vobsub::DataWriter other;
    own.append(unit, 3, 0);
    other.append(largeUnit(2), 4, 0);
    Bytes mixed;
    for (std::size_t at = 0; at < own.bytes().size(); at += 2048)
        for (const vobsub::DataWriter* writer : {&own, &other})
            if (at < writer->bytes().size())
                mixed.insert(mixed.end(), writer->bytes().begin() + static_cast<std::ptrdiff_t>(at),
                             writer->bytes().begin() + static_cast<std::ptrdiff_t>(at) + 2048);
    EXPECT_EQ(read(mixed, 0), unit);
}

TEST_F(VobSubPacks, what_lies_behind_the_packets_of_an_own_pack_is_passed_over) {
    const Bytes unit = smallUnit(1);
    vobsub::DataWriter writer;
    writer.append(unit, 3, 0);
    Bytes packs;
    const auto append = [&packs](auto first, auto last) { packs.insert(packs.end(), first, last); };
    const auto pack = [&](std::initializer_list<std::size_t> ends) {
        append(writer.bytes().begin(), writer.bytes().begin() + 14);
        for (auto from = ends.begin(), to = from + 1; to != ends.end(); ++from, ++to) {
            const auto length = static_cast<unsigned>(*to - *from + 4);
            const Bytes header{
                0,    0, 1, 0xBD, static_cast<std::uint8_t>(length >> 8), static_cast<std::uint8_t>(length),
                0x81, 0, 0, 0x23};
            append(header.begin(), header.end());
            append(unit.begin() + static_cast<std::ptrdiff_t>(*from), unit.begin() + static_cast<std::ptrdiff_t>(*to));
        }
        packs.resize((packs.size() + 2047) / 2048 * 2048, 0x55);
    };
    const std::size_t third = unit.size() / 3;
    ASSERT_LT(third, 600U);
    pack({0, third, 2 * third});
    pack({2 * third, unit.size()});
    EXPECT_EQ(read(packs, 0), unit);
}

TEST_F(VobSubPacks, the_first_pack_is_judged_by_its_beginning) {
    vobsub::DataWriter writer;
    const Bytes unit = smallUnit(1);
    writer.append(unit, 4, 0);
    // Taken as it is, though of another stream.
    EXPECT_EQ(read(writer.bytes(), 0), unit);
    Bytes damaged = writer.bytes();
    damaged[3] = 0;
    EXPECT_EQ(read(damaged, 0), unit) << "a subpicture in a pack without its start code";
    const std::size_t subStream = 23U + damaged[22];
    damaged[subStream] = 0x83;
    EXPECT_EQ(read(damaged, 0), unit) << "the number of the stream alone";
    damaged[subStream] = 0x84;
    EXPECT_EQ(read(damaged, 0), unit) << "a stranger with a time stamp";
    damaged[21] = 0;
    damaged[23] = 0x31;
    EXPECT_TRUE(read(damaged, 0).empty()) << "a stranger";
    damaged[3] = 0xBA;
    EXPECT_EQ(read(damaged, 0), unit) << "a stranger in a pack that begins as it should";
}

TEST_F(VobSubPacks, a_file_that_is_cut_anywhere_gives_whole_units_or_none) {
    for (const Layout& layout : {Layout{.foreignPacks = 1}, Layout{.packSize = 800, .stuffing = 2, .fillBetween = 3}}) {
        vobsub::DataWriter writer;
        const Bytes unit = largeUnit(1);
        const std::int64_t position = writer.append(unit, 3, 0, layout);
        const QString path = write(writer.bytes());
        qsizetype whole = 0;
        for (auto size = static_cast<qint64>(writer.bytes().size()); size >= 0; --size) {
            ASSERT_TRUE(QFile::resize(path, size));
            const auto file = DataFile::open(path);
            const Bytes found = read(*file, position);
            whole += found.empty() ? 0 : 1;
            ASSERT_TRUE(found.empty() || found == unit) << size;
        }
        EXPECT_GT(whole, 0);
    }
}

TEST_F(VobSubPacks, a_file_that_shrinks_while_it_is_read_ends) {
    vobsub::DataWriter writer;
    for (int i = 0; i < 100; ++i)
        writer.append(largeUnit(1), 3, 0);
    const QString path = write(writer.bytes());
    const auto file = DataFile::open(path);
    EXPECT_FALSE(read(*file, 0).empty());
    ASSERT_TRUE(QFile::resize(path, 100));
    EXPECT_TRUE(read(*file, static_cast<std::int64_t>(writer.bytes().size()) - 100'000).empty());
}

TEST_F(VobSubPacks, only_so_many_strange_bytes_are_passed_over) {
    constexpr std::int64_t packet = 65541;
    const auto packets = [](std::int64_t bytes) { return bytes / packet; };
    for (const bool isTooMuch : {false, true}) {
        vobsub::DataWriter writer;
        const Bytes unit = largeUnit(1);
        writer.append(unit, 3, 0);
        const QString path = write(writer.bytes());
        // The rest of the unit moves behind packets of video, whose payloads are holes of the file.
        const std::int64_t count = packets(PackReader::maximumSkipped) + (isTooMuch ? 1 : -1);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.resize(2048));
        for (std::int64_t i = 0; i < count; ++i) {
            file.seek(2048 + i * packet);
            file.write("\x00\x00\x01\xE0\xFF\xFF", 6);
        }
        file.seek(2048 + count * packet);
        file.write(reinterpret_cast<const char*>(writer.bytes().data()) + 2048,
                   static_cast<qint64>(writer.bytes().size()) - 2048);
        file.close();
        const auto data = DataFile::open(path);
        EXPECT_EQ(read(*data, 0), isTooMuch ? Bytes() : unit);
        abort = true;
        EXPECT_TRUE(read(*data, 0).empty()) << "while it gives up";
        abort = false;
    }
}

TEST_F(VobSubPacks, what_cannot_be_read_is_said) {
    vobsub::DataWriter writer;
    Bytes unit = smallUnit(1);
    writer.append(unit, 3, 0);
    unit[2] = 0xFF; // control sequences far away
    const std::int64_t malformedAt = writer.append(unit, 3, 0);
    unit[0] = unit[1] = 0;
    const std::int64_t emptyAt = writer.append(unit, 3, 0);
    const auto end = static_cast<std::int64_t>(writer.bytes().size());
    const auto file = DataFile::open(write(writer.bytes()));
    PackReader reader(*file, 3, abort);
    const std::pair<std::int64_t, const char*> cases[] = {
        {malformedAt, "WARNING: QVVobSubPacket: Wrong subpicture parameter block ending"},
        {emptyAt, ""},
        {end, "ERROR: QVVobSubPacket: Unable to read data from file "},
        {-1, "ERROR: QVVobSubPacket: Unable to read data from file "},
        {std::numeric_limits<std::int64_t>::max(), "ERROR: QVVobSubPacket: Unable to read data from file "},
        {std::numeric_limits<std::int64_t>::min(), "ERROR: QVVobSubPacket: Unable to read data from file "},
    };
    for (const auto& [position, line] : cases) {
        const CapturedLog log;
        EXPECT_FALSE(QVVobSubPacket::packetWithFile(reader, {._pos = position}));
        EXPECT_EQ(log.lines().size(), *line ? 1 : 0) << position;
        EXPECT_TRUE(!*line || log.lines().join(u' ').startsWith(QString::fromLatin1(line))) << position;
    }
    EXPECT_EQ(DataFile::open(write({7, 8}))->at(0, 1)[0], 7);
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_FALSE(DataFile::open(pipe));
    EXPECT_FALSE(DataFile::open(folder.path()));
}

TEST_F(VobSubPacks, a_disc_that_cannot_be_read_on_is_reported) {
    const QString path = write(Bytes(3 * DataFile::windowSize));
    const std::int64_t lastByteInWindow = DataFile::windowSize - 1;
    for (const std::int64_t position : {lastByteInWindow, 2 * lastByteInWindow}) {
        // The file takes the descriptor that is free, which afterwards leads to what can be opened only.
        const int disc = ::open("/", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        const int free = ::dup(disc);
        ::close(free);
        const auto file = DataFile::open(path);
        ASSERT_FALSE(file->at(0, DataFile::windowSize).empty());
        ASSERT_EQ(::dup2(disc, free), free);
        ::close(disc);
        PackReader reader(*file, 3, abort);
        const CapturedLog log;
        EXPECT_FALSE(QVVobSubPacket::packetWithFile(reader, {._pos = position}));
        EXPECT_EQ(log.lines(), QStringList{"ERROR: QVVobSubPacket: Caught read error: Is a directory"}) << position;
    }
}

TEST_F(VobSubPacks, a_long_track_of_packets_without_a_length_is_read_to_its_end) {
    vobsub::DataWriter writer;
    std::vector<std::int64_t> positions;
    const Bytes unit = vobsub::unit(uncropped(randomBitmap(160, 100, 4, 1)));
    ASSERT_GT(unit.size(), 2048U);
    for (int count = 0; count < 400; ++count)
        positions.push_back(writer.append(unit, 3, 0, {.foreignPacks = 2, .packetLengthsOfZero = true}));
    const auto file = DataFile::open(write(writer.bytes()));
    ASSERT_TRUE(file);
    PackReader reader(*file, 3, abort);
    for (const std::int64_t position : positions)
        ASSERT_TRUE(read(reader, position) == unit) << position;
}
