// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/SubtitleTextReader.h"

#include "platform/movie/mpv/Libraries.h"

#include <utility>

namespace platform {

/// What is asked of libmpv, by the numbers that the events carry: far from those of the player's own.
struct SubtitleTextReader::Names {
    std::uint64_t text;
    const char* observedText;
    const char* start;
    const char* end;

    std::uint64_t startNumber() const { return text + 1; }
    std::uint64_t endNumber() const { return text + 2; }
    bool concern(std::uint64_t number) const { return number >= text && number <= endNumber(); }
};

const SubtitleTextReader::Names& SubtitleTextReader::names() const {
    static constexpr Names first{101, "sub-text", "sub-start", "sub-end"};
    static constexpr Names second{111, "secondary-sub-text", "secondary-sub-start", "secondary-sub-end"};
    return _track == Track::first ? first : second;
}

void SubtitleTextReader::observe(mpv_handle* handle) {
    if (handle == _handle)
        return;
    forget();
    _handle = handle;
    const MpvLibrary& mpv = *MpvLibrary::get();
    // The text with its markup cannot be observed. A cue of the same words has other times.
    mpv.mpv_observe_property(_handle, names().text, names().observedText, MPV_FORMAT_NONE);
    mpv.mpv_observe_property(_handle, names().startNumber(), names().start, MPV_FORMAT_NONE);
    mpv.mpv_observe_property(_handle, names().endNumber(), names().end, MPV_FORMAT_NONE);
}

void SubtitleTextReader::forget() {
    _handle = nullptr;
    _asked = Asked::no;
    clear();
}

void SubtitleTextReader::clear() {
    if (std::exchange(_told, {}) != SubtitleText())
        _tell(_told);
    // What is on its way may still be of the track before; what changes is asked for again.
    if (_asked == Asked::once)
        _asked = Asked::again;
}

bool SubtitleTextReader::handle(const mpv_event& event) {
    if (!_handle || !names().concern(event.reply_userdata))
        return false;
    if (event.event_id == MPV_EVENT_PROPERTY_CHANGE)
        ask();
    else if (event.event_id == MPV_EVENT_GET_PROPERTY_REPLY)
        takeReply(event);
    else
        return false;
    return true;
}

void SubtitleTextReader::ask() {
    if (_asked != Asked::no) {
        _asked = Asked::again;
        return;
    }
    _asked = Asked::once;
    _coming = {};
    // Answered in this order.
    const MpvLibrary& mpv = *MpvLibrary::get();
    // Of the second one every version tells the words alone.
    const char* const text = _track == Track::first ? mpv.dialect().subtitleText : names().observedText;
    mpv.mpv_get_property_async(_handle, names().text, text, MPV_FORMAT_STRING);
    mpv.mpv_get_property_async(_handle, names().startNumber(), names().start, MPV_FORMAT_DOUBLE);
    mpv.mpv_get_property_async(_handle, names().endNumber(), names().end, MPV_FORMAT_DOUBLE);
}

void SubtitleTextReader::takeReply(const mpv_event& event) {
    // What is not there now has an error in its place.
    const auto* property = static_cast<const mpv_event_property*>(event.data);
    const void* const data = event.error >= 0 && property ? property->data : nullptr;
    if (data && event.reply_userdata == names().text)
        _coming.text = QString::fromUtf8(*static_cast<const char* const*>(data));
    else if (data && event.reply_userdata == names().startNumber())
        _coming.start = *static_cast<const double*>(data);
    else if (data)
        _coming.end = *static_cast<const double*>(data);
    if (event.reply_userdata != names().endNumber())
        return;
    if (std::exchange(_asked, Asked::no) == Asked::again) {
        ask();
        return;
    }
    if (_coming.text.isEmpty())
        _coming = {};
    if (_coming != std::exchange(_told, _coming))
        _tell(_told);
}

} // namespace platform
