// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/TrackProbe.h"

#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/VideoStream.h"

#include <QByteArrayView>

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <span>

namespace platform {

namespace {

using Kind = MovieTrack::Kind;
using Content = MovieTrack::Content;

/// What is longer says nothing in a menu.
constexpr qsizetype maximumTitle = 200;

QString oneLine(const char* text) {
    return QString::fromUtf8(text).simplified().left(maximumTitle);
}

/// "und" is the word of the container for not saying it.
QString languageOf(const char* text) {
    const QString word = oneLine(text);
    return word == QStringLiteral("und") ? QString() : word;
}

QString tagOf(const AVStream& stream, const char* key) {
    const AVDictionaryEntry* entry = AvLibrary::get()->av_dict_get(stream.metadata, key, nullptr, 0);
    return entry ? oneLine(entry->value) : QString();
}

std::optional<Kind> kindOf(AVMediaType type) {
    switch (type) {
    case AVMEDIA_TYPE_VIDEO:
        return Kind::video;
    case AVMEDIA_TYPE_AUDIO:
        return Kind::audio;
    case AVMEDIA_TYPE_SUBTITLE:
        return Kind::subtitles;
    default:
        return std::nullopt;
    }
}

/// The programs of a stream in several qualities are its variants; those of a broadcast are something else.
std::vector<int> variantsOf(const AVFormatContext* input, unsigned stream) {
    std::vector<int> variants;
    for (unsigned i = 0; i < input->nb_programs; ++i) {
        const AVProgram& program = *input->programs[i];
        const std::span members(program.stream_index, program.nb_stream_indexes);
        if (variantBitRate(program.metadata) > 0 && std::ranges::count(members, stream) > 0)
            variants.push_back(static_cast<int>(i));
    }
    return variants;
}

/// A script of one style is a text that was converted; those who place and paint their lines define several.
bool definesStyles(QByteArrayView header) {
    const qsizetype first = header.indexOf("\nStyle:");
    return first >= 0 && header.indexOf("\nStyle:", first + 1) >= 0;
}

Content contentOf(const AVCodecParameters& codec, const AVCodecDescriptor* descriptor) {
    if (!descriptor)
        return Content::unknown;
    if (descriptor->props & AV_CODEC_PROP_BITMAP_SUB)
        return Content::bitmaps;
    if (codec.codec_id != AV_CODEC_ID_ASS && codec.codec_id != AV_CODEC_ID_SSA)
        return Content::text;
    const QByteArrayView header(reinterpret_cast<const char*>(codec.extradata), codec.extradata_size);
    return definesStyles(header) ? Content::styledText : Content::text;
}

/// The same where only the name of the format is known.
Content contentOf(const QString& codec) {
    static constexpr std::array bitmaps = {"hdmv_pgs_subtitle", "dvd_subtitle", "dvb_subtitle", "xsub"};
    if (codec.isEmpty())
        return Content::unknown;
    if (std::ranges::any_of(bitmaps, [&](const char* name) { return codec == QLatin1String(name); }))
        return Content::bitmaps;
    return codec == QStringLiteral("ass") ? Content::styledText : Content::text;
}

/// The members of a node that is a map: none of others.
std::span<char* const> namesOf(const mpv_node& node) {
    if (node.format != MPV_FORMAT_NODE_MAP || node.u.list->num <= 0)
        return {};
    return {node.u.list->keys, static_cast<std::size_t>(node.u.list->num)};
}

std::span<const mpv_node> valuesOf(const mpv_node& node) {
    if ((node.format != MPV_FORMAT_NODE_MAP && node.format != MPV_FORMAT_NODE_ARRAY) || node.u.list->num <= 0)
        return {};
    return {node.u.list->values, static_cast<std::size_t>(node.u.list->num)};
}

MovieTrack trackOf(const mpv_node& node) {
    MovieTrack track;
    const auto names = namesOf(node);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const QByteArrayView name(names[i]);
        const mpv_node& value = valuesOf(node)[i];
        const char* const text = value.format == MPV_FORMAT_STRING ? value.u.string : "";
        const bool isSet = value.format == MPV_FORMAT_FLAG && value.u.flag != 0;
        const int number = value.format == MPV_FORMAT_INT64 ? static_cast<int>(value.u.int64) : 0;
        if (name == "id")
            track.id = number;
        else if (name == "type")
            track.kind = QByteArrayView(text) == "sub"     ? Kind::subtitles
                         : QByteArrayView(text) == "video" ? Kind::video
                                                           : Kind::audio;
        else if (name == "lang")
            track.language = languageOf(text);
        else if (name == "title")
            track.title = oneLine(text);
        else if (name == "codec")
            track.codec = oneLine(text);
        else if (name == "demux-channel-count")
            track.channels = number;
        else if (name == "default")
            track.isDefault = isSet;
        else if (name == "forced")
            track.isForced = isSet;
        else if (name == "albumart")
            track.isCover = isSet;
        else if (name == "external")
            track.isExternal = isSet;
    }
    if (track.kind == Kind::subtitles)
        track.content = contentOf(track.codec);
    return track;
}

} // namespace

MovieTracks tracksOf(const AVFormatContext* input) {
    MovieTracks tracks;
    std::array<int, 3> numbers{};
    for (unsigned i = 0; i < input->nb_streams; ++i) {
        const AVStream& stream = *input->streams[i];
        const AVCodecParameters& codec = *stream.codecpar;
        const std::optional<Kind> kind = kindOf(codec.codec_type);
        if (!kind)
            continue;
        const AVCodecDescriptor* descriptor = AvLibrary::get()->avcodec_descriptor_get(codec.codec_id);
        MovieTrack track;
        track.kind = *kind;
        track.id = ++numbers[static_cast<std::size_t>(*kind)];
        track.language = languageOf(tagOf(stream, "language").toUtf8().constData());
        track.title = tagOf(stream, "title");
        track.codec = descriptor ? QString::fromLatin1(descriptor->name) : QString();
        track.channels = *kind == Kind::audio ? codec.ch_layout.nb_channels : 0;
        track.isDefault = stream.disposition & AV_DISPOSITION_DEFAULT;
        if (*kind == Kind::video)
            track.size = QSize(codec.width, codec.height);
        track.variantBitRate = variantBitRate(stream.metadata);
        track.variants = variantsOf(input, i);
        track.isForced = stream.disposition & AV_DISPOSITION_FORCED;
        track.isCover = stream.disposition & AV_DISPOSITION_ATTACHED_PIC;
        if (*kind == Kind::subtitles)
            track.content = contentOf(codec, descriptor);
        tracks.push_back(std::move(track));
    }
    return tracks;
}

MovieTracks tracksOf(const mpv_node& list) {
    MovieTracks tracks;
    if (list.format == MPV_FORMAT_NODE_ARRAY)
        std::ranges::transform(valuesOf(list), std::back_inserter(tracks), &trackOf);
    return tracks;
}

MovieTracks mergedTracks(const MovieTracks& known, const MovieTracks& found) {
    MovieTracks merged;
    std::ranges::copy_if(known, std::back_inserter(merged), [](const MovieTrack& track) { return !track.isExternal; });
    for (const MovieTrack& track : found) {
        const bool isKnown = std::ranges::any_of(
            merged, [&](const MovieTrack& other) { return other.kind == track.kind && other.id == track.id; });
        if (!isKnown)
            merged.push_back(track);
    }
    return merged;
}

} // namespace platform
