// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/GraphicsDevice.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>
#include <string>

TEST(GraphicsDevice, is_a_render_node_or_the_control_file_of_a_driver) {
    const struct {
        const char* file;
        bool isDevice;
    } cases[] = {{"dri/renderD128", true}, {"nvidiactl", true}, {"dri/card0", false}, {"renderD128", false}};
    for (const auto& c : cases) {
        const QTemporaryDir folder;
        const std::filesystem::path devices = folder.path().toStdString();
        EXPECT_FALSE(platform::hasGraphicsDevice(devices)) << "no folder of devices";
        std::filesystem::create_directory(devices / "dri");
        EXPECT_FALSE(platform::hasGraphicsDevice(devices));
        std::ofstream(devices / c.file) << "";
        EXPECT_EQ(platform::hasGraphicsDevice(devices), c.isDevice) << c.file;
    }
}
