// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Localization.h"

#include "platform/base/Bundle.h"
#include "platform/base/Log.h"

#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <memory>
#include <optional>
#include <vector>

namespace platform {

namespace {

using Translation = std::unique_ptr<QTranslator>;

struct Translations {
    QStringList chosen;
    std::optional<std::vector<Translation>> read;
};

Translations& translations() {
    static Translations kept;
    return kept;
}

/// None when there is no translation into that language, or it is damaged.
Translation readTranslation(const QString& language) {
    const QString path =
        Bundle::main().pathForResource(QStringLiteral("translations/lumaro_") + language, QStringLiteral("qm"));
    if (path.isEmpty())
        return nullptr;
    auto translation = std::make_unique<QTranslator>();
    if (!translation->load(path)) {
        Log::write(QStringLiteral("WARNING: The texts in %1 can't be read.").arg(path));
        return nullptr;
    }
    return translation;
}

/// The translations to look in, in order; English is always the last.
std::vector<Translation> readTranslations(const QStringList& languages) {
    QStringList names;
    for (const QString& language : languages)
        names.append(translationNames(language));
    const QString english = QStringLiteral("en");
    names.append(english);
    names.removeDuplicates();
    // English has every text, so nothing after it is ever asked.
    names = names.mid(0, names.indexOf(english) + 1);

    std::vector<Translation> found;
    for (const QString& name : names) {
        if (auto translation = readTranslation(name))
            found.push_back(std::move(translation));
    }
    return found;
}

const std::vector<Translation>& usedTranslations() {
    Translations& kept = translations();
    if (!kept.read)
        kept.read = readTranslations(localizationLanguages());
    return *kept.read;
}

} // namespace

QString localizedString(const QString& key, int count) {
    const QByteArray identifier = key.toUtf8();
    for (const Translation& translation : usedTranslations()) {
        const QString text = translation->translate(nullptr, identifier.constData(), nullptr, count);
        if (!text.isEmpty())
            return text;
    }
    return key;
}

QString localizedFormat(const QString& format, const QStringList& arguments, int count) {
    return formatted(localizedString(format, count), arguments);
}

Qt::LayoutDirection localizationDirection() {
    const std::vector<Translation>& used = usedTranslations();
    return used.empty() ? Qt::LeftToRight : QLocale(used.front()->language()).textDirection();
}

QStringList localizationLanguages() {
    const QStringList& chosen = translations().chosen;
    return chosen.isEmpty() ? QLocale::system().uiLanguages() : chosen;
}

QStringList translationNames(const QString& language) {
    QString name = language;
    name.replace(u'-', u'_');
    const QStringList parts = name.split(u'_');
    const QString& only = parts.front();
    if (only == QStringLiteral("zh")) {
        // The places that write the traditional script, where no script is named. Who reads one script may not read the
        // other.
        const QStringList traditional{QStringLiteral("Hant"), QStringLiteral("TW"), QStringLiteral("HK"),
                                      QStringLiteral("MO")};
        const bool isTraditional =
            !parts.contains(QStringLiteral("Hans")) &&
            std::any_of(parts.begin(), parts.end(), [&](const QString& part) { return traditional.contains(part); });
        return {isTraditional ? QStringLiteral("zh_TW") : QStringLiteral("zh_CN")};
    }
    QStringList names{name, only};
    if (only == QStringLiteral("pt"))
        names.append(QStringLiteral("pt_BR"));
    names.removeDuplicates();
    return names;
}

void setLocalizationLanguages(const QStringList& languages) {
    translations() = {languages, std::nullopt};
}

} // namespace platform
