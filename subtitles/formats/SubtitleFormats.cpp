// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/formats/SubtitleFormats.h"

#include "subtitles/packets/PacketSubtitles.h"
#include "subtitles/text/QVMicroDVDSubtitles.h"
#include "subtitles/text/QVSubRipSubtitles.h"
#include "subtitles/text/QVTMPlayerSubtitles.h"
#include "subtitles/vobsub/QVVobSubSubtitles.h"

namespace {

template <class Track>
SubtitleReader textReader(const platform::UserDefaults& settings) {
    return {Track::extensionsList(),
            [&settings](const QString&, std::string_view beginning) {
                return Track::isFormatValid(beginning, readingMode(settings));
            },
            [&settings](const QString& path, SubtitleOwner& owner) -> SubtitleReader::Tracks {
                return {std::make_shared<Track>(settings, path, owner)};
            }};
}

SubtitleReader vobSubReader(const Environment& environment) {
    return {QVVobSubSubtitles::extensionsList(), &QVVobSubSubtitles::isFormatValid,
            [environment](const QString& path, SubtitleOwner& owner) {
                return QVVobSubSubtitles::subtitlesWithFilePath(environment, path, owner);
            }};
}

/// Whatever the others do not take.
SubtitleReader packetReader(const Environment& environment, const platform::ReadSubtitlePackets& readPackets) {
    return {PacketSubtitles::extensionsList(),
            [](const QString&, std::string_view beginning) { return packetFormatOf(beginning).has_value(); },
            [environment, readPackets](const QString& path, SubtitleOwner& owner) {
                return PacketSubtitles::subtitlesWithFilePath(environment, readPackets, path, owner);
            }};
}

} // namespace

std::vector<SubtitleReader> subtitleReaders(const Environment& environment,
                                            const platform::ReadSubtitlePackets& readPackets) {
    return {textReader<QVSubRipSubtitles>(environment.settings), textReader<QVMicroDVDSubtitles>(environment.settings),
            vobSubReader(environment), textReader<QVTMPlayerSubtitles>(environment.settings),
            packetReader(environment, readPackets)};
}
