// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Localization.h"
#include "platform/base/Bundle.h"
#include "tests/support/Files.h"
#include "tests/support/ShippedLanguages.h"

#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <map>

using namespace platform;

namespace {

QStringList placeholders(const QString& text) {
    QStringList found;
    auto matches = QRegularExpression("%(?:\\d+\\$)?([@d%])").globalMatch(text);
    int percentSigns = 0; // Turkish has them in front
    while (matches.hasNext()) {
        const QString kind = matches.next().captured(1);
        if (kind == "%")
            ++percentSigns;
        else
            found.append(kind);
    }
    found.append(QString::number(percentSigns));
    return found;
}

struct Message {
    QString source;
    QStringList forms;
    bool hasForms = false;
};

/// The messages of a translation as its translators write it, by identifier.
std::map<QString, Message> messagesOf(const QString& path) {
    std::map<QString, Message> messages;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    Message* message = nullptr;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"message") {
            message = &messages[xml.attributes().value("id").toString()];
            message->hasForms = xml.attributes().value("numerus") == u"yes";
        } else if (message && xml.name() == u"source")
            message->source = xml.readElementText();
        else if (message && xml.name() == u"translation") {
            EXPECT_EQ(xml.attributes().value("type"), u"") << path.toStdString() << " is unfinished";
            if (!message->hasForms)
                message->forms.append(xml.readElementText());
        } else if (message && xml.name() == u"numerusform")
            message->forms.append(xml.readElementText());
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return messages;
}

} // namespace

TEST(Localization, the_users_languages_come_first_then_english_then_the_key) {
    const QTemporaryDir folder;
    const auto translation = [&](const QString& language, const QString& messages) {
        const QString path = folder.filePath("translations/lumaro_" + language);
        writeFile(path + ".ts", ("<TS version=\"2.1\" language=\"" + language + "\"><context><name>Any</name>" +
                                 messages + "</context></TS>")
                                    .toUtf8());
        EXPECT_EQ(QProcess::execute(LUMARO_LRELEASE, {"-silent", "-idbased", path + ".ts", "-qm", path + ".qm"}), 0);
    };
    const auto message = [](const QString& identifier, const QString& text) {
        return QString("<message id=\"%1\"><source>?</source><translation>%2</translation></message>")
            .arg(identifier, text);
    };
    const QString movies("<message id=\"%d movies\" numerus=\"yes\"><source>?</source><translation>"
                         "<numerusform>ein Film</numerusform><numerusform>%d Filme</numerusform>"
                         "</translation></message>");
    translation("en", message("hello", "Hello") + message("only: %@", "English"));
    translation("de", message("hello", "Hallo") + message("only: %@", "") + message("count", "%d Filme") + movies);
    translation("pt_BR", message("hello", "Olá"));
    translation("zh_CN", message("hello", "简"));
    translation("zh_TW", message("hello", "繁"));
    writeFile(folder.filePath("translations/lumaro_fr.qm")); // damaged

    const QString before = Bundle::main().resourcePath();
    Bundle::main().setResourcePath(folder.path());
    const struct {
        QStringList languages;
        const char* hello;
        const char* only;
    } cases[] = {{{"de"}, "Hallo", "English"},        {{"de-AT"}, "Hallo", "English"},
                 {{"pt-BR", "de"}, "Olá", "English"}, {{"pt_BR", "de"}, "Olá", "English"},
                 {{"fr", "de"}, "Hallo", "English"},  {{"en-GB", "de"}, "Hello", "English"},
                 {{"xx"}, "Hello", "English"},        {{"pt-PT", "de"}, "Olá", "English"},
                 {{"pt", "de"}, "Olá", "English"},    {{"zh"}, "简", "English"},
                 {{"zh-SG"}, "简", "English"},        {{"zh-Hans-HK"}, "简", "English"},
                 {{"zh-HK"}, "繁", "English"},        {{"zh-Hant"}, "繁", "English"},
                 {{"zh_MO"}, "繁", "English"},        {{"xx", "zh-TW", "de"}, "繁", "English"},
                 {{"C"}, "Hello", "English"},         {{"C", "de"}, "Hallo", "English"}};
    for (const auto& [languages, hello, only] : cases) {
        setLocalizationLanguages(languages);
        EXPECT_EQ(localizedString("hello"), hello) << languages.join(',').toStdString();
        EXPECT_EQ(localizedString("only: %@"), only) << languages.join(',').toStdString();
        EXPECT_EQ(localizedString("unknown %@"), "unknown %@");
    }
    setLocalizationLanguages({"de"});
    EXPECT_EQ(localizedFormat("count", {"3"}), "3 Filme");
    EXPECT_EQ(localizedFormat("%d movies", {"1"}, 1), "ein Film");
    EXPECT_EQ(localizedFormat("%d movies", {"7"}, 7), "7 Filme");
    Bundle::main().setResourcePath(before);
    setLocalizationLanguages({});
}

TEST(Bundle, the_resources_lie_where_the_environment_says_or_by_the_program) {
    Bundle& bundle = Bundle::main();
    const QByteArray before = qgetenv("LUMARO_RESOURCES");
    qputenv("LUMARO_RESOURCES", "/of/a/test");
    bundle.setResourcePath(QString());
    EXPECT_EQ(bundle.resourcePath(), "/of/a/test");
    qunsetenv("LUMARO_RESOURCES");
    bundle.setResourcePath(QString());
    EXPECT_TRUE(QFile::exists(bundle.resourcePath() + "/Info.plist")) << bundle.resourcePath().toStdString();
    qputenv("LUMARO_RESOURCES", before);
    bundle.setResourcePath(QString());
}

TEST(Localization, every_shipped_translation_is_whole_and_says_what_english_says) {
    const QDir folder(LUMARO_SOURCE_DIR "/resources/translations");
    const auto english = messagesOf(folder.filePath("lumaro_en.ts"));
    // Of Qt's rules for numbers, those that are not "one, or more".
    const std::map<QString, int> numbers{{"ar", 6}, {"cs", 3}, {"ja", 1}, {"ko", 1},    {"pl", 3},
                                         {"ru", 3}, {"tr", 1}, {"uk", 3}, {"zh_CN", 1}, {"zh_TW", 1}};
    ASSERT_TRUE(shippedLanguages().contains("de"));
    for (const QString& language : shippedLanguages()) {
        const QString name = "lumaro_" + language + ".ts";
        const int forms = numbers.contains(language) ? numbers.at(language) : 2;
        const auto translation = messagesOf(folder.filePath(name));
        EXPECT_EQ(translation.size(), english.size()) << name.toStdString();
        setLocalizationLanguages({language});
        for (const auto& [identifier, message] : english) {
            const auto found = translation.find(identifier);
            const std::string where = (name + ": " + identifier).toStdString();
            ASSERT_TRUE(found != translation.end()) << where;
            EXPECT_EQ(found->second.source, message.forms.first()) << where << " is no longer what English says";
            EXPECT_EQ(found->second.forms.size(), message.hasForms ? forms : 1) << where;
            ASSERT_FALSE(found->second.forms.isEmpty()) << where;
            for (const QString& form : found->second.forms) {
                EXPECT_FALSE(form.isEmpty()) << where;
                EXPECT_EQ(placeholders(form), placeholders(message.forms.first())) << where;
                EXPECT_EQ(form.count('&'), message.forms.first().count('&')) << where;
            }
            EXPECT_EQ(localizedString(identifier), found->second.forms.first()) << where << " is not what was built";
        }
    }
    setLocalizationLanguages({});
}

TEST(Localization, panels_are_laid_out_as_the_texts_are_written) {
    const std::pair<const char*, Qt::LayoutDirection> cases[] = {
        {"ar", Qt::RightToLeft},
        {"he-IL", Qt::RightToLeft},
        {"de", Qt::LeftToRight},
        {"fa", Qt::LeftToRight}, // has no translation
    };
    for (const auto& [language, direction] : cases) {
        setLocalizationLanguages({language});
        EXPECT_EQ(localizationDirection(), direction) << language;
    }
    setLocalizationLanguages({});
}

TEST(Localization, what_the_desktop_shows_of_the_program_is_in_every_language) {
    for (const auto& [name, line] :
         {std::pair{"desktop.in", "^\\w+\\[%1\\]=."}, std::pair{"metainfo.xml.in", "xml:lang=\"%1\">[^<]"}}) {
        QFile file(QString(LUMARO_SOURCE_DIR "/packaging/org.lumaro.Lumaro.") + name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        const auto linesOf = [&, line = line](const QString& language) {
            return text.count(QRegularExpression(QString(line).arg(language), QRegularExpression::MultilineOption));
        };
        EXPECT_GT(linesOf("de"), 5);
        for (const QString& language : shippedLanguages())
            EXPECT_EQ(linesOf(language), language == "en" ? 0 : linesOf("de")) << name << language.toStdString();
    }
}
