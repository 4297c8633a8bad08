// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/QVOverlayStyleDefaults.h"
#include "settings/SettingsKeys.h"
#include "tests/support/TestSettings.h"

#include <gtest/gtest.h>

namespace {

class QVOverlayStyleDefaultsTest : public testing::Test {
protected:
    QVOverlayStyleDefaultsTest() {
        settings.defaults().registerDefaults(
            {{kQVOverlayDefaultStyles, QVariantMap{{"Plain", QVariantMap{{kTextColor, "0 0 1 1"}, {kTextFontSize, 20}}},
                                                   {"Other", QVariantMap{{kTextFontSize, 30}}}}},
             {kQVDefaultOverlayStyle, "Plain"},
             {kQVOSDOverlayStyle, "Other"}});
    }

    std::optional<QVOverlayStyleDefaults> style(const QString& selector) {
        return QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(settings.defaults(), selector);
    }

    TestSettings settings;
};

} // namespace

TEST_F(QVOverlayStyleDefaultsTest, a_change_covers_its_own_value_alone) {
    auto plain = style(kQVDefaultOverlayStyle);
    plain->set(&OverlayStyle::textFontSize, 25);
    EXPECT_EQ(settings.defaults().persistentDomain()[kQVOverlayStyles].toMap(),
              (QVariantMap{{"Plain", QVariantMap{{kTextFontSize, 25}}}}));
    EXPECT_EQ(style(kQVOSDOverlayStyle)->values().textFontSize, 30);
    plain->set(&OverlayStyle::textColor, std::nullopt);
    EXPECT_EQ(plain->values().textFontSize, 25);
    EXPECT_EQ(plain->values().textColor, QColor(0, 0, 255)) << "no colour is no change";
    EXPECT_EQ(style("missing")->key(), "Plain");
    settings.defaults().setObject("Gone", kQVOSDOverlayStyle);
    EXPECT_FALSE(style(kQVOSDOverlayStyle));
}

TEST_F(QVOverlayStyleDefaultsTest, what_is_registered_stays_whatever_the_user_puts_in_its_place) {
    settings.defaults().setObject(QVariantMap(), kQVOverlayDefaultStyles);
    const auto plain = style(kQVDefaultOverlayStyle);
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->values().textFontSize, 20);
    EXPECT_EQ(plain->objectForKey(kTextFontSize), 20);
}

TEST_F(QVOverlayStyleDefaultsTest, a_style_of_nothing_is_what_is_read_where_nothing_is_stored) {
    for (const OverlayStyle::Entry& entry : OverlayStyle::entries()) {
        OverlayStyle style;
        style.read(entry.field, QVariant());
        EXPECT_EQ(OverlayStyle().stored(entry.field), style.stored(entry.field)) << entry.key.toStdString();
    }
}

TEST_F(QVOverlayStyleDefaultsTest, each_value_is_stored_in_its_own_form_under_its_own_key) {
    auto plain = style(kQVDefaultOverlayStyle);
    plain->set(&OverlayStyle::textColor, QColor(Qt::red));
    plain->set(&OverlayStyle::textFontName, "Serif");
    plain->set(&OverlayStyle::shadowOffset, {2, -2});
    plain->set(&OverlayStyle::shadowBlurRadius, 1.5F);
    plain->set(&OverlayStyle::frameOn, true);
    plain->set(&OverlayStyle::fadingInInterval, 0.3);
    EXPECT_EQ(settings.defaults().persistentDomain()[kQVOverlayStyles].toMap()["Plain"].toMap(),
              (QVariantMap{{"TextColor", "1 0 0 1"},
                           {"TextFontName", "Serif"},
                           {"ShadowOffset", "2 -2"},
                           {"ShadowRadius", 1.5F},
                           {"FrameOn", true},
                           {"FadingInInterval", 0.3F}}));
    const OverlayStyle values = plain->values();
    EXPECT_EQ(values.textColor, QColor(Qt::red));
    EXPECT_EQ(values.textFontName, "Serif");
    EXPECT_EQ(values.shadowOffset, QSizeF(2, -2));
    EXPECT_EQ(values.fadingInInterval, static_cast<double>(0.3F)) << "kept in single precision";
    EXPECT_EQ(values.shadowColor, std::nullopt) << "in neither style";
    EXPECT_EQ(values.maxAlpha, 0);
}
