// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/PlaybackFactsReader.h"

#include "platform/movie/mpv/Libraries.h"

#include <QByteArray>

#include <cstddef>
#include <iterator>
#include <utility>

namespace platform {

namespace {

struct Field {
    const char* property;
    void (*take)(const QByteArray& value, PlaybackFacts& facts);
};

template <QString PlaybackFacts::*member>
void takeText(const QByteArray& value, PlaybackFacts& facts) {
    facts.*member = QString::fromUtf8(value);
}

template <double PlaybackFacts::*member>
void takeNumber(const QByteArray& value, PlaybackFacts& facts) {
    facts.*member = value.toDouble();
}

constexpr Field fields[] = {
    {"file-format", takeText<&PlaybackFacts::container>},
    {"video-format", takeText<&PlaybackFacts::videoCodec>},
    {"video-params/pixelformat", takeText<&PlaybackFacts::pixelFormat>},
    // Where hardware decodes, the one above says only that.
    {"video-params/hw-pixelformat", takeText<&PlaybackFacts::pixelFormat>},
    {"video-params/gamma", takeText<&PlaybackFacts::transfer>},
    {"video-params/primaries", takeText<&PlaybackFacts::primaries>},
    {"video-params/w", [](const QByteArray& value, PlaybackFacts& facts) { facts.storedSize.setWidth(value.toInt()); }},
    {"video-params/h",
     [](const QByteArray& value, PlaybackFacts& facts) { facts.storedSize.setHeight(value.toInt()); }},
    {"video-params/dw",
     [](const QByteArray& value, PlaybackFacts& facts) { facts.displayedSize.setWidth(value.toInt()); }},
    {"video-params/dh",
     [](const QByteArray& value, PlaybackFacts& facts) { facts.displayedSize.setHeight(value.toInt()); }},
    {"container-fps", takeNumber<&PlaybackFacts::frameRate>},
    {"estimated-vf-fps", takeNumber<&PlaybackFacts::measuredFrameRate>},
    {"video-bitrate", takeNumber<&PlaybackFacts::videoBitRate>},
    {"hwdec-current",
     [](const QByteArray& value, PlaybackFacts& facts) {
         facts.hardwareDecoder = value == "no" ? QString() : QString::fromUtf8(value);
     }},
    {"audio-codec-name", takeText<&PlaybackFacts::audioCodec>},
    {"audio-params/hr-channels", takeText<&PlaybackFacts::channels>},
    {"audio-params/samplerate",
     [](const QByteArray& value, PlaybackFacts& facts) { facts.sampleRate = value.toInt(); }},
    {"audio-bitrate", takeNumber<&PlaybackFacts::audioBitRate>},
    {"current-ao", takeText<&PlaybackFacts::audioOutput>},
    {"frame-drop-count",
     [](const QByteArray& value, PlaybackFacts& facts) { facts.framesLeftOut += value.toLongLong(); }},
    {"decoder-frame-drop-count",
     [](const QByteArray& value, PlaybackFacts& facts) { facts.framesLeftOut += value.toLongLong(); }},
    {"demuxer-cache-duration", takeNumber<&PlaybackFacts::bufferSeconds>},
    {"cache-speed", takeNumber<&PlaybackFacts::bufferSpeed>},
};

/// By the numbers that their answers carry, far from those of the player's own.
constexpr std::uint64_t firstReply = 201;

} // namespace

void PlaybackFactsReader::ask(mpv_handle* handle, Completion completion) {
    _waiting.push_back(std::move(completion));
    if (_waiting.size() > 1)
        return; // answered with those that are on their way
    _coming = {};
    std::uint64_t reply = firstReply;
    for (const Field& field : fields)
        MpvLibrary::get()->mpv_get_property_async(handle, reply++, field.property, MPV_FORMAT_STRING);
}

bool PlaybackFactsReader::handle(const mpv_event& event) {
    constexpr std::uint64_t end = firstReply + std::size(fields);
    if (event.event_id != MPV_EVENT_GET_PROPERTY_REPLY || event.reply_userdata < firstReply ||
        event.reply_userdata >= end)
        return false;
    // What is not there now has an error in its place.
    const auto* property = static_cast<const mpv_event_property*>(event.data);
    if (event.error >= 0 && property && property->format == MPV_FORMAT_STRING)
        fields[event.reply_userdata - firstReply].take(*static_cast<const char* const*>(property->data), _coming);
    // They are answered in their order.
    if (event.reply_userdata + 1 == end)
        forget();
    return true;
}

void PlaybackFactsReader::forget() {
    for (const Completion& completion : std::exchange(_waiting, {}))
        completion(_coming);
}

} // namespace platform
