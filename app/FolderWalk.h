// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

#include <atomic>
#include <cstdint>
#include <functional>
#include <set>
#include <utility>

/// Walks a folder to the bottom, in the order in which a person reads its list: names without regard to case, numbers
/// by value; of names that differ in case alone the one in capitals first. Hidden entries come behind the others of
/// their folder. Passed over are the folders that other systems show as one file, and the files in which they keep what
/// belongs to another file. Links are followed, but no folder is walked twice. Paths are in the file system's bytes.
/// Any thread; a file system that does not answer holds it up.
class FolderWalk {
public:
    struct Listener {
        /// A file of one of the types.
        std::function<void(const QByteArray& path)> found;
        /// A folder that may not be read.
        std::function<void(const QByteArray& folder)> unreadable;
    };
    /// Folders by their device and inode.
    using Seen = std::set<std::pair<std::uint64_t, std::uint64_t>>;
    /// The types as isFileOfType() takes them. Ends soon after `cancelled` is set. Folders in `seen` are passed over,
    /// and those that are walked come into it. All outlive the walk.
    FolderWalk(const QStringList& types, const std::atomic<bool>& cancelled, Listener listener, Seen& seen);

    void walk(const QByteArray& folder);

private:
    struct Entry;
    bool isNew(int folder);

    const QStringList& _types;
    const std::atomic<bool>& _cancelled;
    Listener _listener;
    Seen& _seen;
};
