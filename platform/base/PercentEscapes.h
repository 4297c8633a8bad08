// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace platform {

/// The text with every character that a URL cannot hold as it stands escaped, as the bytes of its UTF-8 (RFC 2396):
/// what separates the parts of a URL stays, a percent sign does not. Any thread.
QString stringByAddingPercentEscapes(const QString& text);

} // namespace platform
