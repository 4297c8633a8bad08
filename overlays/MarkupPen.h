// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/SubtitlePlacement.h"
#include "platform/window/StyledText.h"

#include <QColor>

#include <array>
#include <optional>
#include <vector>

/// How the letters at one place of a cue look, from what was opened, closed and set in front of them.
class MarkupPen {
public:
    struct Letters {
        platform::TextFaces faces;
        QColor color; // invalid: the text's own

        bool operator==(const Letters&) const = default;
    };
    Letters letters() const;
    /// What follows is no text, but the commands of a drawing.
    bool isHidden() const { return _hidden; }
    std::optional<SubtitlePlacement::Place> place() const { return _place; }

    // Pairs of tags. What was never opened is not closed; pairs of different kinds may cross.
    void open(platform::TextFace face) { ++depth(face); }
    void close(platform::TextFace face);
    /// An invalid colour changes nothing until it is closed.
    void openColor(const QColor& color);
    void closeColor();

    // Switches, which last until they are set otherwise.
    void set(platform::TextFace face, bool on);
    /// An invalid colour is the text's own.
    void setColor(const QColor& color);
    void setHidden(bool hidden) { _hidden = hidden; }
    /// Everything that was opened or set, but for the place.
    void reset();
    /// The first one counts.
    void setPlace(const SubtitlePlacement::Place& place);

    // Until the line ends.
    void addToLine(platform::TextFaces faces) { _line.faces |= faces; }
    void setLineColor(const QColor& color) { _line.color = color; }
    void endLine() { _line = {}; }

private:
    int& depth(platform::TextFace face);

    std::array<int, 4> _depths{}; // of the faces
    std::vector<QColor> _opened;  // each with what it leaves as it was
    QColor _color;
    Letters _line;
    bool _hidden = false;
    std::optional<SubtitlePlacement::Place> _place;
};
