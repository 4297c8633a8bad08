// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Localization.h"

#include "platform/base/Bundle.h"
#include "platform/base/Log.h"
#include "platform/base/PropertyList.h"

#include <QLocale>

#include <optional>
#include <vector>

namespace platform {

namespace {

using Table = QHash<QString, QString>;

struct Tables {
    QStringList chosen;
    std::optional<std::vector<Table>> read;
};

Tables& tables() {
    static Tables kept;
    return kept;
}

std::optional<Table> readTable(const QString& language) {
    const QString path =
        Bundle::main().pathForResource(QStringLiteral("strings/") + language, QStringLiteral("strings.plist"));
    if (path.isEmpty())
        return std::nullopt;
    const auto dictionary = propertyList::readDictionary(path);
    if (!dictionary) {
        Log::write(QStringLiteral("WARNING: The texts in %1 can't be read.").arg(path));
        return std::nullopt;
    }
    Table table;
    for (auto entry = dictionary->constBegin(); entry != dictionary->constEnd(); ++entry) {
        const QString text = entry->toString();
        if (!text.isEmpty())
            table.insert(entry.key(), text);
    }
    return table;
}

/// The tables to look in, in order: "pt-BR" tries that table, then "pt"; English is always the last.
std::vector<Table> readTables(const QStringList& languages) {
    QStringList names;
    for (const QString& language : languages) {
        QString name = language;
        name.replace(u'_', u'-');
        names.append(name);
        names.append(name.section(u'-', 0, 0));
    }
    const QString english = QStringLiteral("en");
    names.append(english);
    names.removeDuplicates();
    // The English table has every text, so nothing after it is ever asked.
    names = names.mid(0, names.indexOf(english) + 1);

    std::vector<Table> found;
    for (const QString& name : names) {
        if (auto table = readTable(name))
            found.push_back(std::move(*table));
    }
    return found;
}

} // namespace

QString localizedString(const QString& key) {
    Tables& kept = tables();
    if (!kept.read)
        kept.read = readTables(localizationLanguages());
    for (const Table& table : *kept.read) {
        const auto found = table.constFind(key);
        if (found != table.constEnd())
            return *found;
    }
    return key;
}

QString localizedFormat(const QString& format, const QStringList& arguments) {
    return formatted(localizedString(format), arguments);
}

QStringList localizationLanguages() {
    const QStringList& chosen = tables().chosen;
    return chosen.isEmpty() ? QLocale::system().uiLanguages() : chosen;
}

void setLocalizationLanguages(const QStringList& languages) {
    tables() = {languages, std::nullopt};
}

} // namespace platform
