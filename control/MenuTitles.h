// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A name that stays as narrow as a menu may be. Names differ in their beginnings and ends, so its middle goes.
QString shortenedInTheMiddle(const QString& name);
