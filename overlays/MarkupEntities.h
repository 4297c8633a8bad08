// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

/// The characters of web pages that are written by name or number.
namespace MarkupEntities {

struct Entity {
    /// One character, in one or two units.
    QString character;
    /// How much of the text stands for it, the semicolon included; 0 when it is no entity.
    qsizetype length = 0;
};

/// What stands at the beginning of a text: "&name;", "&#number;" or "&#xnumber;". Numbers from 128 to 159 are those of
/// Windows 1252, as on web pages. Unknown names, control characters and what is no character are no entities.
Entity at(QStringView text);

} // namespace MarkupEntities
