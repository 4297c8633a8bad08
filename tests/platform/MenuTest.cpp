// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/Menu.h"

#include <gtest/gtest.h>

using platform::Menu;

namespace {

Menu menuOf(int count) {
    Menu menu;
    for (int tag = 0; tag < count; ++tag)
        menu.addItem(QString::number(tag), QStringLiteral("act"), tag);
    return menu;
}

} // namespace

TEST(Menu, Keeping_the_first_items_removes_the_others_and_leaves_shorter_menus_alone) {
    const struct {
        int before, kept, after;
    } cases[] = {{5, 2, 2}, {2, 2, 2}, {1, 2, 1}, {0, 2, 0}, {3, 0, 0}, {3, -1, 0}};
    for (const auto& c : cases) {
        Menu menu = menuOf(c.before);
        menu.removeAllItemsBut(c.kept);
        EXPECT_EQ(menu.count(), c.after) << c.before << " but " << c.kept;
        for (int index = 0; index < menu.count(); ++index)
            EXPECT_EQ(menu.itemAt(index).tag, index);
    }
}

TEST(Menu, An_item_stays_where_it_is_while_others_come_and_go) {
    Menu menu = menuOf(3);
    platform::MenuItem* last = &menu.itemAt(2);
    Menu& submenu = menu.addSubmenu(QStringLiteral("More"));
    for (int tag = 10; tag < 100; ++tag)
        menu.addItem(QString::number(tag), QString(), tag);
    menu.removeItemAt(0);
    menu.removeItemAt(1000);
    EXPECT_EQ(&menu.itemAt(1), last);
    EXPECT_EQ(submenu.title(), QStringLiteral("More"));
}
