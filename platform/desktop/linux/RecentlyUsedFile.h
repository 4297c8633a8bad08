// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/RecentlyUsed.h"

#include <QString>

namespace platform {

/// The list in `recently-used.xbel`, read and written by GLib, which is loaded when it is first needed. One that cannot
/// be read is left alone, and without GLib there is none. Works on a thread, one change after the other.
class RecentlyUsedFile final : public RecentlyUsed {
public:
    explicit RecentlyUsedFile(const QString& path)
        : _path(path) {}
    /// `$XDG_DATA_HOME/recently-used.xbel`, with ~/.local/share where the variable is unset or relative.
    static QString defaultPath();

    void add(const QUrl& file) override;
    void removeAll() override;

private:
    QString _path;
};

} // namespace platform
