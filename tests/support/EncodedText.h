// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>

// The text's bytes in an encoding (numbers as in TextEncoding.h), what it lacks replaced by a substitute. None for an
// unknown encoding.
std::optional<QByteArray> lossyData(const QString& text, std::uint32_t encoding);
