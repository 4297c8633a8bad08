// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/UserDefaults.h"

#include <memory>

/// Settings that lie in memory. The disk is shared with the test, which may look at it, and outlives the storage, so
/// that a second storage over it plays the next run of the program.
class MemorySettings final : public platform::SettingsStorage {
public:
    struct Disk {
        QVariantMap domain;
        int stores = 0;       // successful ones
        bool refuses = false; // a full or read-only disk
    };

    explicit MemorySettings(std::shared_ptr<Disk> disk = std::make_shared<Disk>())
        : _disk(std::move(disk)) {}

    QVariantMap load() override { return _disk->domain; }
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
