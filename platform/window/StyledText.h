// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFlags>
#include <QString>

#include <utility>
#include <vector>

namespace platform {

enum class TextFace : unsigned { italic = 1, bold = 2, underlined = 4, struckOut = 8 };
Q_DECLARE_FLAGS(TextFaces, TextFace)
Q_DECLARE_OPERATORS_FOR_FLAGS(TextFaces)

/// A piece of a text that is drawn otherwise than the rest.
struct TextRun {
    qsizetype start = 0; // 16-bit units of the text
    qsizetype length = 0;
    TextFaces faces;
    QColor color; // invalid: that of the text

    bool operator==(const TextRun&) const = default;
};

/// A text and its runs, in their order and beside each other. A text that has any is one as displayableText() leaves
/// it: the runs would not fit what is drawn otherwise.
struct StyledText {
    QString text;
    std::vector<TextRun> runs;

    bool operator==(const StyledText&) const = default;
};

} // namespace platform
