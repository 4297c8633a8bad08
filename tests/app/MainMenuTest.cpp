// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainMenu.h"
#include "platform/base/Localization.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "tests/support/ShippedLanguages.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

namespace {

/// "Title action tag [shortcut] (key that is only shown)" for each item, "-" for a separator.
QString written(const platform::Menu& menu) {
    QStringList lines;
    for (int index = 0; index < menu.count(); ++index) {
        const platform::MenuItem& item = menu.itemAt(index);
        QString line = QStringLiteral("%1 %2 %3").arg(item.title, item.action).arg(item.tag);
        if (!item.shortcut.isEmpty())
            line += QStringLiteral(" [%1]").arg(item.shortcut);
        if (!item.keyHint.isEmpty())
            line += QStringLiteral(" (%1)").arg(item.keyHint);
        lines.append(item.separator ? QStringLiteral("-") : line);
    }
    return lines.join(u'\n');
}

void expectTitlesDiffer(const platform::Menu& menu, const QString& language) {
    QStringList titles;
    for (int index = 0; index < menu.count(); ++index) {
        const platform::MenuItem& item = menu.itemAt(index);
        EXPECT_TRUE(item.separator || !titles.contains(item.title)) << (language + ": " + item.title).toStdString();
        titles.append(item.title);
        if (item.submenu)
            expectTitlesDiffer(*item.submenu, language);
    }
}

} // namespace

TEST(MainMenu, The_bar_shows_the_commands_by_section_with_the_keys_that_act_on_them) {
    platform::setLocalizationLanguages({"en"});
    TestEnvironment env;
    const CurrentCommands commands(env.environment);
    MainMenu menu(env.environment, commands);
    QStringList titles;
    for (int index = 0; index < menu.bar().count(); ++index)
        titles.append(menu.bar().itemAt(index).title);
    EXPECT_EQ(titles.join(u' ').toStdString(), "File Movie Playback Volume Playlist Subtitles Window Help");
    const auto shown = [&](int index) { return written(*menu.bar().itemAt(index).submenu).toStdString(); };
    EXPECT_EQ(
        shown(0),
        "Open... doOpen 0 [Ctrl+O]\nOpen Folder... doOpenFolder 0 [Ctrl+Shift+O]\nOpen URL... doOpenURL 0 [Ctrl+U]\n"
        "Open URLs... doOpenURL 1 [Ctrl+Shift+U]\nOpen Recent  0\n-\nSave Playlist... savePlaylist 0 [Ctrl+S]\n-\n"
        "Preferences... showPreferences 0 [Ctrl+,]\n-\nQuit quit 0 "
        "[Ctrl+Q]");
    EXPECT_EQ(shown(1),
              "Half Size changeSize 0 (0)\nNormal Size changeSize 1 (1)\nDouble Size changeSize 2 (2)\n"
              "Full Size changeSize 3 (3)\nFit Width changeSize 4 (4)\nFit Height changeSize 5 (5)\n-\n"
              "Bigger changeSize -2 (+)\nSmaller changeSize -3 (-)\n-\nShow Controller toggleController 0 (C)\n"
              "Bar over the Picture nextControllerOverPicture 0 (B)\nTracks... showTracks 0 (Ctrl+T)\n"
              "Information showInformation 0 (I)\n"
              "Next Display cycleDisplays 1 (D)\nPrevious Display cycleDisplays -1 (Shift+D)\n-\nAspect  "
              "0\nDeinterlacing  0\nQuality  0\nPicture Colors  0\nCrop Black Bars cropBars 0 (Ctrl+B)\nTurn by 90° "
              "turnPicture 0 "
              "(T)\nMirror mirrorPicture 0 (Shift+T)\n-\nSave Still saveStill "
              "0 (Ctrl+Shift+S)");
    EXPECT_EQ(shown(2), "Play startStop 0 (Space)\nFast Forward fastForwardRewind 1 (Right)\n"
                        "Rewind fastForwardRewind -1 (Left)\n-\nJump Forward jump 1 (Ctrl+Right)\n"
                        "Jump Backward jump -1 (Ctrl+Left)\n-\nBeginning beginningEnd -1 (Alt+Left)\n"
                        "End beginningEnd 1 (Alt+Right)\nGo to Live goLive 0 (End)\n-\nSpeed  0\nChapters  0\n"
                        "Next Chapter stepChapter 1 (Shift+PgDown)\nPrevious Chapter stepChapter -1 (Shift+PgUp)\n-\n"
                        "Go to Time... goToTime 0 (G)\nRepeat from Here repeatSection 0 (Ctrl+L)\n-\n"
                        "Next Movie playPrevNext 1 [PgDown]\n"
                        "Previous Movie playPrevNext -1 [PgUp]\n-\nLooping Off changeLooping 0 (L)\n"
                        "Loop One changeLooping 1\nLoop All changeLooping 2");
    EXPECT_EQ(shown(3), "Volume Up changeVolume 0 (Up)\nVolume Down changeVolume 1 (Down)\n-\n"
                        "Normal Volume changeVolume 2\nSilent changeVolume 3\nMute changeVolume 4 (M)\n-\n"
                        "Sound Earlier shiftSound -50 (Ctrl+-)\nSound Later shiftSound 50 (Ctrl++)\n"
                        "Sound as in the File shiftSound 0 (Ctrl+0)\nAudio Tracks  0");
    EXPECT_EQ(written(menu.playlistMenu()).toStdString(), "");
    EXPECT_EQ(written(menu.subtitlesMenu()).toStdString(),
              "None changeSubtitles -1 (S)\n-\nSecond Subtitles  0\nAdd Subtitles... addSubtitles 0 [Ctrl+E]\n-\n"
              "Show Earlier shiftSubtitles -50 (Z)\nShow Later shiftSubtitles 50 (X)\n"
              "As in the File shiftSubtitles 0 (Shift+X)\nFirst Line Is Spoken Now alignSubtitles -1 (Alt+Z)\n"
              "Last Line Is Spoken Now alignSubtitles 1 (Alt+X)\n-\nLarger Text sizeSubtitles 1 (Alt++)\n"
              "Smaller Text sizeSubtitles -1 (Alt+-)\nHigher raiseSubtitles 1 (Alt+PgUp)\n"
              "Lower raiseSubtitles -1 (Alt+PgDown)\n-\nRepair toggleRepair 0 (R)");
    EXPECT_EQ(shown(6), "Next Screen switchScreen 1 (Tab)\nPrevious Screen switchScreen -1 (Shift+Tab)");
    EXPECT_EQ(shown(7), "Lumaro Help showHelp 0 [F1]\nDonate... donate 0");
    // The user gives Ctrl+Q to the help, X to looping off, F2 to the opening of files, and nothing to bigger.
    env.defaults().setObject(QVariantMap{{"help", QVariantList{"Ctrl+Q"}},
                                         {"looping-off", QVariantList{"X"}},
                                         {"open", QVariantList{"F2", "Ctrl+O"}},
                                         {"bigger", QVariantList{}}},
                             kQVCommandKeys);
    env.notifications.post(QVPreferencesChangedNotification{kQVCommandKeys});
    EXPECT_TRUE(shown(0).starts_with("Open... doOpen 0 [Ctrl+O]\n"));
    EXPECT_TRUE(shown(0).ends_with("Quit quit 0 (Esc)"));
    EXPECT_NE(shown(1).find("Bigger changeSize -2\n"), std::string::npos);
    EXPECT_NE(shown(2).find("Looping Off changeLooping 0 (X)\n"), std::string::npos);
    EXPECT_EQ(shown(7), "Lumaro Help showHelp 0 (Ctrl+Q)\nDonate... donate 0");
    platform::setLocalizationLanguages({});
}

TEST(MainMenu, No_language_names_two_items_of_a_menu_alike) {
    for (const QString& language : shippedLanguages()) {
        platform::setLocalizationLanguages({language});
        TestEnvironment env;
        const CurrentCommands commands(env.environment);
        MainMenu menu(env.environment, commands);
        expectTitlesDiffer(menu.bar(), language);
    }
    platform::setLocalizationLanguages({});
}
