// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace platform {

/// The addresses that stand in a text, in their order: words that begin with a scheme and "://", without the brackets
/// and the punctuation around them. Any thread.
QStringList addressesIn(const QString& text);

/// What was typed or pasted as the address of a movie, as the address that is meant; empty when it is none.
///
/// Breaks, and quotes or brackets around it, do not belong to it. Blanks in it do. What begins with "/" or "~/" is a
/// path: that of a folder stays one, that of a file becomes the file's address. A host with a path or a port needs no
/// scheme. Any thread.
QString addressOfTyped(const QString& text);

} // namespace platform
