// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>

namespace {

CommandLine parse(const char* words) {
    const QString text = words;
    return CommandLine::parse(text.isEmpty() ? QStringList() : text.split(u' '), "/home/me");
}

} // namespace

TEST(CommandLine, files_become_absolute_and_urls_stay) {
    struct Case {
        const char* words;
        const char* files;
    };
    for (const Case& c :
         {Case{"", ""}, Case{"a.mp4 ../b.mp4 /c//d.mp4", "/home/me/a.mp4 /home/b.mp4 /c/d.mp4"},
          Case{"http://x/../a%20b.mp4 file:///q", "http://x/../a%20b.mp4 file:///q"},
          Case{"-- -dash.mp4 --append --", "/home/me/-dash.mp4 /home/me/--append /home/me/--"}, Case{"-", "/home/me/-"},
          Case{"a=b --append 100%#1.mp4", "/home/me/a=b /home/me/100%#1.mp4"}}) {
        const CommandLine line = parse(c.words);
        EXPECT_EQ(line.error.toStdString(), "") << c.words;
        EXPECT_EQ(line.files.join(u' ').toStdString(), c.files) << c.words;
        EXPECT_EQ(line.mode, CommandLine::Mode::play);
    }
}

TEST(CommandLine, options_take_their_values_attached_or_following) {
    const CommandLine play = parse("--set QVEnableTrace=YES --append a --set=A=b=c --software --set X=");
    EXPECT_EQ(play.error.toStdString(), "");
    EXPECT_TRUE(play.append);
    EXPECT_TRUE(play.software);
    const QList<QPair<QString, QString>> expected = {{"QVEnableTrace", "YES"}, {"A", "b=c"}, {"X", QString()}};
    EXPECT_EQ(play.settings, expected);

    EXPECT_EQ(play.timeScale, 600);
    EXPECT_EQ(play.frameRateChoice, 0);
    EXPECT_EQ(play.encoding, 0);

    const CommandLine inspect = parse("--inspect --images=/out x.srt --time-scale 1000 --fps=3 --encoding 0x80000632");
    EXPECT_EQ(inspect.mode, CommandLine::Mode::inspect);
    EXPECT_FALSE(inspect.append || inspect.software);
    EXPECT_EQ(inspect.imagesFolder.toStdString(), "/out");
    EXPECT_EQ(inspect.timeScale, 1000);
    EXPECT_EQ(inspect.frameRateChoice, 3);
    EXPECT_EQ(inspect.encoding, 0x80000632);

    EXPECT_EQ(parse("--help").mode, CommandLine::Mode::help);
    EXPECT_EQ(parse("-h").mode, CommandLine::Mode::help);
    EXPECT_EQ(parse("--version a").mode, CommandLine::Mode::version);
}

TEST(CommandLine, wrong_usage_names_what_is_wrong) {
    struct Case {
        const char* words;
        const char* named;
    };
    for (const Case& c :
         {Case{"--fast a", "'--fast'"}, Case{"--images= --inspect a", "'--images'"}, Case{"-x", "'-x'"},
          Case{"--append=1", "'--append=1'"}, Case{"--set", "'--set' needs"}, Case{"--set novalue", "'novalue'"},
          Case{"--set =x", "'=x'"}, Case{"--images", "'--images' needs"}, Case{"--fps 6 --inspect a", "0 to 5"},
          Case{"--time-scale 0", "'0'"}, Case{"--time-scale 99999999999", "'99999999999'"}, Case{"--fps=", "''"},
          Case{"--encoding utf8", "'utf8'"}, Case{"--encoding 12345", "'12345'"}, Case{"--inspect", "needs a file"},
          Case{"--unknown --also", "'--unknown'"}}) {
        const CommandLine line = parse(c.words);
        EXPECT_NE(line.error.toStdString().find(c.named), std::string::npos)
            << c.words << ": " << line.error.toStdString();
    }
    EXPECT_FALSE(CommandLine::parse({QString()}, "/").error.isEmpty()) << "an empty name";
}

TEST(CommandLine, shells_complete_every_option_and_no_other) {
    struct Shell {
        const char* file;
        const char* spelled;
    };
    for (const Shell& shell :
         {Shell{"lumaro.bash", "--%1\\b"}, Shell{"_lumaro", "--%1\\["}, Shell{"lumaro.fish", "-l %1 "}}) {
        QFile file(QString::fromUtf8(LUMARO_SOURCE_DIR "/packaging/completions/%1").arg(QLatin1String(shell.file)));
        ASSERT_TRUE(file.open(QFile::ReadOnly)) << shell.file;
        const QString text = QString::fromUtf8(file.readAll());
        auto options = QRegularExpression("^ +--([a-z-]+)", QRegularExpression::MultilineOption)
                           .globalMatch(CommandLine::helpText());
        ASSERT_TRUE(options.hasNext());
        while (options.hasNext()) {
            const QString name = options.next().captured(1);
            EXPECT_TRUE(text.contains(QRegularExpression(QString::fromLatin1(shell.spelled).arg(name))))
                << shell.file << " lacks " << name.toStdString();
        }
        const QString anyOption = QString::fromLatin1(shell.spelled).arg("([a-z][a-z-]*)").remove("\\b");
        auto completed = QRegularExpression(anyOption).globalMatch(text);
        while (completed.hasNext()) {
            const QString name = completed.next().captured(1);
            EXPECT_TRUE(CommandLine::helpText().contains(QRegularExpression("--" + name + "\\b")))
                << shell.file << " has " << name.toStdString();
        }
    }
}
