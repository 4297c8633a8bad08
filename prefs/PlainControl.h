// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>

#include <cstdint>

class QObject;
class QWidget;

namespace platform {
class UserDefaults;
} // namespace platform

/// A control of the interface file whose value is stored as it is: that of a check box, or the tag of the selected item
/// of a pop-up or button of a group. Tags stand in the interface file: those of a pop-up in its property "tags", that
/// of a button in its property "tag". Main thread.
struct PlainControl {
    QObject* control;
    QString key;
    /// The tag of a group of two, stored as a boolean.
    bool isBoolean = false;

    /// Makes the tags of the interface file the values of the items and buttons.
    void takeTags() const;
    /// On and off, or the tag; 0 without a selection.
    std::int32_t value() const;
    /// The same as it is stored.
    QVariant stored() const;
    /// Shows what is stored; a tag that the control lacks selects nothing. Tells nobody.
    void show(const platform::UserDefaults& settings) const;
    /// The control, or the first of its buttons.
    QWidget* widget() const;
};
