// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace platform {

/// The brightness of a built-in screen, through the kernel's backlight class (/sys/class/backlight: "brightness" and
/// "max_brightness" of each light) and the login manager, which may write it on the user's behalf. Main thread.
class Backlight {
public:
    /// Writes a raw level of a light ("intel_backlight"); false when it may not.
    using Writer = std::function<bool(const QString& light, unsigned level)>;
    explicit Backlight(QString folder, Writer writer = {});
    static QString systemFolder() { return QStringLiteral("/sys/class/backlight"); }

    /// 0 to 1; positive infinity for a screen that is no built-in one, without a light, or when it cannot be read (then
    /// `error` is the system's code, else 0).
    float brightness(const QString& screenName, int& error) const;
    /// False when nothing was changed.
    bool setBrightness(const QString& screenName, float brightness) const;

private:
    QString lightOf(const QString& screenName) const;

    QString _folder;
    Writer _writer;
};

} // namespace platform
