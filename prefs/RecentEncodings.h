// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QVariant>

#include <cstdint>

/// The short list of text encodings that were used last, the latest first, as QVSubtitlesEncodingsList keeps it. Pure
/// functions.
namespace RecentEncodings {

using Encodings = QList<std::uint32_t>;

/// The list as it is stored; entries that are no numbers are left out.
Encodings fromSetting(const QVariantList& stored);
QVariantList toSetting(const Encodings& encodings);

/// The encoding moved to the front, where the list has it.
Encodings withFirst(Encodings encodings, std::uint32_t encoding);

struct Addition {
    Encodings encodings;
    /// Those that the list had no place for any more.
    Encodings dropped;
};
/// The encoding put in front of a list without it, which is kept to `size` entries, but at least this one.
Addition adding(Encodings encodings, std::uint32_t encoding, std::int32_t size);

} // namespace RecentEncodings
