// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/AddressText.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

#include <utility>

namespace platform {

namespace {

/// Longer ones are no addresses; a text that is dropped may be a whole book.
constexpr qsizetype maximumLength = 1 << 20;

QString withoutBreaks(const QString& text) {
    QString kept;
    for (const QChar letter : text) {
        if (letter.isPrint())
            kept += letter;
    }
    return kept.trimmed();
}

QString withoutQuotes(const QString& text) {
    static constexpr std::pair<char16_t, char16_t> pairs[] = {
        {u'"', u'"'}, {u'\'', u'\''}, {u'<', u'>'}, {u'\u201C', u'\u201D'}, {u'\u201E', u'\u201C'}};
    for (const auto& [open, close] : pairs) {
        if (text.size() > 2 && text.front() == open && text.back() == close)
            return text.sliced(1, text.size() - 2).trimmed();
    }
    return text;
}

QString addressOfPath(const QString& path) {
    return QFileInfo(path).isDir() ? path : QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
}

} // namespace

QStringList addressesIn(const QString& text) {
    static const QRegularExpression address(QStringLiteral(R"(\b[A-Za-z][A-Za-z0-9+.-]*://[^\s<>"\x{201C}\x{201D}]+)"));
    static const QRegularExpression ending(QStringLiteral(R"([.,;:!?'*]+$)"));
    QStringList found;
    auto matches = address.globalMatch(text.left(maximumLength));
    while (matches.hasNext()) {
        QString word = matches.next().captured();
        // Brackets that are opened within the address belong to it.
        while (true) {
            const qsizetype before = word.size();
            word.remove(ending);
            for (const auto& [open, close] : {std::pair{u'(', u')'}, {u'[', u']'}, {u'{', u'}'}}) {
                if (word.endsWith(close) && word.count(close) > word.count(open))
                    word.chop(1);
            }
            if (word.size() == before)
                break;
        }
        const QUrl url(word);
        if (url.isValid() && (!url.host().isEmpty() || url.isLocalFile()))
            found.append(word);
    }
    return found;
}

QString addressOfTyped(const QString& text) {
    const QString typed = withoutQuotes(withoutBreaks(text.left(maximumLength)));
    if (typed.startsWith(u'/'))
        return addressOfPath(typed);
    if (typed.startsWith(QStringLiteral("~/")))
        return addressOfPath(QDir::homePath() + typed.mid(1));
    static const QRegularExpression scheme(QStringLiteral("^[A-Za-z][A-Za-z0-9+.-]*:"));
    static const QRegularExpression host(QStringLiteral(R"(^(localhost|[\w-]+(\.[\w-]+)+)(:[0-9]{1,5}(/.*)?|/.*)$)"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    const bool lacksScheme = host.match(typed).hasMatch();
    if (!lacksScheme && !scheme.match(typed).hasMatch())
        return {};
    QUrl url(lacksScheme ? QStringLiteral("http://") + typed : typed, QUrl::TolerantMode);
    if (url.isLocalFile() && (url.host().isEmpty() || url.host() == QStringLiteral("localhost"))) {
        url.setHost(QString());
        return addressOfPath(url.toLocalFile());
    }
    const bool lacksHost = typed.contains(QStringLiteral("://")) && url.host().isEmpty();
    // Before a port that is none, a host reads as a scheme.
    const bool isHost = url.scheme().contains(u'.');
    return !url.isValid() || lacksHost || isHost ? QString() : url.toString(QUrl::FullyEncoded);
}

} // namespace platform
