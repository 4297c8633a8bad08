// SPDX-License-Identifier: GPL-3.0-or-later
// The kinds of subtitles that the movie library takes apart, with that library. The first byte chooses the kind.
#include "platform/movie/mpv/SubtitleDemuxer.h"
#include "subtitles/packets/PacketText.h"
#include "subtitles/packets/TimedText.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    const PacketFormatFacts& facts = packetFormats()[*data % packetFormats().size()];
    const std::string_view file(reinterpret_cast<const char*>(data) + 1, size - 1);
    (void)packetFormatOf(file);
    const QByteArray bytes(file.data(), static_cast<qsizetype>(file.size()));
    const std::atomic<bool> cancelled = false;
    std::vector<TimedCue> cues;
    if (facts.demuxer) {
        const SubStationStyles styles(file);
        platform::readSubtitlePackets(preparedText(bytes, facts.format), facts.demuxer, cancelled,
                                      [&](const platform::SubtitlePacket& packet) {
                                          cues.push_back(cueOfPacket(packet, facts.format, styles));
                                          return true;
                                      });
    } else if (auto read = TimedText::read(bytes, 1000, cancelled)) {
        cues = *std::move(read);
    }
    std::size_t left = 0;
    std::int64_t end = INT64_MIN;
    for (const TimedCue& cue : oneAtATime(std::move(cues), left)) {
        if (cue.end < cue.start || cue.start < end)
            std::abort();
        end = cue.end;
    }
    return 0;
}
