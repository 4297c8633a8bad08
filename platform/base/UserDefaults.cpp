// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/UserDefaults.h"

#include "platform/base/PropertyValue.h"

namespace platform {

namespace {

constexpr double writeDelay = 1.0;

UserDefaults* sStandard = nullptr;

bool isSame(const QVariant& left, const QVariant& right) {
    return left.metaType() == right.metaType() && left == right;
}

} // namespace

UserDefaults::UserDefaults(std::unique_ptr<SettingsStorage> storage)
    : _storage(std::move(storage))
    , _domain(_storage->load()) {}

UserDefaults::~UserDefaults() {
    synchronize();
}

UserDefaults& UserDefaults::standard() {
    Q_ASSERT(sStandard);
    return *sStandard;
}

void UserDefaults::setStandard(UserDefaults* defaults) {
    sStandard = defaults;
}

void UserDefaults::registerDefaults(const QVariantMap& defaults) {
    _registered.insert(defaults);
}

void UserDefaults::setOverride(const QString& key, const QVariant& value) {
    if (value.isValid())
        _overrides.insert(key, value);
    else
        _overrides.remove(key);
}

QVariant UserDefaults::objectForKey(const QString& key) const {
    for (const QVariantMap* layer : {&_overrides, &_domain, &_registered}) {
        const auto found = layer->constFind(key);
        if (found != layer->constEnd())
            return *found;
    }
    return {};
}

bool UserDefaults::boolForKey(const QString& key) const {
    return propertyValue::toBool(objectForKey(key));
}

std::int32_t UserDefaults::integerForKey(const QString& key) const {
    return propertyValue::toInteger(objectForKey(key));
}

float UserDefaults::floatForKey(const QString& key) const {
    return propertyValue::toFloat(objectForKey(key));
}

QString UserDefaults::stringForKey(const QString& key) const {
    return propertyValue::toString(objectForKey(key));
}

QVariantMap UserDefaults::dictionaryForKey(const QString& key) const {
    return propertyValue::toDictionary(objectForKey(key));
}

QVariantMap UserDefaults::registeredDictionaryForKey(const QString& key) const {
    return propertyValue::toDictionary(_registered.value(key));
}

QVariantList UserDefaults::arrayForKey(const QString& key) const {
    const QVariant value = objectForKey(key);
    const int type = value.typeId();
    return type == QMetaType::QVariantList || type == QMetaType::QStringList ? value.toList() : QVariantList();
}

QStringList UserDefaults::stringArrayForKey(const QString& key) const {
    QStringList strings;
    for (const QVariant& element : arrayForKey(key)) {
        if (element.typeId() == QMetaType::QString)
            strings.append(element.toString());
    }
    return strings;
}

QDateTime UserDefaults::dateForKey(const QString& key) const {
    const QVariant value = objectForKey(key);
    return value.typeId() == QMetaType::QDateTime ? value.toDateTime() : QDateTime();
}

void UserDefaults::setObject(const QVariant& value, const QString& key) {
    if (!value.isValid()) {
        removeObjectForKey(key);
        return;
    }
    if (const auto own = _overrides.find(key); own != _overrides.end()) {
        *own = value;
        return;
    }
    const auto found = _domain.constFind(key);
    if (found != _domain.constEnd() && isSame(*found, value))
        return;
    _domain.insert(key, value);
    scheduleWrite();
}

void UserDefaults::removeObjectForKey(const QString& key) {
    if (const auto own = _overrides.find(key); own != _overrides.end())
        *own = _registered.value(key);
    else if (_domain.remove(key) > 0)
        scheduleWrite();
}

void UserDefaults::setChosenObject(const QVariant& value, const QString& key) {
    _overrides.remove(key);
    setObject(value, key);
}

void UserDefaults::setOwnValues(const OwnValues& values, const QString& key) {
    _overrides.remove(key);
    setObject(values.user, key);
    setOverride(key, values.override);
}

bool UserDefaults::hasStoredValue(const QString& key) const {
    return _overrides.contains(key) || _domain.contains(key);
}

bool UserDefaults::synchronize() {
    _writeTimer.reset();
    // What is on its way to the disk may never get there.
    if ((_changed || _isWriting) && !_storage->store(_domain))
        _changed = true;
    else
        _changed = false;
    return !_changed;
}

void UserDefaults::writeInBackground() {
    _changed = false;
    _isWriting = true;
    _storage->storeInBackground(_domain, [this](bool isWritten) {
        _isWriting = false;
        if (isWritten && _changed)
            scheduleWrite(); // it was changed meanwhile
        if (isWritten)
            return;
        _changed = true;
        // The handler may show an alert, whose event loop writes again.
        if (const auto handler = _onWriteFailure)
            handler();
    });
}

void UserDefaults::scheduleWrite() {
    _changed = true;
    // Not moved by later changes: what changes all the time is written all the same.
    if (!_isWriting && (!_writeTimer || !_writeTimer->isValid()))
        _writeTimer = RunLoop::main().schedule(writeDelay, false, [this] { writeInBackground(); });
}

} // namespace platform
