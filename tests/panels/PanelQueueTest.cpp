// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/qt/PanelQueue.h"

#include "platform/window/qt/ForeignPanel.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QMenu>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using platform::PanelQueue;

namespace {

bool becomes(const std::function<bool()>& done) {
    const QDeadlineTimer deadline(10000);
    while (!done() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return done();
}

/// Whatever was to come by now has come.
void letPass() {
    for (int pass = 0; pass < 5; ++pass)
        QCoreApplication::processEvents();
}

} // namespace

TEST(PanelQueue, one_panel_stands_at_a_time_in_the_order_asked_for) {
    PanelQueue queue;
    QStringList done;
    int standing = 0;
    const auto panel = [&](const QString& name) {
        return [&, name] {
            EXPECT_EQ(++standing, 1) << name.toStdString();
            done << name;
            QDialog dialog;
            dialog.setModal(true);
            QMetaObject::invokeMethod(
                &dialog,
                [&] {
                    letPass(); // the others could come now
                    dialog.accept();
                },
                Qt::QueuedConnection);
            dialog.exec();
            --standing;
        };
    };
    QDialog first;
    first.setModal(true);
    first.show();
    for (const char* name : {"a", "b", "c"})
        queue.add(panel(QString::fromUtf8(name)));
    letPass();
    EXPECT_EQ(done, QStringList());
    first.hide();
    EXPECT_TRUE(becomes([&] { return done.size() == 3; }));
    EXPECT_EQ(done, (QStringList{"a", "b", "c"}));
}

TEST(PanelQueue, a_menu_and_a_panel_of_the_desktops_own_are_waited_for) {
    PanelQueue queue;
    int done = 0;
    QMenu menu;
    menu.addAction("item");
    menu.popup({});
    ASSERT_TRUE(becomes([] { return QApplication::activePopupWidget() != nullptr; }));
    queue.add([&] { ++done; });
    letPass();
    EXPECT_EQ(done, 0);
    auto foreign = std::make_unique<platform::ForeignPanel>();
    menu.close();
    letPass();
    EXPECT_EQ(done, 0);
    foreign.reset();
    EXPECT_TRUE(becomes([&] { return done == 1; }));
}

TEST(PanelQueue, what_waits_when_the_program_is_told_to_end_is_dropped) {
    int done = 0;
    QDialog panel;
    panel.setModal(true);
    {
        PanelQueue queue;
        panel.show();
        queue.add([&] { ++done; });
        queue.clear();
        panel.hide();
        letPass();
        EXPECT_EQ(done, 0);
        queue.add([&] { ++done; });
        EXPECT_TRUE(becomes([&] { return done == 1; })) << "what comes later is done";
        panel.show();
        queue.add([&] { ++done; });
    }
    panel.hide();
    letPass();
    EXPECT_EQ(done, 1) << "it went with the queue";
}
