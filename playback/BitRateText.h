// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Bits a second as a person reads them: "4.5 Mbit/s", "64 kbit/s", which are written so everywhere; empty for none.
QString bitRateText(double bits);
/// At most so many digits behind the point, none that say nothing.
QString shortNumber(double value, int digits);
