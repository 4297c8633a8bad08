// SPDX-License-Identifier: GPL-3.0-or-later
// Remotes found by udev and followed as they come and go, in a /sys and with messages of a udev that umockdev makes up.
#pragma push_macro("signals")
#undef signals
#include <umockdev.h>
#pragma pop_macro("signals")

#include "platform/desktop/linux/UdevInputDevices.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using platform::FoundRemote;
using platform::RemoteKind;
using platform::RemoteStart;

namespace {

struct Unreferenced {
    void operator()(void* object) const { g_object_unref(object); }
};

class UdevWatch : public testing::Test {
protected:
    void add(const std::string& description) const {
        GError* error = nullptr;
        umockdev_testbed_add_from_string(bed.get(), description.c_str(), &error);
        ASSERT_FALSE(error) << error->message;
    }
    /// An input device of that name, and its event node below it.
    void addInput(const std::string& parent, int number, const std::string& name, const std::string& kinds) const {
        const std::string text = std::to_string(number);
        const std::string input = parent + "/input/input" + text;
        add("P: " + input + "\nE: SUBSYSTEM=input\nE: NAME=\"" + name + "\"\n" + kinds + "A: name=" + name + "\n");
        add("P: " + input + "/event" + text + "\nN: input/event" + text + "\nE: DEVNAME=/dev/input/event" + text +
            "\nE: SUBSYSTEM=input\n" + kinds);
    }
    void tell(const std::string& device, const char* action) const {
        umockdev_testbed_uevent(bed.get(), ("/sys" + device).c_str(), action);
    }
    RemoteStart watch() {
        return devices.watch(
            [this](const FoundRemote& remote) {
                said.push_back("came " + remote.node.toStdString() + ' ' + remote.name.toStdString() + ' ' +
                               std::to_string(static_cast<int>(remote.kind)));
            },
            [this](const QString& node) { said.push_back("went " + node.toStdString()); });
    }
    bool hears(const std::string& wanted) {
        const QDeadlineTimer deadline(10'000);
        while (!deadline.hasExpired() && std::ranges::find(said, wanted) == said.end())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        return std::ranges::find(said, wanted) != said.end();
    }

    static constexpr const char* keys = "E: ID_INPUT=1\nE: ID_INPUT_KEY=1\n";
    static constexpr const char* keyboard = "E: ID_INPUT=1\nE: ID_INPUT_KEY=1\nE: ID_INPUT_KEYBOARD=1\n";
    static constexpr const char* infrared = "/devices/pci0/rc/rc0";
    static constexpr const char* apple = "/devices/pci0/0003:05AC:8242.0001";
    static constexpr const char* wireless = "/devices/pci0/usb1";

    int argumentCount = 1;
    char program[5] = "test";
    char* arguments[2] = {program, nullptr};
    QCoreApplication application{argumentCount, arguments};
    std::unique_ptr<UMockdevTestbed, Unreferenced> bed{umockdev_testbed_new()};
    platform::UdevInputDevices devices;
    std::vector<std::string> said;
};

std::string came(int number, const std::string& name, RemoteKind kind) {
    return "came /dev/input/event" + std::to_string(number) + ' ' + name + ' ' + std::to_string(static_cast<int>(kind));
}

} // namespace

TEST_F(UdevWatch, finds_the_remotes_that_are_there_and_follows_those_that_come_and_go) {
    add(std::string("P: ") + infrared + "\nE: SUBSYSTEM=rc\n");
    addInput(infrared, 5, "Receiver", keys);
    add(std::string("P: ") + apple + "\nE: SUBSYSTEM=hid\nL: driver=../../../bus/hid/drivers/appleir\n");
    addInput(apple, 6, "Mac", keys);
    addInput(wireless, 7, "Keyboard with Remote", keyboard);
    ASSERT_EQ(watch(), RemoteStart::listening);
    std::ranges::sort(said);
    EXPECT_EQ(said,
              (std::vector{came(5, "Receiver", RemoteKind::infrared), came(6, "Mac", RemoteKind::appleInfrared)}));

    said.clear();
    addInput(wireless, 8, "Remote Control", keys);
    const std::string device = std::string(wireless) + "/input/input8/event8";
    tell(device, "add");
    EXPECT_TRUE(hears(came(8, "Remote Control", RemoteKind::named)));
    said.clear();
    tell(device, "change");
    EXPECT_TRUE(hears(came(8, "Remote Control", RemoteKind::named))) << "it may be opened now";
    tell(device, "remove");
    EXPECT_TRUE(hears("went /dev/input/event8"));

    devices.unwatch();
    said.clear();
    tell(device, "add");
    QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    EXPECT_TRUE(said.empty());
}
