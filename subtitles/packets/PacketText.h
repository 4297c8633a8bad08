// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/SubtitlePackets.h"
#include "subtitles/packets/PacketFormat.h"
#include "subtitles/packets/SubStationStyles.h"
#include "subtitles/packets/TimedCue.h"

/// A file in UTF-8 as libavformat is to see it: of a WebVTT file the cues alone, since the library of Debian 12 stops
/// at the first style.
QByteArray preparedText(QByteArray utf8, PacketFormat format);

/// What a packet of a format says: its text with the markup that views know, without what only its own format means.
/// The text is empty where nothing is to be shown. `styles` are those of a SubStation Alpha file.
TimedCue cueOfPacket(const platform::SubtitlePacket& packet, PacketFormat format, const SubStationStyles& styles);
