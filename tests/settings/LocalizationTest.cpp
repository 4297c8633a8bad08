// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Localization.h"
#include "platform/base/Bundle.h"
#include "platform/base/PropertyList.h"
#include "tests/support/Files.h"

#include <QRegularExpression>

using namespace platform;

namespace {

QStringList placeholders(const QString& text) {
    QStringList found;
    auto matches = QRegularExpression("%(?:\\d+\\$)?([@d%])").globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

} // namespace

TEST(Localization, the_users_languages_come_first_then_english_then_the_key) {
    const QTemporaryDir folder;
    const auto table = [&](const QString& language, const QVariantMap& texts) {
        writeFile(folder.filePath("strings/" + language + ".strings.plist"), propertyList::toXml(texts));
    };
    table("en", {{"hello", "Hello"}, {"only", "English"}});
    table("de", {{"hello", "Hallo"}, {"only", ""}, {"count", "%d Filme"}});
    table("pt-BR", {{"hello", "Olá"}});
    writeFile(folder.filePath("strings/fr.strings.plist")); // damaged

    const QString before = Bundle::main().resourcePath();
    Bundle::main().setResourcePath(folder.path());
    const struct {
        QStringList languages;
        const char* hello;
        const char* only;
    } cases[] = {{{"de"}, "Hallo", "English"},          {{"de-AT"}, "Hallo", "English"},
                 {{"pt_BR", "de"}, "Olá", "English"},   {{"fr", "de"}, "Hallo", "English"},
                 {{"en-GB", "de"}, "Hello", "English"}, {{"xx"}, "Hello", "English"}};
    for (const auto& [languages, hello, only] : cases) {
        setLocalizationLanguages(languages);
        EXPECT_EQ(localizedString("hello"), hello) << languages.join(',').toStdString();
        EXPECT_EQ(localizedString("only"), only) << languages.join(',').toStdString();
        EXPECT_EQ(localizedString("unknown %@"), "unknown %@");
    }
    setLocalizationLanguages({"de"});
    EXPECT_EQ(localizedFormat("count", {"3"}), "3 Filme");
    Bundle::main().setResourcePath(before);
    setLocalizationLanguages({});
}

TEST(Localization, every_shipped_translation_takes_the_same_arguments_as_english) {
    const QDir folder(Bundle::main().resourcePath() + "/strings");
    const auto english = propertyList::readDictionary(folder.filePath("en.strings.plist"));
    ASSERT_TRUE(english);
    for (const QString& name : folder.entryList({"*.strings.plist"})) {
        const auto table = propertyList::readDictionary(folder.filePath(name));
        ASSERT_TRUE(table) << name.toStdString();
        EXPECT_EQ(table->keys(), english->keys()) << name.toStdString();
        for (auto entry = table->constBegin(); entry != table->constEnd(); ++entry) {
            EXPECT_EQ(placeholders(entry->toString()), placeholders((*english)[entry.key()].toString()))
                << name.toStdString() << ": " << entry.key().toStdString();
        }
    }
}
