// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/QVUserDefaults.h"
#include "tests/support/ManualRunLoop.h"

/// Settings that lie in memory. The disk is shared with the test, which may look at it, and outlives the storage, so
/// that a second storage over it plays the next run of the program.
class MemorySettings : public platform::SettingsStorage {
public:
    struct Disk {
        QVariantMap domain;
        int stores = 0;       // successful ones
        bool refuses = false; // a full or read-only disk
        std::optional<platform::StorageTrouble> trouble = {};
    };

    explicit MemorySettings(std::shared_ptr<Disk> disk = std::make_shared<Disk>())
        : _disk(std::move(disk)) {}

    QVariantMap load() override { return _disk->domain; }
    std::optional<platform::StorageTrouble> trouble() const override { return _disk->trouble; }
    bool store(const QVariantMap& domain) override {
        if (_disk->refuses)
            return false;
        _disk->domain = domain;
        ++_disk->stores;
        return true;
    }

private:
    std::shared_ptr<Disk> _disk;
};

/// For as long as it lives: settings in memory with the shipped registered values under them are the process's store,
/// and a manual run loop is its main one.
class TestSettings {
public:
    /// `stored` is what an earlier run left on the disk.
    explicit TestSettings(const QVariantMap& stored = {})
        : disk(std::make_shared<MemorySettings::Disk>(MemorySettings::Disk{stored})) {
        platform::RunLoop::setMain(&runLoop);
        _defaults = std::make_unique<platform::UserDefaults>(std::make_unique<MemorySettings>(disk));
        platform::UserDefaults::setStandard(_defaults.get());
        QVUserDefaults::prepare(*_defaults);
    }
    TestSettings(const TestSettings&) = delete;
    TestSettings& operator=(const TestSettings&) = delete;
    ~TestSettings() {
        platform::UserDefaults::setStandard(nullptr);
        _defaults.reset();
        platform::RunLoop::setMain(nullptr);
    }

    platform::UserDefaults& defaults() { return *_defaults; }

    ManualRunLoop runLoop;
    std::shared_ptr<MemorySettings::Disk> disk;

private:
    std::unique_ptr<platform::UserDefaults> _defaults;
};
