// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/MarkupPen.h"

#include <algorithm>
#include <bit>

int& MarkupPen::depth(platform::TextFace face) {
    return _depths[static_cast<std::size_t>(std::countr_zero(static_cast<unsigned>(face)))];
}

MarkupPen::Letters MarkupPen::letters() const {
    Letters letters{_line.faces, _line.color.isValid() ? _line.color : _color};
    for (std::size_t index = 0; index < _depths.size(); ++index)
        if (_depths[index] > 0)
            letters.faces |= static_cast<platform::TextFace>(1U << index);
    if (!_opened.empty() && _opened.back().isValid())
        letters.color = _opened.back();
    return letters;
}

void MarkupPen::close(platform::TextFace face) {
    depth(face) = std::max(0, depth(face) - 1);
}

void MarkupPen::openColor(const QColor& color) {
    _opened.push_back(color.isValid() || _opened.empty() ? color : _opened.back());
}

void MarkupPen::closeColor() {
    if (!_opened.empty())
        _opened.pop_back();
}

void MarkupPen::set(platform::TextFace face, bool on) {
    depth(face) = on ? std::max(1, depth(face)) : 0;
}

void MarkupPen::setColor(const QColor& color) {
    _opened.clear();
    _color = color;
}

void MarkupPen::reset() {
    MarkupPen fresh;
    fresh._place = _place;
    *this = fresh;
}

void MarkupPen::setPlace(const SubtitlePlacement::Place& place) {
    if (!_place)
        _place = place;
}
