// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>

#include <string_view>

/// What a view of ours draws of the styles of a SubStation Alpha file.
class SubStationStyles {
public:
    struct Style {
        bool isBold = false;
        bool isItalic = false;
        bool isUnderlined = false;
        /// As TimedCue::place; 0 at the bottom in the middle.
        int place = 0;
    };

    SubStationStyles() = default;
    /// Of a file in UTF-8. What cannot be read is left out.
    explicit SubStationStyles(std::string_view file);

    /// Whether who wrote the file placed, moved or painted lines, or gave them several styles: what a view of ours
    /// cannot draw. A file of one style is a text that was converted.
    bool areOfDesign() const { return _styles.size() > 1 || _placesLines; }

    /// Plain for a name that the file does not have.
    Style named(const QString& name) const { return _styles.value(name); }

private:
    QHash<QString, Style> _styles;
    bool _placesLines = false;
};
