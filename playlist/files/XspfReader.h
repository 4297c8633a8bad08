// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "playlist/files/ListContents.h"

#include <QByteArray>
#include <QUrl>

namespace listFile {

/// Reads a list in XML (XSPF). Its entries' addresses are resolved: against xml:base, and against the list's own.
Contents readXspf(const QByteArray& bytes, const QUrl& list);

} // namespace listFile
