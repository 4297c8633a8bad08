// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/Menu.h"

#include <gtest/gtest.h>

using platform::Menu;
using platform::MenuItem;

namespace {

Menu menuOf(int count) {
    Menu menu;
    for (int tag = 0; tag < count; ++tag)
        menu.addItem(QString::number(tag), "act", tag);
    return menu;
}

} // namespace

TEST(Menu, items_say_what_they_were_made_with_and_are_unchecked) {
    Menu menu = menuOf(1);
    const MenuItem& item = menu.addItem("Half Size", "changeSize", 3);
    menu.addSeparator();
    const Menu& submenu = menu.addSubmenu("More");
    ASSERT_EQ(menu.count(), 4);
    EXPECT_EQ(&menu.itemAt(1), &item);
    EXPECT_EQ(item.title, "Half Size");
    EXPECT_EQ(item.action, "changeSize");
    EXPECT_EQ(item.tag, 3);
    EXPECT_FALSE(item.state);
    EXPECT_FALSE(item.separator);
    EXPECT_TRUE(menu.itemAt(2).separator);
    EXPECT_FALSE(menu.itemAt(3).separator);
    EXPECT_EQ(menu.itemAt(3).title, "More");
    EXPECT_EQ(menu.itemAt(3).submenu.get(), &submenu);
}

TEST(Menu, keeping_the_first_items_removes_the_others_and_leaves_shorter_menus_alone) {
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

TEST(Menu, an_item_stays_where_it_is_while_others_come_and_go) {
    Menu menu = menuOf(3);
    const MenuItem* last = &menu.itemAt(2);
    for (int tag = 10; tag < 100; ++tag)
        menu.addItem(QString::number(tag), QString(), tag);
    menu.removeItemAt(0);
    menu.removeItemAt(-1);
    menu.removeItemAt(menu.count());
    ASSERT_EQ(menu.count(), 92);
    EXPECT_EQ(&menu.itemAt(1), last);
    menu.removeAllItems();
    EXPECT_EQ(menu.count(), 0);
}
