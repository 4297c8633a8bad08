// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <optional>
#include <span>
#include <string_view>

/// The kinds of subtitle files that have no reader of their own.
enum class PacketFormat {
    webVTT,
    subStation,
    subViewer,
    subViewer1,
    mpl2,
    sami,
    lrc,
    ttml,
    jacoSub,
    pjs,
    realText,
    spruce,
    mpSub,
    aqTitle,
};

struct PacketFormatFacts {
    PacketFormat format;
    /// For the user.
    QLatin1StringView title;
    /// What libavformat calls it; null for the one that it does not read.
    const char* demuxer;
    /// In lower case, without dots, blanks in between.
    QLatin1StringView extensions;
};

/// All of them, in the order of the enumeration.
std::span<const PacketFormatFacts> packetFormats();
const PacketFormatFacts& factsOf(PacketFormat format);

/// Of which kind a text is that begins like this, whatever the file is called.
std::optional<PacketFormat> packetFormatOf(std::string_view beginning);
