// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>

/// Seconds as hours, minutes and seconds: "1:02:03". Hours are neither padded nor limited.
QString stringWithTimeIntervalInSeconds(std::int32_t seconds);
