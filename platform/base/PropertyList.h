// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace platform {

/// Property lists in Apple's XML form, as Qt's values: dictionary = QVariantMap, array = QVariantList, string =
/// QString, boolean = bool, integer = qlonglong, real = double, date = QDateTime (UTC, whole seconds), data =
/// QByteArray. A double written and read back is the same double. Any thread.
namespace propertyList {

/// Nothing when the bytes are no property list, or one of more than 16 MiB, 64 levels below its root or a million
/// values, or one with declarations of entities. The binary form is none.
std::optional<QVariant> parse(const QByteArray& bytes);

/// Reads a file whose root is a dictionary; nothing when it is missing, unreadable, damaged or of another root.
std::optional<QVariantMap> readDictionary(const QString& path);

/// The XML form. A float is written as the shortest text that reads back as the same float.
QByteArray toXml(const QVariantMap& dictionary);

} // namespace propertyList

} // namespace platform
