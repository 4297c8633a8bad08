// SPDX-License-Identifier: GPL-3.0-or-later
#include "context/Notifications.h"
#include "platform/base/Localization.h"
#include "prefs/ColorWell.h"
#include "prefs/FloatSlider.h"
#include "prefs/QVOverlayStyleController.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "tests/support/Posts.h"
#include "tests/support/ShippedLanguages.h"
#include "tests/support/StandingPicture.h"
#include "tests/support/TestEnvironment.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <memory>
#include <set>

namespace {

struct OverlayStyleSection : testing::Test {
    explicit OverlayStyleSection(const QString& key = kQVFeedbackOverlayStyle)
        : controller(settings.environment, pictures) {
        controller.setupWithModelForKey(key);
    }

    QVOverlayStyleDefaults model() const {
        return *QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(settings.environment.settings, controller.key());
    }
    template <class Widget = QWidget>
    Widget& find(const char* name) const {
        auto* widget = dynamic_cast<Widget*>(controller.widget()->findChild<QWidget*>(name));
        EXPECT_TRUE(widget) << name;
        return *widget;
    }
    bool isEnabled(const char* name) const { return find(name).isEnabled(); }
    QString text(const char* label) const { return find<QLabel>(label).text(); }
    void pick(const char* popUp, int tag) {
        auto& box = find<QComboBox>(popUp);
        box.setCurrentIndex(box.findData(tag));
    }
    void pickFont(const QString& family) {
        auto& box = find<QComboBox>("textFontName");
        box.setCurrentIndex(box.findText(family));
    }
    /// As the user does it, with the window that the well opens.
    void pickColor(const char* well, const QColor& color) {
        find<ColorWell>(well).click();
        find(well).findChild<QColorDialog*>()->setCurrentColor(color);
    }
    /// To the position nearest to a value, as dragging does.
    void drag(const char* slider, double value) {
        auto& control = find<FloatSlider>(slider);
        const double share = (value - control.smallest()) / (control.largest() - control.smallest());
        control.setValue(qRound(share * control.maximum()));
    }
    void setSmallestSize(int size) {
        settings.defaults().setInteger(size, kQVOverlayTextFontSizeMin);
        settings.notifications.post(QVPreferencesChangedNotification{kQVOverlayTextFontSizeMin});
    }

    TestEnvironment settings;
    StandingPicture pictures;
    QVOverlayStyleController controller;
    Posts<QVPreferencesChangedNotification> posts{settings.notifications};
};

const char* const otherFont = "A Font Of The Test";

} // namespace

TEST_F(OverlayStyleSection, every_control_stores_its_value_and_announces_its_key_alone) {
    find<QComboBox>("textFontName").addItem(otherFont);
    const QColor color = QColor::fromRgb(0x33, 0x66, 0x99, 0xCC);
    const struct {
        const char* control;
        QString key;
        std::function<void()> use;
        QVariant stored;
        const char* value; // the read-out
        const char* shown;
    } cases[] = {
        {"textColor", kTextColor, [&] { pickColor("textColor", color); }, "0.2 0.4 0.6 0.8", "", ""},
        {"textFontName", kTextFontName, [&] { pickFont(otherFont); }, otherFont, "", ""},
        {"textFontSize", kTextFontSize, [&] { pick("textFontSize", 40); }, 40, "", ""},
        {"shadowOn", kShadowOn, [&] { find<QCheckBox>("shadowOn").click(); }, false, "", ""},
        {"shadowOn", kShadowOn, [&] { find<QCheckBox>("shadowOn").click(); }, true, "", ""},
        {"shadowColor", kShadowColor, [&] { pickColor("shadowColor", Qt::red); }, "1 0 0 1", "", ""},
        {"shadowBlurRadius", kShadowRadius, [&] { drag("shadowBlurRadius", 7.5); }, 7.5F, "shadowBlurRadiusValue",
         "7.5"},
        {"shadowOffsetX", kShadowOffset, [&] { drag("shadowOffsetX", 4); }, "4 -1", "shadowOffsetXValue", "4"},
        {"shadowOffsetY", kShadowOffset, [&] { drag("shadowOffsetY", -2.5); }, "4 -2.5", "shadowOffsetYValue", "-2.5"},
        {"backgroungOn", kBackgroundOn, [&] { find<QCheckBox>("backgroungOn").click(); }, false, "", ""},
        {"backgroungOn", kBackgroundOn, [&] { find<QCheckBox>("backgroungOn").click(); }, true, "", ""},
        {"backgroungColor", kBackgroundColor, [&] { pickColor("backgroungColor", Qt::blue); }, "0 0 1 1", "", ""},
        {"backgroungRounded", kBackgroundRounded, [&] { find<QCheckBox>("backgroungRounded").click(); }, false, "", ""},
        {"backgroungRounded", kBackgroundRounded, [&] { find<QCheckBox>("backgroungRounded").click(); }, true, "", ""},
        {"backgroungRadius", kBackgroundRadius, [&] { drag("backgroungRadius", 9); }, 9.0F, "backgroungRadiusValue",
         "9"},
        {"backgroungFrameOn", kFrameOn, [&] { find<QCheckBox>("backgroungFrameOn").click(); }, true, "", ""},
        {"backgroungFrameWidth", kFrameWidth, [&] { drag("backgroungFrameWidth", 2.5); }, 2.5F,
         "backgroungFrameWidthValue", "2.5"},
        {"alignmentVertical", kAlignment, [&] { pick("alignmentVertical", 0x20); }, 0x122, "", ""},
        {"alignmentHorizontal", kAlignment, [&] { pick("alignmentHorizontal", 1); }, 0x121, "", ""},
        {"alignmentVertical", kAlignment, [&] { pick("alignmentVertical", 0x10); }, 0x111, "", ""},
        {"alignmentHorizontal", kAlignment, [&] { pick("alignmentHorizontal", 0); }, 0x110, "", ""},
        {"fadingInInterval", kFadingInInterval, [&] { drag("fadingInInterval", 0.3); }, 0.3F, "fadingInIntervalValue",
         "0.3 s"},
        {"fadingOutInterval", kFadingOutInterval, [&] { drag("fadingOutInterval", 5); }, 5.0F, "fadingOutIntervalValue",
         "5 s"},
        {"fadingDelayInterval", kFadingDelayInterval, [&] { drag("fadingDelayInterval", 2.5); }, 2.5F,
         "fadingDelayIntervalValue", "2.5 s"},
        {"minAlpha", kMinAlpha, [&] { drag("minAlpha", 0.29); }, 0.29F, "minAlphaValue", "29 %"},
        {"maxAlpha", kMaxAlpha, [&] { drag("maxAlpha", 0.57); }, 0.57F, "maxAlphaValue", "57 %"},
    };
    std::set<QString> covered;
    for (const auto& [control, key, use, stored, value, shown] : cases) {
        SCOPED_TRACE(control);
        const int before = posts.count;
        use();
        // A colour comes in parts when its opacity changes, too.
        const bool isWell = dynamic_cast<ColorWell*>(controller.widget()->findChild<QWidget*>(control)) != nullptr;
        const int most = isWell ? 2 : 1;
        ASSERT_TRUE(posts.count > before && posts.count <= before + most);
        EXPECT_EQ(posts.last->key, kQVFeedbackOverlayStyle);
        EXPECT_EQ(posts.last->styleKeys, QStringList{key});
        EXPECT_EQ(model().objectForKey(key), stored) << model().objectForKey(key).toString().toStdString();
        if (*value) {
            EXPECT_EQ(text(value), shown);
        }
        covered.insert(key);
    }
    EXPECT_EQ(covered.size(), OverlayStyle::entries().size());
}

TEST_F(OverlayStyleSection, a_style_is_shown_whole_and_showing_it_tells_and_stores_nothing) {
    QVOverlayStyleDefaults style = model();
    style.set(&OverlayStyle::textColor, QColor(Qt::yellow));
    style.set(&OverlayStyle::textFontName, "No Such Font");
    style.set(&OverlayStyle::textFontSize, 23);
    style.set(&OverlayStyle::shadowOn, false);
    style.set(&OverlayStyle::shadowColor, QColor(Qt::green));
    style.set(&OverlayStyle::shadowBlurRadius, 3.3F);
    style.set(&OverlayStyle::shadowOffset, QSizeF(-300, 1.2));
    style.set(&OverlayStyle::backgroundColor, QColor(Qt::cyan));
    style.set(&OverlayStyle::backgroundRounded, false);
    style.set(&OverlayStyle::backgroundRadius, std::numeric_limits<float>::quiet_NaN());
    style.set(&OverlayStyle::frameOn, true);
    style.set(&OverlayStyle::frameWidth, 99);
    style.set(&OverlayStyle::alignment, 0x175);
    style.set(&OverlayStyle::fadingInInterval, 1.234);
    style.set(&OverlayStyle::fadingOutInterval, 20);
    style.set(&OverlayStyle::fadingDelayInterval, -1);
    style.set(&OverlayStyle::minAlpha, 0.456F);
    style.set(&OverlayStyle::maxAlpha, 1.5F);
    const auto stored = settings.defaults().dictionaryForKey(kQVOverlayStyles);

    controller.syncWithModel();
    EXPECT_EQ(find<ColorWell>("textColor").color(), Qt::yellow);
    EXPECT_EQ(find<QComboBox>("textFontName").currentText(), "No Such Font") << "it stays what the style asks for";
    EXPECT_EQ(find<QComboBox>("textFontSize").currentIndex(), -1) << "no size offered selects none";
    EXPECT_FALSE(find<QCheckBox>("shadowOn").isChecked());
    EXPECT_EQ(find<ColorWell>("shadowColor").color(), Qt::green);
    EXPECT_EQ(find<ColorWell>("backgroungColor").color(), Qt::cyan);
    EXPECT_TRUE(find<QCheckBox>("backgroungOn").isChecked());
    EXPECT_FALSE(find<QCheckBox>("backgroungRounded").isChecked());
    EXPECT_TRUE(find<QCheckBox>("backgroungFrameOn").isChecked());
    EXPECT_EQ(find<QComboBox>("alignmentVertical").currentIndex(), -1);
    EXPECT_EQ(find<QComboBox>("alignmentHorizontal").currentIndex(), -1);
    const std::pair<const char*, const char*> readOuts[] = {
        {"shadowBlurRadiusValue", "3.3"},  {"shadowOffsetXValue", "-12"},       {"shadowOffsetYValue", "1.2"},
        {"backgroungRadiusValue", "0"},    {"backgroungFrameWidthValue", "10"}, {"fadingInIntervalValue", "1.234 s"},
        {"fadingOutIntervalValue", "5 s"}, {"fadingDelayIntervalValue", "0 s"}, {"minAlphaValue", "45 %"},
        {"maxAlphaValue", "100 %"}};
    for (const auto& [label, shown] : readOuts)
        EXPECT_EQ(text(label), shown) << label;
    EXPECT_EQ(posts.count, 0);
    EXPECT_EQ(settings.defaults().dictionaryForKey(kQVOverlayStyles), stored);

    // What was not touched stays as it is.
    drag("shadowOffsetY", 2);
    EXPECT_EQ(model().objectForKey(kShadowOffset), "-300 2");
    pick("alignmentVertical", 0x20);
    EXPECT_EQ(model().objectForKey(kAlignment), 0x125);
}

TEST_F(OverlayStyleSection, what_depends_on_a_switch_is_enabled_with_it) {
    const std::initializer_list<const char*> shadow = {
        "shadowColor",           "shadowColorLabel",   "shadowBlurRadius",   "shadowBlurRadiusLabel",
        "shadowBlurRadiusValue", "shadowOffsetX",      "shadowOffsetY",      "shadowOffsetXLabel",
        "shadowOffsetYLabel",    "shadowOffsetXValue", "shadowOffsetYValue",
    };
    const std::initializer_list<const char*> background = {"backgroungColor", "backgroungColorLabel",
                                                           "backgroungRounded", "backgroungFrameOn"};
    const std::initializer_list<const char*> radius = {"backgroungRadius", "backgroungRadiusLabel",
                                                       "backgroungRadiusValue"};
    const std::initializer_list<const char*> frame = {"backgroungFrameWidth", "backgroungFrameWidthLabel",
                                                      "backgroungFrameWidthValue"};
    const std::initializer_list<const char*> always = {"textColor",        "textColorLabel",    "textFontName",
                                                       "textFontSize",     "alignmentVertical", "alignmentHorizontal",
                                                       "fadingInInterval", "fadingOutInterval", "fadingDelayInterval",
                                                       "minAlpha",         "maxAlpha",          "maxAlphaValue",
                                                       "shadowOn",         "backgroungOn"};
    const auto expect = [&](const char* when, bool shadowed, bool panelled, bool rounded, bool framed, bool enabled) {
        const std::pair<std::initializer_list<const char*>, bool> groups[] = {
            {shadow, shadowed}, {background, panelled}, {radius, rounded}, {frame, framed}, {always, enabled}};
        for (const auto& [group, wanted] : groups)
            for (const char* name : group)
                EXPECT_EQ(isEnabled(name), wanted) << when << ": " << name;
    };
    const auto click = [&](const char* box) { find<QCheckBox>(box).click(); };
    expect("at first", true, true, true, false, true); // as registered
    click("backgroungFrameOn");
    expect("with a frame", true, true, true, true, true);
    click("shadowOn");
    expect("without a shadow", false, true, true, true, true);
    click("backgroungOn");
    expect("without a panel", false, false, false, false, true);
    EXPECT_TRUE(find<QCheckBox>("backgroungRounded").isChecked());
    EXPECT_TRUE(find<QCheckBox>("backgroungFrameOn").isChecked());
    controller.syncWithModel();
    expect("the same, shown anew", false, false, false, false, true);
    click("backgroungOn");
    expect("with the panel again", false, true, true, true, true);
    click("backgroungRounded");
    expect("with plain corners", false, true, false, true, true);
    controller.setEnabled(false);
    expect("disabled", false, false, false, false, false);
    controller.syncWithModel();
    expect("disabled, shown anew", false, false, false, false, false);
    controller.setEnabled(true);
    expect("enabled again", false, true, false, true, true);
}

TEST_F(OverlayStyleSection, no_size_stays_below_the_smallest_of_all_texts) {
    const struct {
        int size;
        int smallest;
        int becomes;
    } cases[] = {{24, 30, 30}, {24, 24, 24}, {24, 12, 24}, {23, 22, 23}, {21, 23, 23}, {24, 33, 33}};
    for (const auto& [size, smallest, becomes] : cases) {
        SCOPED_TRACE(QString("%1, smallest %2").arg(size).arg(smallest).toStdString());
        model().set(&OverlayStyle::textFontSize, size);
        controller.syncWithModel();
        const int before = posts.count;
        setSmallestSize(smallest);
        EXPECT_EQ(model().values().textFontSize, becomes);
        EXPECT_EQ(posts.count - before, becomes == size ? 1 : 2); // the setting's own, and the style's
        if (becomes != size) {
            EXPECT_EQ(find<QComboBox>("textFontSize").currentData(), becomes);
        }
    }
}

TEST_F(OverlayStyleSection, of_the_two_opacities_the_other_moves_along) {
    model().set(&OverlayStyle::minAlpha, 0.2F);
    model().set(&OverlayStyle::maxAlpha, 0.8F);
    controller.syncWithModel();
    drag("minAlpha", 0.9);
    EXPECT_EQ(model().values().maxAlpha, 0.9F);
    EXPECT_EQ(text("maxAlphaValue"), "90 %");
    EXPECT_EQ(posts.last->styleKeys, QStringList{kMaxAlpha});
    EXPECT_EQ(posts.count, 2);
    drag("maxAlpha", 0.4);
    EXPECT_EQ(model().values().minAlpha, 0.4F);
    EXPECT_EQ(find<FloatSlider>("minAlpha").floatValue(), 0.4);
    drag("minAlpha", 0.1);
    EXPECT_EQ(model().values().maxAlpha, 0.4F) << "only where they would cross";
    drag("minAlpha", 0);
    EXPECT_EQ(model().values().minAlpha, 0) << "the slider's first place";
    // Such a pair in the file stays until one of the two is used.
    model().set(&OverlayStyle::minAlpha, 0.7F);
    controller.syncWithModel();
    drag("fadingInInterval", 1);
    EXPECT_EQ(model().values().minAlpha, 0.7F);
    drag("maxAlpha", 0.5);
    EXPECT_EQ(model().values().minAlpha, 0.5F);
}

TEST_F(OverlayStyleSection, numbers_are_written_as_in_the_language_of_the_texts) {
    platform::setLocalizationLanguages({"de"});
    drag("fadingInInterval", 0.35);
    EXPECT_EQ(text("fadingInIntervalValue"), "0,35 s");
    platform::setLocalizationLanguages({});
}

TEST_F(OverlayStyleSection, a_reset_brings_back_the_registered_style_and_can_be_undone) {
    const QVariant registered = model().objectForKey(kTextFontSize);
    EXPECT_FALSE(isEnabled("reset"));
    pick("textFontSize", 40);
    drag("maxAlpha", 0.5);
    EXPECT_TRUE(isEnabled("reset"));
    EXPECT_FALSE(isEnabled("undoReset"));
    find<QPushButton>("reset").click();
    EXPECT_EQ(model().objectForKey(kTextFontSize), registered);
    EXPECT_EQ(find<QComboBox>("textFontSize").currentData(), registered);
    EXPECT_EQ(text("maxAlphaValue"), "100 %");
    EXPECT_EQ(posts.last->key, kQVFeedbackOverlayStyle);
    EXPECT_EQ(posts.last->styleKeys.size(), 19) << "the overlays take over all";
    EXPECT_FALSE(isEnabled("reset"));
    EXPECT_TRUE(isEnabled("undoReset"));
    controller.setEnabled(false);
    EXPECT_FALSE(isEnabled("undoReset"));
    controller.setEnabled(true);
    find<QPushButton>("undoReset").click();
    EXPECT_EQ(model().objectForKey(kTextFontSize), 40);
    EXPECT_EQ(text("maxAlphaValue"), "50 %");
    EXPECT_TRUE(isEnabled("reset"));
    EXPECT_FALSE(isEnabled("undoReset"));
}

TEST_F(OverlayStyleSection, tells_while_it_can_be_used) {
    using Edited = QVOverlayStyleEditedNotification;
    Posts<Edited> edited(settings.notifications);
    {
        QVOverlayStyleController unseen(settings.environment, pictures);
        unseen.setupWithModelForKey(kQVOSDOverlayStyle);
    }
    EXPECT_EQ(edited.count, 0) << "nobody has seen it";
    const auto told = [&](Edited::Page page, const char* when) {
        EXPECT_EQ(edited.count, 1) << when;
        EXPECT_TRUE(edited.last && edited.last->key == kQVFeedbackOverlayStyle && edited.last->page == page) << when;
        edited.count = 0;
    };
    controller.widget()->show();
    told(Edited::Page::opened, "shown");
    controller.syncWithModel();
    EXPECT_EQ(edited.count, 0);
    controller.setEnabled(false);
    told(Edited::Page::closed, "disabled");
    controller.setEnabled(true);
    told(Edited::Page::opened, "enabled");
    controller.widget()->hide();
    told(Edited::Page::closed, "hidden");
    auto page = std::make_unique<QWidget>();
    controller.widget()->setParent(page.get());
    controller.widget()->show();
    page->show();
    told(Edited::Page::opened, "shown in a window");
    page.reset();
    told(Edited::Page::closed, "gone with its window");
}

TEST_F(OverlayStyleSection, the_sample_stands_on_the_movie_that_is_shown) {
    controller.widget()->resize(1000, 500);
    const auto sample = [&] { return find("sample").grab().toImage(); };
    const auto has = [&](const QColor& color) {
        const QImage picture = sample();
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixelColor(x, y) == color)
                    return true;
        return false;
    };
    controller.widget()->show();
    EXPECT_FALSE(has(Qt::magenta));
    pictures.picture = QImage(64, 36, QImage::Format_RGB32);
    pictures.picture.fill(Qt::magenta);
    settings.notifications.post(QVPlaylistMovieChangedNotification{nullptr});
    settings.runLoop.advance(1);
    EXPECT_TRUE(has(Qt::magenta)) << "of a movie opened meanwhile";
    EXPECT_EQ(pictures.asked, 2);
    drag("maxAlpha", 0.5);
    EXPECT_EQ(pictures.asked, 2) << "not for each change";
    controller.widget()->hide();
    pictures.picture.fill(Qt::green);
    controller.syncWithModel();
    EXPECT_EQ(pictures.asked, 2) << "nobody sees it";
    controller.widget()->show();
    EXPECT_TRUE(has(Qt::green));
}

TEST_F(OverlayStyleSection, rows_stand_below_one_another_each_with_its_label_control_and_value) {
    controller.widget()->resize(1200, 1000);
    controller.widget()->show();
    const auto middle = [](const QWidget& widget) { return widget.geometry().center().y(); };
    int rows = 0;
    for (const auto* group : controller.widget()->findChildren<QGroupBox*>()) {
        int bottom = 0;
        std::set<int> lefts; // of the controls
        for (QWidget* control : group->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (qobject_cast<QLabel*>(control))
                continue;
            SCOPED_TRACE(control->objectName().toStdString());
            ++rows;
            EXPECT_GT(control->y(), bottom) << "in their order";
            bottom = control->geometry().bottom();
            EXPECT_TRUE(group->rect().contains(control->geometry()));
            const auto* label = group->findChild<QLabel*>(control->objectName() + "Label");
            if (!label)
                continue;
            lefts.insert(control->x());
            EXPECT_LT(label->geometry().right(), control->x());
            EXPECT_NEAR(middle(*label), middle(*control), 2);
            EXPECT_EQ(label->toolTip(), control->toolTip());
            const auto* value = group->findChild<QLabel*>(control->objectName() + "Value");
            if (!value)
                continue;
            EXPECT_GT(value->x(), control->geometry().right());
            EXPECT_NEAR(middle(*value), middle(*control), 2);
            EXPECT_TRUE(value->alignment() & Qt::AlignRight);
            auto& slider = dynamic_cast<FloatSlider&>(*control);
            for (const int place : {0, 1, slider.maximum() - 1, slider.maximum()}) {
                slider.setValue(place);
                EXPECT_GE(value->minimumWidth(), value->sizeHint().width()) << "nothing moves for it";
            }
        }
        EXPECT_LE(lefts.size(), 1U) << "in one column";
    }
    EXPECT_EQ(rows, 21);
    const auto place = [&](const char* control) { return find(control).parentWidget()->geometry(); };
    EXPECT_LT(place("textColor").bottom(), place("shadowOn").top());
    EXPECT_LT(place("shadowOn").bottom(), place("alignmentVertical").top());
    EXPECT_LT(place("textColor").right(), place("backgroungOn").left());
    EXPECT_LT(place("backgroungOn").bottom(), place("minAlpha").top());
}

TEST_F(OverlayStyleSection, a_colour_counts_while_it_is_tried_and_cancelling_brings_back_the_one_before) {
    const QVariant before = model().objectForKey(kTextColor);
    find<ColorWell>("textColor").click();
    auto* dialog = find("textColor").findChild<QColorDialog*>();
    ASSERT_TRUE(dialog);
    EXPECT_FALSE(dialog->isModal());
    EXPECT_TRUE(dialog->testOption(QColorDialog::ShowAlphaChannel));
    EXPECT_FALSE(dialog->windowTitle().isEmpty());
    dialog->setCurrentColor(QColor(255, 0, 0, 51));
    EXPECT_EQ(model().objectForKey(kTextColor), "1 0 0 0.2");
    dialog->setCurrentColor(Qt::blue);
    EXPECT_EQ(model().objectForKey(kTextColor), "0 0 1 1");
    find<ColorWell>("textColor").click();
    EXPECT_EQ(find("textColor").findChildren<QColorDialog*>().size(), 1);
    dialog->reject();
    EXPECT_EQ(model().objectForKey(kTextColor), before);
}

TEST_F(OverlayStyleSection, the_wheel_turns_no_control_that_nobody_chose) {
    for (const char* name : {"minAlpha", "textFontSize"}) {
        QWheelEvent turn(QPointF(2, 2), QPointF(2, 2), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&find(name), &turn);
        EXPECT_FALSE(turn.isAccepted()) << name;
    }
    EXPECT_EQ(posts.count, 0);
}

TEST_F(OverlayStyleSection, each_style_shows_what_it_has_a_use_for) {
    const std::set<QString> ofTexts = {"textColor", "shadowOn", "shadowOffsetX", "alignmentVertical"};
    const std::set<QString> ofPanels = {"backgroungOn", "backgroungRounded", "backgroungFrameWidth"};
    const std::set<QString> ofAll = {"backgroungColor", "fadingInInterval", "fadingOutInterval", "minAlpha",
                                     "maxAlpha"};
    const struct {
        QString key;
        bool texts;
        bool panels;
        bool stays;
        const char* verticals; // as the tags come
    } cases[] = {{kQVSubtitlesOverlayStyle, true, true, false, "20 10 0"},
                 {kQVFeedbackOverlayStyle, true, true, true, "10 0 20"},
                 {kQVOSDOverlayStyle, true, true, false, "10 0 20"},
                 {kQVVobSubOverlayStyle, false, true, false, "10 0 20"},
                 {kQVFullscreenOverlayStyle, false, false, false, "10 0 20"}};
    for (const auto& [key, texts, panels, stays, verticals] : cases) {
        SCOPED_TRACE(key.toStdString());
        controller.setupWithModelForKey(key);
        controller.widget()->show();
        const auto expect = [&](const std::set<QString>& names, bool shown) {
            for (const QString& name : names)
                EXPECT_EQ(find(name.toLatin1().constData()).isVisible(), shown) << name.toStdString();
        };
        expect(ofTexts, texts);
        expect(ofPanels, panels);
        expect(ofAll, true);
        expect({"fadingDelayInterval"}, stays);
        EXPECT_EQ(dynamic_cast<QGroupBox&>(*find("backgroungColor").parentWidget()).title(),
                  platform::localizedString(panels ? "StylePanel" : "StyleBackground"));
        EXPECT_TRUE(isEnabled("backgroungColor") || !model().values().backgroundOn);
        QStringList tags;
        auto& vertical = find<QComboBox>("alignmentVertical");
        for (int i = 0; i < vertical.count(); ++i)
            tags.append(QString::number(vertical.itemData(i).toInt(), 16));
        EXPECT_EQ(tags.join(' '), verticals);
    }
    // The window's colour has no switch that could disable it.
    model().set(&OverlayStyle::backgroundOn, false);
    controller.syncWithModel();
    EXPECT_TRUE(isEnabled("backgroungColor"));
    EXPECT_EQ(posts.count, 0);
}

TEST_F(OverlayStyleSection, every_control_has_a_name_of_its_own_a_tip_and_a_mnemonic) {
    for (const QString& language : shippedLanguages()) {
        platform::setLocalizationLanguages({language});
        QVOverlayStyleController section(settings.environment, pictures);
        section.setupWithModelForKey(kQVFeedbackOverlayStyle);
        std::set<QString> names;
        std::set<QChar> mnemonics;
        const auto mnemonic = [&](const QString& title) {
            const qsizetype mark = title.indexOf('&');
            ASSERT_GE(mark, 0) << title.toStdString();
            EXPECT_TRUE(mnemonics.insert(title.at(mark + 1).toLower()).second) << title.toStdString();
        };
        for (const char* name :
             {"textColor",         "textFontName",         "textFontSize",        "shadowOn",
              "shadowColor",       "shadowBlurRadius",     "shadowOffsetX",       "shadowOffsetY",
              "backgroungOn",      "backgroungColor",      "backgroungRounded",   "backgroungRadius",
              "backgroungFrameOn", "backgroungFrameWidth", "alignmentVertical",   "alignmentHorizontal",
              "fadingInInterval",  "fadingOutInterval",    "fadingDelayInterval", "minAlpha",
              "maxAlpha"}) {
            SCOPED_TRACE(name);
            auto* control = section.widget()->findChild<QWidget*>(name);
            ASSERT_TRUE(control);
            EXPECT_TRUE(names.insert(control->accessibleName()).second) << control->accessibleName().toStdString();
            EXPECT_FALSE(control->accessibleName().contains('&'));
            EXPECT_FALSE(control->toolTip().isEmpty());
            EXPECT_FALSE(control->toolTip().startsWith("Style")) << "not translated";
            if (const auto* box = qobject_cast<QCheckBox*>(control)) {
                mnemonic(box->text());
                continue;
            }
            const auto* label = section.widget()->findChild<QLabel*>(QString(name) + "Label");
            ASSERT_TRUE(label);
            EXPECT_EQ(label->buddy(), control);
            mnemonic(label->text());
        }
    }
    platform::setLocalizationLanguages({});
}

TEST_F(OverlayStyleSection, the_sample_follows_the_style_at_once) {
    for (const QString& key :
         {kQVSubtitlesOverlayStyle, kQVFeedbackOverlayStyle, kQVOSDOverlayStyle, kQVFullscreenOverlayStyle}) {
        SCOPED_TRACE(key.toStdString());
        controller.setupWithModelForKey(key);
        controller.widget()->resize(1000, 500);
        settings.runLoop.advance(1);
        const auto picture = [&] { return find("sample").grab().toImage(); };
        QImage before = picture();
        const auto expectChange = [&](const char* what, const std::function<void()>& change) {
            change();
            const QImage after = picture();
            EXPECT_NE(after, before) << what;
            before = after;
        };
        if (key == kQVFullscreenOverlayStyle) {
            expectChange("colour", [&] { pickColor("backgroungColor", Qt::red); });
        } else {
            expectChange("text colour", [&] { pickColor("textColor", Qt::red); });
            expectChange("size", [&] { pick("textFontSize", 36); });
            expectChange("shadow", [&] { drag("shadowOffsetX", 10); });
            expectChange("panel", [&] { find<QCheckBox>("backgroungOn").click(); });
            expectChange("place", [&] { pick("alignmentHorizontal", key == kQVOSDOverlayStyle ? 2 : 1); });
            expectChange("height", [&] { pick("alignmentVertical", 0x00); });
        }
        expectChange("opacity", [&] { drag("maxAlpha", 0.5); });
        EXPECT_EQ(picture(), before) << "nothing else moves it";
    }
}
