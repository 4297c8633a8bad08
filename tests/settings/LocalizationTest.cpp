// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/Localization.h"
#include "platform/base/Bundle.h"
#include "tests/support/Files.h"

#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <map>

using namespace platform;

namespace {

QStringList placeholders(const QString& text) {
    QStringList found;
    auto matches = QRegularExpression("%(?:\\d+\\$)?([@d%])").globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

struct Message {
    QString source;
    QStringList forms;
};

/// The messages of a translation as its translators write it, by identifier.
std::map<QString, Message> messagesOf(const QString& path) {
    std::map<QString, Message> messages;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    Message* message = nullptr;
    bool hasForms = false;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"message") {
            message = &messages[xml.attributes().value("id").toString()];
            hasForms = xml.attributes().value("numerus") == u"yes";
        } else if (message && xml.name() == u"source")
            message->source = xml.readElementText();
        else if (message && ((xml.name() == u"translation" && !hasForms) || xml.name() == u"numerusform"))
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
                 {{"xx"}, "Hello", "English"}};
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
    const QStringList files = folder.entryList({"*.ts"});
    ASSERT_TRUE(files.contains("lumaro_de.ts"));
    for (const QString& name : files) {
        const auto translation = messagesOf(folder.filePath(name));
        EXPECT_EQ(translation.size(), english.size()) << name.toStdString();
        setLocalizationLanguages({name.section('_', 1).section('.', 0, 0)});
        for (const auto& [identifier, message] : english) {
            const auto found = translation.find(identifier);
            const std::string where = (name + ": " + identifier).toStdString();
            ASSERT_TRUE(found != translation.end()) << where;
            EXPECT_EQ(found->second.source, message.forms.first()) << where << " is no longer what English says";
            ASSERT_FALSE(found->second.forms.isEmpty()) << where;
            for (const QString& form : found->second.forms) {
                EXPECT_FALSE(form.isEmpty()) << where;
                EXPECT_EQ(placeholders(form), placeholders(message.forms.first())) << where;
            }
            EXPECT_EQ(localizedString(identifier), found->second.forms.first()) << where << " is not what was built";
        }
    }
    setLocalizationLanguages({});
}
