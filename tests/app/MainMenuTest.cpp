// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MainMenu.h"
#include "control/QVMovieController.h"

#include <gtest/gtest.h>

#include <QSet>

TEST(MainMenu, Every_item_acts_and_no_two_share_a_shortcut) {
    MainMenu menu;
    QVMovieController controller;
    const QSet<QString> ofTheApplication{"doOpen",           "quit",          "showHelp",
                                         "toggleController", "cycleDisplays", "performAction"};
    QSet<QString> shortcuts;
    for (int top = 0; top < menu.bar().count(); ++top) {
        const platform::Menu* submenu = menu.bar().itemAt(top).submenu.get();
        ASSERT_TRUE(submenu);
        for (int index = 0; index < submenu->count(); ++index) {
            const platform::MenuItem& item = submenu->itemAt(index);
            if (item.separator)
                continue;
            EXPECT_TRUE(controller.handlesMenuAction(item.action) || ofTheApplication.contains(item.action))
                << item.title.toStdString();
            if (!item.shortcut.isEmpty()) {
                EXPECT_FALSE(shortcuts.contains(item.shortcut)) << item.shortcut.toStdString();
                shortcuts.insert(item.shortcut);
            }
        }
    }
}
