// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <vector>

/// Files that list movies: M3U, PLS and XSPF. Reading is a function of the bytes and takes time in proportion to them.
/// Any thread.
namespace listFile {

/// Of larger ones nobody reads to the end. Bytes.
inline constexpr qsizetype maximumSize = 32LL * 1024 * 1024;
inline constexpr std::size_t maximumEntries = 100000;
/// Nobody writes longer ones, and alerts name them. Bytes.
inline constexpr std::size_t maximumAddress = 16 * 1024;

/// One line of a list.
struct Entry {
    /// As the file says it, in its own bytes: names of files need not be in the encoding that the rest is in.
    QByteArray address;
    /// The same as text.
    QString text;
    /// What the list calls it, one line; empty where it does not.
    QString title;
    /// How long the list says that it lasts; -1 where it does not.
    std::int32_t seconds = -1;
};

enum class Kind : std::uint8_t {
    list,
    /// What looks like a list are the pieces of one movie (HTTP live streaming).
    stream,
    unknown,
};

struct Contents {
    Kind kind = Kind::unknown;
    /// In their order.
    std::vector<Entry> entries;
    /// There are more than maximumEntries.
    bool isCut = false;
};

} // namespace listFile
