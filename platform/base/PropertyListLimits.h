// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

namespace platform {

/// Whether the bytes claim to be the binary form; everything else is taken for XML. Any thread.
bool isBinaryPropertyList(QByteArrayView bytes);

/// Whether a property list (XML or binary) is small enough in size, nesting and number of values to be handed to the
/// reader, which follows nesting by recursion and copies a shared object at each place that names it. It looks at the
/// structure alone: a list that passes may still be damaged. Any thread.
bool isPropertyListWithinLimits(QByteArrayView bytes);

} // namespace platform
