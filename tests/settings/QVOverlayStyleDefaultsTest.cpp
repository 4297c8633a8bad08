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
    plain->setTextFontSize(25);
    EXPECT_EQ(settings.defaults().persistentDomain()[kQVOverlayStyles].toMap(),
              (QVariantMap{{"Plain", QVariantMap{{kTextFontSize, 25}}}}));
    EXPECT_EQ(style(kQVOSDOverlayStyle)->textFontSize(), 30);
    plain->setFadingInInterval(0.3);
    EXPECT_EQ(plain->fadingInInterval(), static_cast<double>(0.3F)) << "read in single precision";
    plain->setShadowOffset({2, -2});
    plain->setTextColor(std::nullopt);
    EXPECT_EQ(plain->textFontSize(), 25);
    EXPECT_EQ(plain->shadowOffset(), QSizeF(2, -2));
    EXPECT_EQ(plain->textColor(), QColor(0, 0, 255)) << "no colour is no change";
    EXPECT_EQ(style("missing")->key(), "Plain");
    settings.defaults().setObject("Gone", kQVOSDOverlayStyle);
    EXPECT_FALSE(style(kQVOSDOverlayStyle));
}
