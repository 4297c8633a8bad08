// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/unrar/Volumes.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

constexpr int maximumVolumes = 900;

/// Of a number of the older numbering: "r00" to "r99", "s00" and so on up to "z99".
QString oldExtension(int number) {
    constexpr int perLetter = 100;
    const QChar letter(static_cast<char16_t>(u'r' + number / perLetter));
    return u'.' + QString(letter) + QStringLiteral("%1").arg(number % perLetter, 2, 10, QChar(u'0'));
}

void linkOldVolumes(const QString& base, const QString& link) {
    for (int number = 0; number < maximumVolumes; ++number) {
        const QString extension = oldExtension(number);
        QString volume = base + extension;
        if (!QFileInfo(volume).isFile())
            volume = base + extension.toUpper();
        if (!QFileInfo(volume).isFile())
            return;
        QFile::link(volume, link + extension);
    }
}

} // namespace

QString linkVolumes(const QString& archive, const QString& folder) {
    const QFileInfo file(archive);
    const QString path = file.absoluteFilePath();
    const QString link = folder + QStringLiteral("/archive");
    static const QRegularExpression part(QStringLiteral(R"(\A(.*\.part)(\d{1,6})(\.rar)\z)"),
                                         QRegularExpression::CaseInsensitiveOption |
                                             QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = part.match(path);
    if (!match.hasMatch()) {
        QFile::link(path, link + QStringLiteral(".rar"));
        linkOldVolumes(file.absolutePath() + u'/' + file.completeBaseName(), link);
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
        if (!QFileInfo(volume).isFile())
            break;
        QFile::link(volume, linkOf(number));
    }
    return linkOf(first);
}
