// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QUrl>
#include <QVariant>

#include <cstdint>
#include <optional>

/// What the version check decides, without the network, the clock and the user.
namespace versionData {

inline constexpr qint64 kQVSecondsInDay = 86400;

/// Whether a check is due by the period code (1 daily, 2 weekly, 3 every 30 days, others at every launch). An invalid
/// date: there was none yet.
bool isDue(const QDateTime& lastCheck, std::int32_t period, const QDateTime& now);

/// What a downloaded property list says, as far as it concerns this application.
struct Contents {
    /// Another root to ask in its place.
    std::optional<QString> redirect;
    /// The entry of the application.
    std::optional<QVariantMap> entry;
};
/// Nothing when the bytes are no property list with a dictionary. Values of a wrong type count as missing.
std::optional<Contents> read(const QByteArray& bytes, const QString& bundleIdentifier);

/// The latest release, or the latest beta.
struct Record {
    QString version;
    QString page;
    std::int32_t build = 0;
};
/// Of the entry's dictionary of that kind; none when there is no such dictionary.
std::optional<Record> recordOf(const QVariantMap& entry, const QString& kind);

/// A version as it is shown: what strangers wrote, on one line and not long.
QString shownVersion(const QString& version);

/// The URL of a root address or a path as settings and property lists write it; an empty one where it is none.
QUrl urlOf(const QString& text);

} // namespace versionData
