// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/GoToTimePanel.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

#include <gtest/gtest.h>

TEST(GoToTimePanel, asks_again_for_what_is_no_time_of_the_movie) {
    int beeps = 0;
    // What is typed, one after the other; an empty text is Escape.
    const auto answerTo = [&](std::vector<QString> typed) {
        beeps = 0;
        QTimer::singleShot(0, qApp, [&typed] {
            auto* panel = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(panel);
            auto* field = panel->findChild<QLineEdit*>();
            EXPECT_EQ(field->selectedText(), "0:00:12.500") << "typing replaces it";
            const auto press = [&](Qt::Key key) {
                QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
                QCoreApplication::sendEvent(field, &event);
            };
            for (const QString& text : typed) {
                field->setText(text);
                press(text.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
            }
        });
        return runGoToTimePanel(
            12.5, 60, [&] { ++beeps; }, nullptr);
    };
    EXPECT_EQ(answerTo({"0:30.5"}), 30.5);
    EXPECT_EQ(answerTo({"soon", "1:00.1", "1:00"}), 60.0);
    EXPECT_EQ(beeps, 2);
    EXPECT_EQ(answerTo({"1:23:45", ""}), std::nullopt);
    EXPECT_EQ(beeps, 1);
}
