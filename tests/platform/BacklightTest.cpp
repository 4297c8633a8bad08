// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/Backlight.h"
#include "tests/support/Files.h"

#include <cerrno>
#include <limits>
#include <string>
#include <utility>
#include <vector>

using platform::Backlight;

namespace {

constexpr float unknown = std::numeric_limits<float>::infinity();

class BacklightTest : public testing::Test {
protected:
    /// The files of the light; a null text for one that is not there.
    void setLight(const QByteArray& level, const QByteArray& maximum) {
        QDir(folder.filePath("light")).removeRecursively();
        QDir(folder.path()).mkdir("light");
        if (!level.isNull())
            writeFile(folder.filePath("light/brightness"), level);
        if (!maximum.isNull())
            writeFile(folder.filePath("light/max_brightness"), maximum);
    }
    QByteArray level() const {
        QFile file(folder.filePath("light/brightness"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    std::vector<std::pair<QString, unsigned>> asked;
    Backlight light{folder.path(), [this](const QString& name, unsigned level) {
                        asked.emplace_back(name, level);
                        return true;
                    }};
};

} // namespace

TEST_F(BacklightTest, only_a_built_in_screen_with_a_readable_light_has_a_brightness) {
    int error = -1;
    EXPECT_EQ(light.brightness("eDP-1", error), unknown) << "no light";
    EXPECT_EQ(error, 0);
    const struct {
        QByteArray level;
        QByteArray maximum;
        const char* screen;
        float brightness;
        int error;
    } cases[] = {{"50\n", "200\n", "eDP-1", 0.25F, 0},
                 {"50\n", "200\n", "LVDS1", 0.25F, 0},
                 {"0", "200", "DSI-1", 0, 0},
                 {"250", "200", "eDP-1", 1, 0},
                 {"50", "200", "HDMI-1", unknown, 0},
                 {"50", "0", "eDP-1", unknown, 0},
                 {"50", {}, "eDP-1", unknown, ENOENT},
                 {{}, "200", "eDP-1", unknown, ENOENT},
                 {"", "200", "eDP-1", unknown, EINVAL},
                 {"-5", "200", "eDP-1", unknown, EINVAL},
                 {"50", "bad", "eDP-1", unknown, EINVAL}};
    for (const auto& [level, maximum, screen, brightness, code] : cases) {
        setLight(level, maximum);
        const std::string where = (level + '/' + maximum + ' ' + screen).toStdString();
        EXPECT_EQ(light.brightness(screen, error), brightness) << where;
        EXPECT_EQ(error, code) << where;
    }
}

TEST_F(BacklightTest, a_level_is_written_or_else_asked_of_the_login_manager) {
    setLight("50", "200");
    EXPECT_TRUE(light.setBrightness("eDP-1", 0.499F));
    EXPECT_EQ(level(), "100");
    for (const float outside : {-0.1F, 1.1F, std::numeric_limits<float>::quiet_NaN()})
        EXPECT_FALSE(light.setBrightness("eDP-1", outside)) << outside;
    EXPECT_FALSE(light.setBrightness("HDMI-1", 1));
    EXPECT_EQ(level(), "100");
    EXPECT_TRUE(asked.empty());

    setLight({}, "200"); // can't be written, like one that belongs to root
    EXPECT_TRUE(light.setBrightness("eDP-1", 1));
    EXPECT_EQ(asked, (std::vector<std::pair<QString, unsigned>>{{"light", 200}}));
    EXPECT_FALSE(QFile::exists(folder.filePath("light/brightness"))) << "nothing is made there";
    EXPECT_FALSE(Backlight(folder.path()).setBrightness("eDP-1", 1));
}
