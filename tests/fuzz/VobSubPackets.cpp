// SPDX-License-Identifier: GPL-3.0-or-later
// A data file and a position in it: the first two bytes are the position, the third the stream, the rest is the file.
#include "platform/base/Log.h"
#include "subtitles/vobsub/QVVobSubPacket.h"

#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

namespace {

/// A file in memory that takes the place of the last one.
class MemoryFile {
public:
    MemoryFile() {
        platform::Log::setSink([](const QString&) {});
    }
    std::unique_ptr<DataFile> with(const std::uint8_t* data, std::size_t size) {
        if (::ftruncate(_descriptor, 0) != 0 || ::pwrite(_descriptor, data, size, 0) != static_cast<ssize_t>(size))
            std::abort();
        return DataFile::open(QStringLiteral("/proc/self/fd/%1").arg(_descriptor));
    }

private:
    const int _descriptor = ::memfd_create("vobsub", 0);
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static MemoryFile memory;
    constexpr std::size_t headerLength = 3;
    if (size < headerLength)
        return 0;
    const auto file = memory.with(data + headerLength, size - headerLength);
    const std::atomic<bool> abort = false;
    PackReader reader(*file, data[2], abort);
    const std::int64_t position = data[0] << 8 | data[1];
    for (const auto way : PackReader::ways) {
        const auto unit = (reader.*way)(position);
        // A unit is made of bytes of the file, and has the size that it says.
        if (unit && (unit->bytes.empty() || unit->bytes.size() > size || unit->dataSize < 1))
            std::abort();
        if (unit && unit->bytes.size() >= 2 &&
            unit->bytes.size() != static_cast<std::size_t>(unit->bytes[0] << 8 | unit->bytes[1]))
            std::abort();
    }
    if (auto packet = QVVobSubPacket::packetWithFile(reader, {._pos = position}))
        (void)packet->decodeWithInfo({}, data[2] % 2 ? ReadingMode::repairing : ReadingMode::strict);
    return 0;
}
