// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>
#include <vector>

namespace platform {

/// What one launch hands to the running player.
struct HandOver {
    bool append = false;
    /// Absolute paths and URLs.
    QStringList files;
    friend bool operator==(const HandOver&, const HandOver&) = default;
};

/// How a hand-over goes over a socket: its size as four bytes, the first the highest, then whether to append and
/// the files, with a zero byte between them. The player answers a whole message with one byte.
namespace handOverMessage {
/// Of the bytes behind the size.
inline constexpr quint32 maximumSize = 4U << 20;
inline constexpr qsizetype maximumFiles = 20'000;
inline constexpr char acknowledgement = 'k';

/// As many messages as the bounds ask for: the second and those that follow append to the first.
std::vector<QByteArray> encoded(const HandOver& handOver);

/// The size of the whole message that begins so; none while that is not known. May be above the maximum.
std::optional<qsizetype> wholeSize(const QByteArray& beginning);
/// None when it has more files than a message may have.
std::optional<HandOver> decoded(const QByteArray& message);
} // namespace handOverMessage

} // namespace platform
