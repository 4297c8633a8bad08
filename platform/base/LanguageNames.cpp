// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/LanguageNames.h"

#include "platform/base/Localization.h"
#include "platform/base/Log.h"

#include <QHash>
#include <QLocale>

#include <algorithm>
#include <array>
#include <unicode/uloc.h>

namespace platform {

namespace {

constexpr const char* function = "QVLocalizedNameForLanguageID()";

/// A system set up for no language has English texts.
QByteArray displayLanguage() {
    const QString first = localizationLanguages().value(0);
    return first.isEmpty() || first == QStringLiteral("C") ? "en" : first.toUtf8();
}

constexpr qsizetype longestName = 32;

/// Empty where no table knows the language; ICU then gives the code again, with a warning.
QString displayName(const char* language, const QByteArray& display, UErrorCode& error) {
    std::array<UChar, 256> name{};
    const std::int32_t length =
        uloc_getDisplayLanguage(language, display.constData(), name.data(), name.size(), &error);
    if (U_FAILURE(error) || error == U_USING_DEFAULT_WARNING)
        return {};
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(name.data()), length).left(longestName);
}

QString tagOf(QLocale::Language language) {
    return QLocale::languageToCode(language);
}

/// Tags by the languages' names in English and in themselves, in small letters.
const QHash<QString, QString>& tagsByName() {
    static const QHash<QString, QString> tags = [] {
        QHash<QString, QString> made;
        for (int number = QLocale::C + 1; number <= QLocale::LastLanguage; ++number) {
            const auto language = static_cast<QLocale::Language>(number);
            made.insert(QLocale::languageToString(language).toLower(), tagOf(language));
            if (const QLocale locale(language); locale.language() == language)
                made.insert(locale.nativeLanguageName().toLower(), tagOf(language));
        }
        made.remove(QString());
        return made;
    }();
    return tags;
}

} // namespace

QString localizedNameForLanguageID(const QString& code) {
    const QByteArray language = code.toUtf8();
    UErrorCode error = U_ZERO_ERROR;
    std::array<char, ULOC_LANG_CAPACITY> subtag{};
    uloc_getLanguage(language.constData(), subtag.data(), subtag.size(), &error);
    if (U_FAILURE(error) || error == U_STRING_NOT_TERMINATED_WARNING || subtag[0] == '\0') {
        Log::write(
            formatted(QStringLiteral("ERROR: %@: Unable to create locale ref for language \"%@\". Error code %d"),
                      {QString::fromLatin1(function), code, QString::number(error)}));
        return code;
    }
    const QByteArray display = displayLanguage();
    error = U_ZERO_ERROR;
    const QString name = displayName(subtag.data(), display, error);
    if (name.isEmpty()) {
        Log::write(formatted(
            QStringLiteral("ERROR: %@: Unable to retrieve localized name for language \"%@\" in current locale. "
                           "Error code: %d"),
            {QString::fromLatin1(function), code, QString::number(U_FAILURE(error) ? error : 0)}));
        return code;
    }
    return name;
}

QList<std::pair<QString, QString>> localizedLanguages() {
    QList<std::pair<QString, QString>> languages;
    const QByteArray display = displayLanguage();
    for (const char* const* code = uloc_getISOLanguages(); *code; ++code) {
        UErrorCode error = U_ZERO_ERROR;
        const QString tag = QString::fromLatin1(*code);
        if (const QString name = tag.size() == 2 ? displayName(*code, display, error) : QString(); !name.isEmpty())
            languages.emplaceBack(tag, name);
    }
    std::ranges::sort(languages, [](const auto& left, const auto& right) {
        return QString::localeAwareCompare(left.second, right.second) < 0;
    });
    return languages;
}

QString languageTagOf(const QString& word) {
    const QStringList parts = QString(word).replace(u'_', u'-').split(u'-');
    const QString& first = parts.first();
    if (first.size() < 2)
        return {};
    if (first.size() > 3)
        return tagsByName().value(word.toLower());
    const QLocale::Language language = QLocale::codeToLanguage(first);
    if (language == QLocale::AnyLanguage || language == QLocale::C)
        return {};
    // Of what follows, the country tells more than the script, which it mostly implies.
    for (const QString& part : parts.sliced(1)) {
        if (const auto territory = QLocale::codeToTerritory(part); territory != QLocale::AnyTerritory)
            return tagOf(language) + u'-' + QLocale::territoryToCode(territory);
    }
    for (const QString& part : parts.sliced(1)) {
        if (const auto script = QLocale::codeToScript(part); script != QLocale::AnyScript)
            return tagOf(language) + u'-' + QLocale::scriptToCode(script);
    }
    return parts.size() == 1 ? tagOf(language) : QString();
}

} // namespace platform
