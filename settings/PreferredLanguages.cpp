// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/PreferredLanguages.h"

#include "platform/base/LanguageNames.h"
#include "platform/base/Localization.h"
#include "platform/base/UserDefaults.h"
#include "settings/SettingsKeys.h"

#include <algorithm>

namespace PreferredLanguages {

namespace {

QString languageOf(const QString& tag) {
    return tag.section(u'-', 0, 0);
}

/// One tag for each language, in one spelling: a system that is set to "de-DE" names "de" beside it.
QStringList distinct(const QStringList& tags) {
    QStringList languages;
    QStringList found;
    for (const QString& text : tags) {
        const QString tag = platform::languageTagOf(text);
        if (tag.isEmpty() || languages.contains(languageOf(tag)))
            continue;
        languages << languageOf(tag);
        found << tag;
    }
    return found;
}

} // namespace

QStringList of(const platform::UserDefaults& settings) {
    QStringList chosen = settings.stringArrayForKey(kQVPreferredLanguages);
    chosen.removeDuplicates();
    if (chosen.isEmpty())
        chosen = distinct(platform::localizationLanguages());
    // A system set up for no language has English texts.
    return chosen.isEmpty() ? QStringList(QStringLiteral("en")) : chosen;
}

std::optional<int> rank(const QString& tag, const QStringList& preferred) {
    constexpr int shades = 3;
    std::optional<int> best;
    if (tag.isEmpty())
        return best;
    for (qsizetype i = 0; i < preferred.size(); ++i) {
        const QString wanted = platform::languageTagOf(preferred[i]);
        if (languageOf(wanted) != languageOf(tag))
            continue;
        const int shade = wanted == tag ? 0 : wanted.contains(u'-') && tag.contains(u'-') ? 2 : 1;
        const int found = static_cast<int>(i) * shades + shade;
        best = best ? std::min(*best, found) : found;
    }
    return best;
}

} // namespace PreferredLanguages
