// SPDX-License-Identifier: GPL-3.0-or-later
// How the player has its picture shown: filters, colors, fields, dynamic range; and its stills.
#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/MpvCore.h"
#include "platform/movie/mpv/MpvPlayer.h"
#include "platform/movie/mpv/VideoFilters.h"

#include <QByteArrayView>

#include <algorithm>
#include <cstdint>
#include <utility>

namespace platform {

namespace {

// What was asked of the core about the fields of a movie: the loads are added, away from the numbers of other answers.
constexpr std::uint64_t fieldsReply = std::uint64_t{1} << 32;

/// A copy of the one that the core answers with.
QImage pictureOf(const mpv_node& answer) {
    std::int64_t width = 0, height = 0, stride = 0;
    const mpv_byte_array* pixels = nullptr;
    if (answer.format != MPV_FORMAT_NODE_MAP)
        return {};
    const mpv_node_list& parts = *answer.u.list;
    for (int i = 0; i < parts.num; ++i) {
        const QByteArrayView name(parts.keys[i]);
        const mpv_node& part = parts.values[i];
        if (part.format == MPV_FORMAT_BYTE_ARRAY && name == "data")
            pixels = part.u.ba;
        else if (part.format == MPV_FORMAT_INT64)
            (name == "w" ? width : name == "h" ? height : stride) = part.u.int64;
        else if (part.format == MPV_FORMAT_STRING && name == "format" && qstrcmp(part.u.string, "bgr0") != 0)
            return {};
    }
    if (!pixels || width <= 0 || height <= 0 || stride < 4 * width ||
        static_cast<std::int64_t>(pixels->size) < stride * height)
        return {};
    return QImage(static_cast<const uchar*>(pixels->data), static_cast<int>(width), static_cast<int>(height), stride,
                  QImage::Format_RGB32)
        .copy();
}

} // namespace

void MpvPlayer::takeTransfer(const char* transfer) {
    const auto coded = qstrcmp(transfer, "pq") == 0    ? DynamicRange::Transfer::pq
                       : qstrcmp(transfer, "hlg") == 0 ? DynamicRange::Transfer::hlg
                                                       : DynamicRange::Transfer::standard;
    const DynamicRange& told = _movie->info().dynamicRange;
    const bool wasShownOtherwise = _video.setDynamicRange({coded, coded == told.transfer ? told.peak : 0});
    if (wasShownOtherwise && _observer)
        _observer->playerFrameChanged();
}

QByteArray MpvPlayer::filters() const {
    VideoFilters wanted;
    wanted.fileTurns = _movie->info().quarterTurns;
    wanted.shape = _movie->shape();
    if (!_video.usesOpenGL())
        wanted.adjustment = _adjustment;
    if (_deinterlacing == Deinterlacing::on)
        wanted.fields = VideoFilters::Fields::all;
    else if (_deinterlacing == Deinterlacing::automatic && _isInterlaced)
        wanted.fields = VideoFilters::Fields::marked;
    return filterOption(wanted);
}

void MpvPlayer::updateFilters() {
    // One that is still to be loaded is loaded with them.
    if (!_core || !_movie || !_movie->info().hasVideo || !_sentFilters)
        return;
    const QByteArray wanted = filters();
    if (std::exchange(_sentFilters, wanted) != wanted)
        command({"set", "file-local-options/vf", wanted.constData()});
}

void MpvPlayer::selectPictureAnew() {
    if (!_movie || _state.file != PlayerState::File::shown)
        return;
    // Without a choice it is the first one. The core finds none by itself any more.
    const MovieTracks& tracks = _movie->tracks();
    const auto picture = std::ranges::find_if(tracks, [this](const MovieTrack& track) {
        return track.kind == MovieTrack::Kind::video && !track.isCover &&
               _state.tracks.video.value_or(track.id) == track.id;
    });
    if (picture != tracks.end())
        command({"set", "vid", QByteArray::number(picture->id).constData()});
}

void MpvPlayer::shapeChanged() {
    if (_movie)
        _video.setNaturalSize(_movie->shape().applied(_movie->info().naturalSize, PictureShape::By::file));
    updateFilters();
}

void MpvPlayer::setAdjustment(const PictureAdjustment& adjustment) {
    _adjustment = adjustment;
    sendAdjustment();
    updateFilters();
}

void MpvPlayer::sendAdjustment() {
    if (!_core || !_video.usesOpenGL())
        return;
    const std::pair<const char*, int> values[] = {{"contrast", _adjustment.contrast},
                                                  {"brightness", _adjustment.brightness},
                                                  {"gamma", _adjustment.gamma},
                                                  {"saturation", _adjustment.saturation},
                                                  {"hue", _adjustment.hue}};
    for (const auto& [name, value] : values)
        command({"set", name, QByteArray::number(value).constData()});
}

void MpvPlayer::askForFields(double seconds) {
    // Once more each second: a film may begin with a title of whole pictures.
    const int second = static_cast<int>(seconds);
    if (!_core || _isInterlaced || std::exchange(_fieldsAskedAt, second) == second)
        return;
    MpvLibrary::get()->mpv_get_property_async(_core->handle(), fieldsReply + _loads, "video-frame-info/interlaced",
                                              MPV_FORMAT_FLAG);
}

void MpvPlayer::answerProperty(const mpv_event& event) {
    const auto* property = static_cast<const mpv_event_property*>(event.data);
    if (event.error < 0 || event.reply_userdata != fieldsReply + _loads || property->format != MPV_FORMAT_FLAG ||
        _state.file != PlayerState::File::shown || *static_cast<const int*>(property->data) == 0)
        return;
    _isInterlaced = true;
    updateFilters();
}

void MpvPlayer::still(std::function<void(QImage)> completion) {
    if (!_core || !_movie || !_video.hasCoreFrame()) {
        RunLoop::main().post([completion = std::move(completion)] { completion({}); });
        return;
    }
    _stills[++_lastStill] = std::move(completion);
    command({"screenshot-raw", "video"}, _lastStill);
}

void MpvPlayer::answerStill(const mpv_event& event) {
    const auto asked = _stills.extract(event.reply_userdata);
    if (asked)
        asked.mapped()(event.error < 0 ? QImage()
                                       : pictureOf(static_cast<const mpv_event_command*>(event.data)->result));
}

} // namespace platform
