// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QUrl>

namespace platform {

/// The desktop's list of the files that were used last, which file managers and open panels show. Main thread; nothing
/// waits for the list to be written.
class RecentlyUsed {
public:
    virtual ~RecentlyUsed() = default;

    /// Adds a file as one that this application has opened now.
    virtual void add(const QUrl& file) = 0;
    /// Takes away all that this application has added; what others have opened, too, stays theirs.
    virtual void removeAll() = 0;
};

} // namespace platform
