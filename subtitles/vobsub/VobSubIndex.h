// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QSizeF>
#include <QString>

#include <array>
#include <cstdint>
#include <vector>

/// A colour of a VobSub palette, not multiplied by its alpha.
struct VobSubColor {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 0;

    friend bool operator==(const VobSubColor&, const VobSubColor&) = default;
};

/// One subpicture of a stream.
struct QVVobSubPos {
    /// The byte of the data file at which its first pack begins.
    std::int64_t _pos = 0;
    /// Milliseconds, delays applied.
    std::int64_t _timestamp = 0;
    /// Of the last comment that named them; -1 when none did.
    std::int8_t _vobid = -1;
    std::int8_t _cellid = -1;
    /// The cell's time stamp from that comment; 0 when there was none.
    std::int64_t _celltimestamp = 0;
};

/// One language of an index.
struct QVVobSubStreamInfo {
    /// The number of the stream within the data file, 0 to 31.
    std::int32_t _index = 0;
    /// Two letters.
    QString _languageID;
    /// For the user: what the index calls the stream, else the language's name.
    QString _languageName;
    /// In the index's order.
    std::vector<QVVobSubPos> _subPos;
};

/// What a VobSub index (".idx") says. What it leaves unsaid is zero, but scale and
/// opacity are 100 %. Lengths are pixels of the subpicture frame.
struct VobSubIndex {
    QSizeF _size{0, 0};
    QPointF _origin;
    float _scaleX = 1; // 1 is 100 %
    float _scaleY = 1;
    float _alpha = 1; // 1 is 100 %
    std::int32_t _smooth = 0;
    double _fadeIn = 0; // seconds
    double _fadeOut = 0;
    bool _align = false;
    std::int32_t _alignH = 0; // left, centre, right
    std::int32_t _alignV = 0; // top, centre, bottom
    bool _onlyForced = false;
    std::int32_t _idxInUse = 0;
    /// Milliseconds; holds a signed value.
    std::uint32_t _timeOffset = 0;
    std::int32_t _trIdx = 0;
    bool _hasCustomPalette = false;
    /// Alpha 0: a subpicture brings its own.
    std::array<VobSubColor, 16> _originalPalette{};
    /// For the four codes of a pixel, in place of what a subpicture says.
    std::array<VobSubColor, 4> _customPalette{};
    std::vector<QVVobSubStreamInfo> _streams;
};
