// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/OverlayStyle.h"

#include <QString>
#include <QVariant>

#include <optional>
#include <type_traits>

namespace platform {
class UserDefaults;
}

/// One overlay style in the settings store: the registered style of the name (kQVOverlayDefaultStyles) under the user's
/// changes to it (kQVOverlayStyles). It holds no values, so two accessors of one style always agree; it must not
/// outlive the store. What a style lacks reads as the zero value. Main thread.
class QVOverlayStyleDefaults {
public:
    /// The style that the setting `selectorKey` names, or, where it names none, the one of kQVDefaultOverlayStyle.
    /// Nothing, with a line in the log, when no style of that name is registered.
    static std::optional<QVOverlayStyleDefaults> overlayStyleDefaultsWithKey(platform::UserDefaults& defaults,
                                                                             const QString& selectorKey);

    /// The name of the style.
    const QString& key() const { return _key; }

    /// The whole style as it stands now.
    OverlayStyle values() const;
    /// Sets one value, as setObject does; no colour and a null text are ignored.
    template <class Value>
    void set(Value OverlayStyle::*field, const std::type_identity_t<Value>& value) {
        OverlayStyle changed;
        changed.*field = value;
        setObject(changed.stored(field), OverlayStyle::keyOf(field));
    }

    /// Whether the user chose the entry.
    bool isChosen(const QString& styleKey) const;
    /// One entry as it is stored: the user's, else the registered one.
    QVariant objectForKey(const QString& styleKey) const;
    /// Sets the user's entry; announces nothing. An invalid value is ignored: a change cannot be taken back.
    void setObject(const QVariant& value, const QString& styleKey);

private:
    QVOverlayStyleDefaults(platform::UserDefaults& defaults, QString key);

    platform::UserDefaults* _defaults;
    QString _key;
};
