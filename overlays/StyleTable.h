// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/OverlayStyle.h"

#include <functional>
#include <initializer_list>
#include <type_traits>
#include <utility>
#include <vector>

/// What a class of overlays does about each value of its style that changes. Main thread.
template <class Overlay>
class StyleTable {
public:
    class Row {
    public:
        Row(OverlayStyle::Field field, std::function<void(Overlay&, const OverlayStyle&)> take)
            : _key(OverlayStyle::keyOf(field))
            , _take(std::move(take)) {}
        /// The value goes to a setter as it is; no colour goes as an invalid one.
        template <class Value, class Class, class Argument>
        Row(Value OverlayStyle::*field, void (Class::*set)(Argument))
            : Row(OverlayStyle::Field(field), [field, set](Overlay& overlay, const OverlayStyle& style) {
                (overlay.*set)(static_cast<std::decay_t<Argument>>(argument(style.*field)));
            }) {}

    private:
        friend class StyleTable;
        QString _key;
        std::function<void(Overlay&, const OverlayStyle&)> _take;
    };

    StyleTable(std::initializer_list<Row> rows)
        : _rows(rows) {}

    /// Whether there is a row for the key; then it was carried out.
    bool take(Overlay& overlay, const QString& key, const OverlayStyle& style) const {
        for (const Row& row : _rows) {
            if (row._key == key) {
                row._take(overlay, style);
                return true;
            }
        }
        return false;
    }

private:
    template <class Value>
    static const Value& argument(const Value& value) {
        return value;
    }
    static QColor argument(const std::optional<QColor>& color) { return color.value_or(QColor()); }

    std::vector<Row> _rows;
};
