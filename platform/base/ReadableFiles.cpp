// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/ReadableFiles.h"

#include "platform/base/Background.h"
#include "platform/base/RegularFile.h"

#include <utility>

namespace platform {

namespace {

/// A disk answers within it, or it hangs; seconds.
constexpr double lookTimeout = 0.3;

QStringList readableOf(const QStringList& paths) {
    QStringList readable;
    for (const QString& path : paths)
        if (readRegularFile(path, 1))
            readable.append(path);
    return readable;
}

} // namespace

void ReadableFiles::look(const QStringList& paths, Answered answered) {
    const auto look = std::make_shared<Look>();
    _looks.push_back(look);
    background::run([look, paths] { look->deliver(readableOf(paths)); });
    look->wait(lookTimeout);
    look->receive([this, weak = std::weak_ptr(look), answered = std::move(answered)](const QStringList& readable) {
        std::erase(_looks, weak.lock());
        answered(readable);
    });
}

void ReadableFiles::abandon() {
    for (const auto& look : std::exchange(_looks, {}))
        look->abandon();
}

} // namespace platform
