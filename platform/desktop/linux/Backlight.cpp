// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/Backlight.h"

#include "platform/base/RegularFile.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace platform {

namespace {

std::optional<unsigned> readNumber(const QString& path, int& error) {
    constexpr qsizetype maximumDigits = 32;
    const auto text = readRegularFile(path, maximumDigits, &error);
    if (!text)
        return std::nullopt;
    bool isNumber = false;
    const unsigned number = text->trimmed().toUInt(&isNumber);
    if (!isNumber) {
        error = EINVAL;
        return std::nullopt;
    }
    return number;
}

/// The names that the kernel gives to connectors of panels that are part of the machine.
bool isBuiltIn(const QString& screenName) {
    return screenName.startsWith(QStringLiteral("eDP")) || screenName.startsWith(QStringLiteral("LVDS")) ||
           screenName.startsWith(QStringLiteral("DSI"));
}

} // namespace

Backlight::Backlight(QString folder, Writer writer)
    : _folder(std::move(folder))
    , _writer(std::move(writer)) {}

QString Backlight::lightOf(const QString& screenName) const {
    if (!isBuiltIn(screenName))
        return {};
    // Entries of the class are links to the devices.
    return QDir(_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name).value(0);
}

float Backlight::brightness(const QString& screenName, int& error) const {
    constexpr float unknown = std::numeric_limits<float>::infinity();
    error = 0;
    const QString light = lightOf(screenName);
    if (light.isEmpty())
        return unknown;
    const auto level = readNumber(_folder + QLatin1Char('/') + light + QStringLiteral("/brightness"), error);
    const auto highest = readNumber(_folder + QLatin1Char('/') + light + QStringLiteral("/max_brightness"), error);
    if (!level || !highest || *highest == 0)
        return unknown;
    return std::min(static_cast<float>(*level) / static_cast<float>(*highest), 1.0F);
}

bool Backlight::setBrightness(const QString& screenName, float brightness) const {
    const QString light = lightOf(screenName);
    int error = 0;
    const auto highest =
        light.isEmpty() ? std::nullopt
                        : readNumber(_folder + QLatin1Char('/') + light + QStringLiteral("/max_brightness"), error);
    if (!highest || !(brightness >= 0 && brightness <= 1))
        return false;
    const auto level = static_cast<unsigned>(std::lround(brightness * static_cast<float>(*highest)));
    QFile file(_folder + QLatin1Char('/') + light + QStringLiteral("/brightness"));
    if (file.open(QIODevice::WriteOnly | QIODevice::ExistingOnly))
        return file.write(QByteArray::number(level)) > 0;
    return _writer && _writer(light, level);
}

} // namespace platform
