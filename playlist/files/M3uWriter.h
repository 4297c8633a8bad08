// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "playlist/files/ListContents.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <cstdint>
#include <vector>

namespace listFile {

/// A movie that is written into a list.
struct WrittenEntry {
    QUrl url;
    /// What it is called.
    QString title;
    /// -1 when it is not known.
    std::int32_t seconds = -1;
};

/// The list of these movies as an M3U file in UTF-8, which is to stand at `list`: files below its folder are named
/// relative to it, so that both can be moved together. Any thread.
QByteArray m3uOf(const std::vector<WrittenEntry>& entries, const QUrl& list);

} // namespace listFile
