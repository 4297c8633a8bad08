// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "playlist/files/ListContents.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

namespace listFile {

/// Reads a list of any form, which its contents tell. `list` is where it came from: some forms name a base of their
/// own, which may be relative to that. What is damaged gives what can be read of it.
Contents read(const QByteArray& bytes, const QUrl& list);

/// Whether a path or an address of this name is read as a list: by its extension.
bool isListName(const QString& name);

} // namespace listFile
