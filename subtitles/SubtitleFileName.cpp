// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/SubtitleFileName.h"

#include "platform/base/LanguageNames.h"
#include "platform/base/PathNames.h"

#include <QStringList>

namespace SubtitleFileName {

namespace {

const QString forced = QStringLiteral("forced");

bool isOfMovie(const QString& name, const QString& movieBase) {
    return !movieBase.isEmpty() && name.startsWith(movieBase, Qt::CaseInsensitive);
}

/// The words behind the movie's name, in small letters; of a file of another name those behind its first dot.
QStringList wordsOf(const QString& name, const QString& movieBase) {
    QString rest = platform::pathWithoutExtension(name);
    rest = isOfMovie(rest, movieBase) ? rest.sliced(movieBase.size()) : rest.section(u'.', 1);
    for (const QChar mark : QStringLiteral(" ()[],"))
        rest.replace(mark, u'.');
    return rest.toLower().split(u'.', Qt::SkipEmptyParts);
}

/// What stands beside the language. "hi" is for the hard of hearing where another word names the language.
bool isRemark(const QString& word) {
    static const QStringList remarks{forced,
                                     QStringLiteral("sdh"),
                                     QStringLiteral("cc"),
                                     QStringLiteral("hi"),
                                     QStringLiteral("default"),
                                     QStringLiteral("full")};
    return remarks.contains(word);
}

} // namespace

QString languageOf(const QString& name, const QString& movie) {
    const QString movieBase = platform::pathWithoutExtension(movie);
    const QStringList words = wordsOf(name, movieBase);
    QString remarked;
    for (auto word = words.rbegin(); word != words.rend(); ++word) {
        const QString tag = platform::languageTagOf(*word);
        if (!isRemark(*word)) {
            if (!tag.isEmpty())
                return tag;
            // What stands further ahead in another name may belong to a title.
            if (!isOfMovie(name, movieBase))
                break;
        } else if (remarked.isEmpty()) {
            remarked = tag;
        }
    }
    return remarked;
}

bool isForced(const QString& name, const QString& movie) {
    return wordsOf(name, platform::pathWithoutExtension(movie)).contains(forced);
}

} // namespace SubtitleFileName
