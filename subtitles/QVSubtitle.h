// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"

#include <QImage>
#include <QSizeF>
#include <QString>

#include <atomic>
#include <cstdint>
#include <memory>
#include <string_view>

/// The picture of a cue, kept small until it is shown: a film has more than a thousand.
class SubtitleImage {
public:
    SubtitleImage() = default;
    SubtitleImage(const SubtitleImage&) = delete;
    SubtitleImage& operator=(const SubtitleImage&) = delete;
    virtual ~SubtitleImage() = default;

    /// The pixels, made anew by each call (Format_ARGB32_Premultiplied). Any thread.
    virtual QImage expanded() const = 0;

    /// The size to draw it at, which may differ from that of its pixels. Main thread once the cue is in its track.
    QSizeF size{0, 0};
};

/// One cue: a text or a picture, shown while start <= time <= end. Times are counts of units of the movie's time scale.
/// A cue belongs to the main thread, except its end, which the loading worker of its track may still change.
class QVSubtitle {
public:
    QVSubtitle() = default;
    QVSubtitle(QString text, std::int32_t start, std::int32_t end)
        : _start(start)
        , _end(end)
        , _text(std::move(text)) {}
    /// A text that is valid UTF-8 and is decoded when it is asked for: the bytes outlive the cue.
    QVSubtitle(std::string_view utf8, std::int32_t start, std::int32_t end)
        : _start(start)
        , _end(end)
        , _utf8(utf8) {}
    QVSubtitle(std::shared_ptr<SubtitleImage> image, std::int32_t start, std::int32_t end)
        : _start(start)
        , _end(end)
        , _image(std::move(image)) {}
    QVSubtitle(const QVSubtitle&) = delete;
    QVSubtitle& operator=(const QVSubtitle&) = delete;

    std::int32_t start() const { return _start; }
    void setStart(std::int32_t start) { _start = start; }
    std::int32_t end() const { return _end.load(std::memory_order_relaxed); }
    void setEnd(std::int32_t end) { _end.store(end, std::memory_order_relaxed); }

    /// Lines end in line feeds (a carriage return before one stays as the file has it). Null for pictures, and for a
    /// text that could not be decoded.
    QString text() const;
    /// As much of it as so many bytes, or characters, hold: for those who need no more of a very long one.
    QString beginningOfText(qsizetype maximum) const;
    void setText(QString text) {
        _text = std::move(text);
        _utf8 = {};
    }

    /// None for texts.
    const std::shared_ptr<SubtitleImage>& image() const { return _image; }
    void setImage(std::shared_ptr<SubtitleImage> image) { _image = std::move(image); }
    /// Where a picture stands, in the coordinates of the subtitle stream's frame; all zero for texts.
    platform::Rect rect() const { return {_x, _y, _width, _height}; }
    /// Gives the picture the rectangle's size as well.
    void setRect(const platform::Rect& rect) {
        _x = static_cast<float>(rect.x());
        _y = static_cast<float>(rect.y());
        _width = static_cast<float>(rect.width());
        _height = static_cast<float>(rect.height());
        if (_image)
            _image->size = QSizeF(_width, _height);
    }

    /// To be shown even when only forced cues are wanted.
    bool forced() const { return _forced; }
    void setForced(bool forced) { _forced = forced; }

private:
    std::int32_t _start = 0;
    std::atomic<std::int32_t> _end = 0;
    QString _text;
    std::string_view _utf8; // the text, where there is any here
    std::shared_ptr<SubtitleImage> _image;
    float _x = 0;
    float _y = 0;
    float _width = 0;
    float _height = 0;
    bool _forced = false;
};
