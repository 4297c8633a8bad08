// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Writes VobSub pairs: an index (".idx") and a data file (".sub") of DVD subpictures. For tests, benchmarks and the
/// demo movie. Written from the public descriptions of the DVD subpicture format and of MPEG program streams.
namespace vobsub {

using Bytes = std::vector<std::uint8_t>;

/// A picture of codes 0 to 3, line by line.
struct Bitmap {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> codes = std::vector<std::uint8_t>(static_cast<std::size_t>(width * height));

    std::uint8_t& at(int x, int y) { return codes[static_cast<std::size_t>(y * width + x)]; }
    std::uint8_t at(int x, int y) const { return codes[static_cast<std::size_t>(y * width + x)]; }
    void fill(int x, int y, int w, int h, std::uint8_t code);
};

struct Subpicture {
    Bitmap bitmap;
    int x = 0;
    int y = 0;
    /// Of the codes 0 to 3: numbers of colours of the palette, and contrasts of 0 to 15.
    std::array<std::uint8_t, 4> colors{0, 1, 2, 3};
    std::array<std::uint8_t, 4> contrasts{0, 15, 15, 15};
    /// When it stops, in units of 1024 / 90 ms; nothing stops it without.
    std::optional<std::uint16_t> stop = 90;
    bool forced = false;
};

/// The run lengths of a field (every other line from `first` on).
Bytes runLengths(const Bitmap& bitmap, int first);
/// The unit of a subpicture. Empty when it is too large for one (65,535 bytes).
Bytes unit(const Subpicture& subpicture);

/// How a unit is cut into packs.
struct Layout {
    int packSize = 2048;
    /// Stuffing bytes at the end of a pack's header, 0 to 7.
    int stuffing = 0;
    bool systemHeader = false;
    /// A packet of the padding stream fills what the unit leaves of its last pack; else that is 0xFF.
    bool paddingStream = true;
    /// The last pack ends with its packet.
    bool shortLastPack = false;
    /// Bytes of 0xFF before each pack but the first.
    int fillBetween = 0;
    /// Packs of video between those of the unit.
    int foreignPacks = 0;
    /// As if the packets had no length.
    bool packetLengthsOfZero = false;
};

/// The data file: packs, one after the other.
class DataWriter {
public:
    /// The position of the unit's first pack. `stream`: 0 to 31; `ticks`: of 90 kHz, when it is shown.
    std::int64_t append(const Bytes& unit, int stream, std::uint64_t ticks, const Layout& layout = {});
    /// A pack of video whose payload begins with `firstByte`.
    void appendForeignPack(std::uint8_t firstByte = 0x20);
    const Bytes& bytes() const { return _bytes; }
    Bytes& bytes() { return _bytes; }

private:
    void appendPackHeader(const Layout& layout);
    void append(std::initializer_list<unsigned> bytes);
    Bytes _bytes;
};

/// A pair with several languages.
class PairWriter {
public:
    int width = 720;
    int height = 480;
    /// 0xRRGGBB each.
    std::array<std::uint32_t, 16> palette{0x000000, 0xFFFFFF, 0x202020, 0x808080, 0xFF0000, 0x00FF00,
                                          0x0000FF, 0xFFFF00, 0x00FFFF, 0xFF00FF, 0x4080C0, 0xC08040,
                                          0x102030, 0xFEDCBA, 0x7F7F7F, 0xE0E0E0};
    /// Lines of the index after its palette ("forced subs: ON").
    std::string moreKeys;

    /// The number of the stream.
    int addStream(const std::string& language, const std::string& name = {});
    void add(int stream, std::int64_t milliseconds, const Subpicture& subpicture, const Layout& layout = {});
    /// With a position that the index shall have instead of the right one, off by so many bytes.
    void addShifted(int stream, std::int64_t milliseconds, const Subpicture& subpicture, int shift);
    DataWriter& data() { return _data; }
    std::string index() const;
    /// Writes base + ".idx" and base + ".sub"; whether that worked.
    bool write(const std::string& base) const;

private:
    struct Entry {
        std::int64_t milliseconds;
        std::int64_t position;
    };
    struct Stream {
        std::string language;
        std::string name;
        std::vector<Entry> entries;
    };
    std::vector<Stream> _streams;
    DataWriter _data;
};

} // namespace vobsub
