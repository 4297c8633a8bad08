// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "playlist/files/ListContents.h"

#include <QByteArray>
#include <QUrl>

#include <cstdint>
#include <functional>

namespace listFile {

/// What an entry of a list names.
struct Address {
    enum class Kind : std::uint8_t {
        file,
        network,
        /// A drive or a share of Windows: nothing here.
        windowsPath,
        /// A file of this machine in a list that came from a network, which has nothing to say about it.
        localOfNetwork,
        unusable,
    };
    Kind kind = Kind::unusable;
    QUrl url;
};

/// Whether there is anything at an absolute path, in the file system's bytes.
using Exists = std::function<bool(const QByteArray& path)>;

/// The movie that an entry of the list at `list` names, relative to the list's folder where it is relative. Of a local
/// path the file's own bytes come first, then its text, both as they are, percent-encoded, and written with the
/// backslashes of Windows: the first that is there. Any thread.
Address addressOf(const Entry& entry, const QUrl& list, const Exists& exists);

} // namespace listFile
