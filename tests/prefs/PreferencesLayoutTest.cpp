// SPDX-License-Identifier: GPL-3.0-or-later
// The window as a whole, in every language: where Tab goes, and whether every text fits.
#include "platform/base/Localization.h"
#include "prefs/QVPreferencesController.h"
#include "settings/SettingsKeys.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeVersions.h"
#include "tests/support/ShippedLanguages.h"
#include "tests/support/StandingPicture.h"
#include "tests/support/TestEnvironment.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QStyleOptionComboBox>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>

namespace {

constexpr QSize smallestScreen(1280, 720);

class PreferencesLayout : public testing::TestWithParam<QString> {
protected:
    PreferencesLayout() {
        platform::setLocalizationLanguages({GetParam()});
        // Whatever can be enabled is.
        env.defaults().setInteger(2, kQVPlaylistDefaultArrangement);
        env.defaults().setBool(true, kQVNewVersionShouldCheck);
    }
    ~PreferencesLayout() override {
        QApplication::setFont(font);
        platform::setLocalizationLanguages({});
    }

    QTabWidget& pages() { return *controller->window().findChild<QTabWidget*>("_pages"); }
    QVPreferencesController& make() { return controller.emplace(env.environment, desktop, pictures, versions); }
    void show() {
        (controller ? *controller : make()).showAbove(nullptr);
        QApplication::processEvents();
    }
    static std::string nameOf(const QWidget& widget) {
        return (widget.objectName().isEmpty() ? widget.accessibleName() : widget.objectName()).toStdString();
    }
    void tab(Qt::KeyboardModifiers modifiers = {}) {
        QWidget* focused = QApplication::focusWidget();
        ASSERT_NE(focused, nullptr);
        QKeyEvent press(QEvent::KeyPress, modifiers ? Qt::Key_Backtab : Qt::Key_Tab, modifiers);
        QApplication::sendEvent(focused, &press);
    }
    /// The widgets that Tab should visit on a page: a group of radio buttons is one stop.
    static std::set<const QWidget*> stopsOf(const QWidget& page) {
        std::set<const QWidget*> stops;
        for (const QWidget* widget : page.findChildren<QWidget*>()) {
            const auto* radio = qobject_cast<const QRadioButton*>(widget);
            const bool isPart = widget->focusProxy() || qobject_cast<const QAbstractScrollArea*>(widget->parent());
            if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) && !isPart &&
                (!radio || radio->isChecked()))
                stops.insert(widget);
        }
        return stops;
    }
    /// Of what stands in the same group: downwards, or to the right.
    static bool isReadBefore(const QWidget& one, const QWidget& next, const QWidget& page) {
        const QRect first(one.mapTo(&page, QPoint()), one.size());
        const QRect second(next.mapTo(&page, QPoint()), next.size());
        return second.top() >= first.bottom() || second.left() >= first.right();
    }

    /// Every text that the window shows becomes twice as long.
    void doubleTexts() {
        const auto twice = [](const QString& text) {
            QString more = text;
            return text.isEmpty() || text.front().isDigit() ? text : text + u' ' + more.remove(u'&');
        };
        for (auto* label : controller->window().findChildren<QLabel*>())
            label->setText(twice(label->text()));
        for (auto* button : controller->window().findChildren<QAbstractButton*>())
            button->setText(twice(button->text()));
        for (auto* group : controller->window().findChildren<QGroupBox*>())
            group->setTitle(twice(group->title()));
        for (auto* popUp : controller->window().findChildren<QComboBox*>())
            if (popUp->inherits("QComboBox") && !popUp->isEditable() && popUp->objectName().startsWith(u'_'))
                for (int item = 0; item < popUp->count(); ++item)
                    popUp->setItemText(item, twice(popUp->itemText(item)));
        for (auto* tabs : controller->window().findChildren<QTabWidget*>())
            for (int tab = 0; tab < tabs->count(); ++tab)
                tabs->setTabText(tab, twice(tabs->tabText(tab)));
    }
    static bool fits(const QWidget& widget) {
        if (const auto* label = qobject_cast<const QLabel*>(&widget))
            return label->wordWrap() ? label->heightForWidth(label->width()) <= label->height()
                                     : label->sizeHint().width() <= label->width();
        if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
            return group->fontMetrics().horizontalAdvance(group->title()) <= group->width();
        if (qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QComboBox*>(&widget))
            return widget.minimumSizeHint().width() <= widget.width() &&
                   (widget.sizeHint().width() <= widget.width() || !widget.toolTip().isEmpty());
        return true;
    }
    void expectEveryTextFits() {
        // The screen of the tests is narrower, and higher. A window is never smaller than its layout lets it be.
        QWidget& window = controller->window();
        window.resize(smallestScreen);
        QApplication::processEvents();
        EXPECT_LE(window.width(), smallestScreen.width()) << language;
        EXPECT_LE(window.height(), smallestScreen.height()) << language;
        for (int page = 0; page < pages().count(); ++page) {
            pages().setCurrentIndex(page);
            QApplication::processEvents();
            for (const QWidget* widget : pages().widget(page)->findChildren<QWidget*>()) {
                if (!widget->isVisible())
                    continue;
                EXPECT_TRUE(fits(*widget)) << language << ", " << nameOf(*widget) << " is " << widget->width()
                                           << " wide and wants " << widget->sizeHint().width();
                const QWidget* parent = widget->parentWidget();
                EXPECT_TRUE(qobject_cast<const QAbstractScrollArea*>(parent->parentWidget()) ||
                            parent->rect().contains(widget->geometry()) || !widget->focusPolicy())
                    << language << ", " << nameOf(*widget) << " is cut";
            }
        }
    }

    const std::string language = GetParam().toStdString();
    TestEnvironment env;
    FakeDesktop desktop;
    StandingPicture pictures;
    const QFont font = QApplication::font();
    FakeVersions versions;
    std::optional<QVPreferencesController> controller;
};

INSTANTIATE_TEST_SUITE_P(Languages, PreferencesLayout, testing::Values("en", "de"));

/// What depends on the texts alone.
class PreferencesTexts : public PreferencesLayout {};

INSTANTIATE_TEST_SUITE_P(Languages, PreferencesTexts, testing::ValuesIn(shippedLanguages()));

} // namespace

TEST_P(PreferencesLayout, tab_goes_once_to_each_control_of_a_page_in_the_order_of_reading) {
    show();
    for (int page = 0; page < pages().count(); ++page) {
        pages().setCurrentIndex(page);
        pages().tabBar()->setFocus();
        const QWidget& shown = *pages().widget(page);
        std::set<const QWidget*> stops = stopsOf(shown);
        ASSERT_FALSE(stops.empty());
        tab();
        EXPECT_TRUE(shown.isAncestorOf(QApplication::focusWidget())) << nameOf(shown) << ": the name leads to the page";
        const QWidget* before = nullptr;
        while (shown.isAncestorOf(QApplication::focusWidget())) {
            const QWidget* focused = QApplication::focusWidget();
            EXPECT_TRUE(stops.erase(focused)) << nameOf(shown) << ": again, or no control: " << nameOf(*focused);
            if (before && before->parentWidget() == focused->parentWidget()) {
                EXPECT_TRUE(isReadBefore(*before, *focused, shown)) << nameOf(*before) << ", " << nameOf(*focused);
            }
            before = focused;
            tab();
            ASSERT_NE(QApplication::focusWidget(), focused) << nameOf(shown) << ": it holds the keyboard";
        }
        for (const QWidget* missed : stops)
            ADD_FAILURE() << nameOf(shown) << ": never at " << nameOf(*missed);
        // And back.
        tab(Qt::ShiftModifier);
        EXPECT_EQ(QApplication::focusWidget(), before) << nameOf(shown);
    }
}

TEST_P(PreferencesTexts, every_text_fits_a_small_screen) {
    show();
    expectEveryTextFits();
    // In the window as it stands on that screen, what is chosen is read whole, too.
    controller->window().resize(smallestScreen * 19 / 20);
    for (int page = 0; page < pages().count(); ++page) {
        pages().setCurrentIndex(page);
        QApplication::processEvents();
        for (const auto* popUp : pages().widget(page)->findChildren<QComboBox*>()) {
            QStyleOptionComboBox option;
            option.initFrom(popUp);
            const QRect field =
                popUp->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, popUp);
            const int wanted = popUp->fontMetrics().horizontalAdvance(popUp->currentText());
            EXPECT_TRUE(!popUp->isVisible() || popUp->isEditable() || wanted <= field.width())
                << language << ", " << nameOf(*popUp) << " shows " << field.width() << " of " << wanted;
        }
    }
}

TEST_P(PreferencesLayout, texts_twice_as_long_fit_too) {
    make();
    doubleTexts();
    show();
    expectEveryTextFits();
}

TEST_P(PreferencesLayout, letters_twice_as_large_fit_too) {
    QFont large = font;
    large.setPointSizeF(2 * font.pointSizeF());
    QApplication::setFont(large);
    show();
    expectEveryTextFits();
}

TEST_P(PreferencesLayout, what_scrolls_stands_on_the_ground_of_its_page) {
    for (const auto* area : make().window().findChildren<QScrollArea*>()) {
        EXPECT_FALSE(area->viewport()->autoFillBackground()) << nameOf(*area->widget());
        EXPECT_FALSE(area->widget()->autoFillBackground()) << nameOf(*area->widget());
    }
}

// Qt's form layout writes behind its memory where rows are hidden that it has measured before and a text wraps.
TEST_P(PreferencesLayout, lays_no_hidden_rows_out_in_forms) {
    EXPECT_EQ(make().window().findChild<QFormLayout*>(), nullptr);
}
