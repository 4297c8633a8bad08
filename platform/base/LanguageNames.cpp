// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/LanguageNames.h"

#include "platform/base/Localization.h"
#include "platform/base/Log.h"

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
    std::array<UChar, 256> name{};
    const std::int32_t length =
        uloc_getDisplayLanguage(subtag.data(), display.constData(), name.data(), name.size(), &error);
    // The warning says that no table knows the language: what was given is the code again.
    if (U_FAILURE(error) || error == U_USING_DEFAULT_WARNING || length == 0) {
        Log::write(formatted(
            QStringLiteral("ERROR: %@: Unable to retrieve localized name for language \"%@\" in current locale. "
                           "Error code: %d"),
            {QString::fromLatin1(function), code, QString::number(U_FAILURE(error) ? error : 0)}));
        return code;
    }
    constexpr qsizetype longest = 32;
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(name.data()), length).left(longest);
}

} // namespace platform
