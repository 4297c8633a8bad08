// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/QVOverlayStyleDefaults.h"

#include "platform/base/PropertyValue.h"
#include "platform/base/UserDefaults.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

namespace value = platform::propertyValue;

namespace {

constexpr const char* className = "QVOverlayStyleDefaults";

} // namespace

std::optional<QVOverlayStyleDefaults>
QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(platform::UserDefaults& defaults, const QString& selectorKey) {
    QString name = defaults.stringForKey(selectorKey);
    if (name.isNull()) {
        trace("WARNING: %@: No default settings found for key: %@.", className, selectorKey);
        name = defaults.stringForKey(kQVDefaultOverlayStyle);
    }
    if (!defaults.registeredDictionaryForKey(kQVOverlayDefaultStyles).contains(name)) {
        logAlways("ERROR: %@: No defaults found for key: %@.", className, name);
        return std::nullopt;
    }
    return QVOverlayStyleDefaults(defaults, name);
}

QVOverlayStyleDefaults::QVOverlayStyleDefaults(platform::UserDefaults& defaults, QString key)
    : _defaults(&defaults)
    , _key(std::move(key)) {}

OverlayStyle QVOverlayStyleDefaults::values() const {
    const QVariantMap changed = value::toDictionary(_defaults->dictionaryForKey(kQVOverlayStyles).value(_key));
    const QVariantMap registered =
        value::toDictionary(_defaults->registeredDictionaryForKey(kQVOverlayDefaultStyles).value(_key));
    OverlayStyle style;
    for (const auto& [key, field] : OverlayStyle::entries()) {
        const QVariant entry = changed.value(key);
        style.read(field, entry.isValid() ? entry : registered.value(key));
    }
    return style;
}

bool QVOverlayStyleDefaults::isChosen(const QString& styleKey) const {
    return value::toDictionary(_defaults->dictionaryForKey(kQVOverlayStyles).value(_key)).contains(styleKey);
}

QVariant QVOverlayStyleDefaults::objectForKey(const QString& styleKey) const {
    const auto entryIn = [&](const QVariantMap& styles) {
        return value::toDictionary(styles.value(_key)).value(styleKey);
    };
    const QVariant changed = entryIn(_defaults->dictionaryForKey(kQVOverlayStyles));
    return changed.isValid() ? changed : entryIn(_defaults->registeredDictionaryForKey(kQVOverlayDefaultStyles));
}

void QVOverlayStyleDefaults::setObject(const QVariant& object, const QString& styleKey) {
    if (!object.isValid())
        return;
    QVariantMap styles = _defaults->dictionaryForKey(kQVOverlayStyles);
    QVariantMap style = value::toDictionary(styles.value(_key));
    style.insert(styleKey, object);
    styles.insert(_key, style);
    _defaults->setChosenObject(styles, kQVOverlayStyles);
}
