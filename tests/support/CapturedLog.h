// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Log.h"

#include <QStringList>

#include <memory>
#include <mutex>

/// Takes the system log's lines for as long as it lives.
class CapturedLog {
public:
    CapturedLog() {
        platform::Log::setSink([store = _store](const QString& line) {
            const std::scoped_lock lock(store->mutex);
            store->lines.append(line);
        });
    }
    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;
    ~CapturedLog() { platform::Log::setSink({}); }

    QStringList lines() const {
        const std::scoped_lock lock(_store->mutex);
        return _store->lines;
    }
    /// How many lines hold the text somewhere.
    qsizetype count(const QString& text) const { return lines().filter(text).size(); }
    bool contains(const QString& text) const { return count(text) > 0; }
    void clear() {
        const std::scoped_lock lock(_store->mutex);
        _store->lines.clear();
    }

private:
    struct Store {
        mutable std::mutex mutex;
        QStringList lines;
    };
    std::shared_ptr<Store> _store = std::make_shared<Store>();
};
