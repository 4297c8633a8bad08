// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/unrar/Volumes.h"

#include "platform/base/PathNames.h"
#include "platform/base/RegularFile.h"

#include <QRegularExpression>

#include <filesystem>
#include <system_error>

namespace {

constexpr int maximumVolumes = 900;

/// Of a number of the older numbering: "r00" to "r99", "s00" and so on up to "z99".
QString oldExtension(int number) {
    constexpr int perLetter = 100;
    const QChar letter(static_cast<char16_t>(u'r' + number / perLetter));
    return u'.' + QString(letter) + QStringLiteral("%1").arg(number % perLetter, 2, 10, QChar(u'0'));
}

bool isFile(const QString& path) {
    const auto facts = platform::factsOfFile(platform::bytesOfPath(path));
    return facts && facts->isFile;
}

void makeLink(const QString& target, const QString& link) {
    std::error_code error;
    std::filesystem::create_symlink(platform::bytesOfPath(target).toStdString(),
                                    platform::bytesOfPath(link).toStdString(), error);
}

QString absolute(const QString& path) {
    std::error_code error;
    const auto found = std::filesystem::absolute(platform::bytesOfPath(path).toStdString(), error);
    return platform::pathOfBytes(QByteArray::fromStdString(found.native()));
}

void linkOldVolumes(const QString& base, const QString& link) {
    for (int number = 0; number < maximumVolumes; ++number) {
        const QString extension = oldExtension(number);
        QString volume = base + extension;
        if (!isFile(volume))
            volume = base + extension.toUpper();
        if (!isFile(volume))
            return;
        makeLink(volume, link + extension);
    }
}

} // namespace

QString linkVolumes(const QString& archive, const QString& folder) {
    const QString path = absolute(archive);
    const QString link = folder + QStringLiteral("/archive");
    static const QRegularExpression part(QStringLiteral(R"(\A(.*\.part)(\d{1,6})(\.rar)\z)"),
                                         QRegularExpression::CaseInsensitiveOption |
                                             QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = part.match(path);
    if (!match.hasMatch()) {
        makeLink(path, link + QStringLiteral(".rar"));
        linkOldVolumes(platform::pathWithoutExtension(path), link);
        return link + QStringLiteral(".rar");
    }
    const qsizetype digits = match.capturedLength(2);
    const int first = match.captured(2).toInt();
    const auto numbered = [](int number, qsizetype width) {
        return QString::number(number).rightJustified(width, u'0');
    };
    // With zeros, whatever the volumes have: they are put together in the order of their names.
    constexpr qsizetype sortedDigits = 7;
    const auto linkOf = [&](int number) {
        return link + QStringLiteral(".part") + numbered(number, sortedDigits) + QStringLiteral(".rar");
    };
    for (int number = first; number < first + maximumVolumes; ++number) {
        const QString volume = match.captured(1) + numbered(number, digits) + match.captured(3);
        if (!isFile(volume))
            break;
        makeLink(volume, linkOf(number));
    }
    return linkOf(first);
}
