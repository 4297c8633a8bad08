// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/RunLoop.h"

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace platform {

/// Why what was stored is not what load() answered, nor will be what is stored now.
struct StorageTrouble {
    enum class Kind : std::uint8_t {
        damaged,    // and put aside: `aside` is its name now
        unreadable, // and left alone, like the next
        later,      // by a later version
    };
    Kind kind = Kind::unreadable;
    QString path;
    QString aside;
};

/// Where the user's settings lie between runs. Main thread.
class SettingsStorage {
public:
    SettingsStorage() = default;
    SettingsStorage(const SettingsStorage&) = delete;
    SettingsStorage& operator=(const SettingsStorage&) = delete;
    virtual ~SettingsStorage() = default;

    /// What was stored last; an empty map when nothing was.
    virtual QVariantMap load() = 0;
    /// What load() met with; it was logged then.
    virtual std::optional<StorageTrouble> trouble() const { return std::nullopt; }
    /// Stores what of the domain has changed since it was loaded or stored last; after it returned true, load() gives
    /// that also after a crash, and what others stored meanwhile under other keys. False when it could not be stored
    /// (what was stored before is then untouched, and a message was logged).
    virtual bool store(const QVariantMap& domain) = 0;
    /// The same without waiting for the disk: `stored` is called with the answer, from the run loop or at once, unless
    /// the storage goes before. A store() that follows counts as the later one.
    virtual void storeInBackground(const QVariantMap& domain, std::function<void(bool)> stored) {
        stored(store(domain));
    }
};

/// The layered key-value store of settings. A read is answered by the first of these that holds the key: this run's
/// overrides (never written), the user's persistent domain, the registered defaults (never written). Reads of a
/// missing key give the zero value: false, 0, 0.0, an empty value. A key that this run overrides is the run's own: what
/// the program sets by itself is read from then on and not written. Main thread.
class UserDefaults {
public:
    explicit UserDefaults(std::unique_ptr<SettingsStorage> storage);
    ~UserDefaults();

    /// The process's store. One must have been installed with setStandard before the first call.
    static UserDefaults& standard();
    static void setStandard(UserDefaults* defaults);

    /// Adds to the registered layer; a key registered again takes the new value.
    void registerDefaults(const QVariantMap& defaults);
    /// Adds to this run's overrides, which lie above everything. An invalid variant takes one away.
    void setOverride(const QString& key, const QVariant& value);

    QVariant objectForKey(const QString& key) const;
    /// True for a boolean or number that is not zero, and for the texts "YES", "true" (any case) and numbers in text.
    bool boolForKey(const QString& key) const;
    /// Numbers are truncated towards zero and clamped to 32 bits; texts are read as numbers.
    std::int32_t integerForKey(const QString& key) const;
    float floatForKey(const QString& key) const;
    /// The value when it is a string, else a null string.
    QString stringForKey(const QString& key) const;
    QVariantMap dictionaryForKey(const QString& key) const;
    /// The same of the registered layer alone, whatever lies above it.
    QVariantMap registeredDictionaryForKey(const QString& key) const;
    /// The same without asking for a type; an invalid variant when nothing is registered.
    QVariant registeredObjectForKey(const QString& key) const { return _registered.value(key); }
    QVariantList arrayForKey(const QString& key) const;
    QStringList stringArrayForKey(const QString& key) const;
    /// The value when it is a date, else an invalid date.
    QDateTime dateForKey(const QString& key) const;

    /// Sets the user's value, or the override of a key that has one. An invalid variant removes it.
    void setObject(const QVariant& value, const QString& key);
    void setBool(bool value, const QString& key) { setObject(QVariant(value), key); }
    void setInteger(std::int32_t value, const QString& key) { setObject(QVariant(value), key); }
    void setFloat(float value, const QString& key) { setObject(QVariant(value), key); }
    /// Deletes the user's value, so that the registered value shows again. That of a key with an override stays in the
    /// user's domain; this run reads the registered one.
    void removeObjectForKey(const QString& key);
    /// Sets the value that the user chose by hand, in the preferences: it is kept also where this run overrides the
    /// key, and takes the override's place.
    void setChosenObject(const QVariant& value, const QString& key);

    /// What lies above the registered value of a key; invalid where nothing does.
    struct OwnValues {
        QVariant override;
        QVariant user;
    };
    OwnValues ownValues(const QString& key) const { return {_overrides.value(key), _domain.value(key)}; }
    /// Puts both in place by the user's choice; an invalid one takes away what is there.
    void setOwnValues(const OwnValues& values, const QString& key);

    /// Whether the user's domain (or an override) holds a value of its own for the key.
    bool hasStoredValue(const QString& key) const;
    /// The user's domain: what was stored when this process began, with its own changes.
    const QVariantMap& persistentDomain() const { return _domain; }

    /// What was met with when the user's domain was read.
    std::optional<StorageTrouble> trouble() const { return _storage->trouble(); }

    /// Writes the user's domain out if it changed since. Without it a change is written by itself about a second
    /// after it was made, without holding up the main thread. False when it could not be written; the next change or
    /// call tries again.
    bool synchronize();
    /// Called each time the settings could not be written after a change; null for nobody. Not when they are written on
    /// request or at the end.
    void setWriteFailureHandler(std::function<void()> handler) { _onWriteFailure = std::move(handler); }

private:
    void scheduleWrite();
    void writeInBackground();

    std::unique_ptr<SettingsStorage> _storage;
    QVariantMap _overrides;
    QVariantMap _domain;
    QVariantMap _registered;
    std::unique_ptr<Timer> _writeTimer;
    bool _changed = false;
    bool _isWriting = false;
    std::function<void()> _onWriteFailure;
};

} // namespace platform
