// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/NotificationCenter.h"

#include <QtGlobal>

#include <thread>

namespace platform {

namespace {

NotificationCenter* sDefault = nullptr;

} // namespace

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return sDefault ? *sDefault : center;
}

void NotificationCenter::setDefault(NotificationCenter* center) {
    sDefault = center;
}

void NotificationCenter::assertMainThread() {
    static const std::thread::id main = std::this_thread::get_id();
    Q_ASSERT(std::this_thread::get_id() == main);
}

void NotificationCenter::deliver(std::type_index type, const void* notification) {
    assertMainThread();
    const auto found = _observers.find(type);
    if (found == _observers.end())
        return;
    std::erase_if(found->second, [](const Entry& entry) { return entry.expired(); });
    const std::vector<Entry> observers = found->second;
    for (const Entry& entry : observers) {
        if (const auto observer = entry.lock())
            (*observer)(notification);
    }
}

} // namespace platform
