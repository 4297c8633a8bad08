// SPDX-License-Identifier: GPL-3.0-or-later
// The real reading of event nodes: a pipe stands for the node, and what the kernel would answer about it is answered
// here, in place of the system calls that the library makes.
#include "platform/desktop/linux/UdevInputDevices.h"
#include "tests/support/RecordedEvents.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <set>
#include <sstream>

using platform::InputDevice;

namespace {

/// What the kernel knows of the node.
struct Node {
    ino_t inode = 0;
    std::set<int> heldKeys;
    bool isGone = false;
    bool isHeldByAnother = false;
} node;

bool isNode(int descriptor) {
    struct stat facts {};
    return node.inode != 0 && ::fstat(descriptor, &facts) == 0 && S_ISFIFO(facts.st_mode) && facts.st_ino == node.inode;
}

int answer(unsigned long request, void* argument) {
    if (request == EVIOCGRAB) {
        errno = EBUSY;
        return node.isHeldByAnother ? -1 : 0;
    }
    auto* const bytes = static_cast<unsigned char*>(argument);
    const unsigned size = _IOC_SIZE(request);
    std::memset(bytes, 0, size);
    const auto set = [&](int bit) { bytes[bit / 8] = static_cast<unsigned char>(bytes[bit / 8] | (1 << (bit % 8))); };
    switch (_IOC_NR(request)) {
    case _IOC_NR(EVIOCGBIT(0, 0)):
        for (const int type : {EV_SYN, EV_KEY, EV_MSC})
            set(type);
        break;
    case _IOC_NR(EVIOCGBIT(EV_KEY, 0)):
        for (const int key : {KEY_VOLUMEUP, KEY_MENU, KEY_MUTE})
            set(key);
        break;
    case _IOC_NR(EVIOCGBIT(EV_MSC, 0)):
        set(MSC_SCAN);
        break;
    case _IOC_NR(EVIOCGKEY(0)):
        for (const int key : node.heldKeys)
            set(key);
        break;
    default:
        break;
    }
    return static_cast<int>(size);
}

} // namespace

#pragma GCC visibility push(default)
extern "C" {

int ioctl(int descriptor, unsigned long request, ...) noexcept {
    va_list arguments;
    va_start(arguments, request);
    void* const argument = va_arg(arguments, void*);
    va_end(arguments);
    return isNode(descriptor) ? answer(request, argument)
                              : static_cast<int>(::syscall(SYS_ioctl, descriptor, request, argument));
}

ssize_t read(int descriptor, void* bytes, size_t size) {
    if (!node.isGone || !isNode(descriptor))
        return ::syscall(SYS_read, descriptor, bytes, size);
    errno = ENODEV;
    return -1;
}

} // extern "C"
#pragma GCC visibility pop

namespace {

class UdevInputDevicesTest : public testing::Test {
protected:
    void SetUp() override {
        const QByteArray path = QFile::encodeName(folder.filePath("event9"));
        ASSERT_EQ(::mkfifo(path.constData(), 0600), 0);
        kernel = ::open(path.constData(), O_RDWR | O_CLOEXEC); // also keeps the pipe from ending
        struct stat facts {};
        ASSERT_EQ(::fstat(kernel, &facts), 0);
        node = {facts.st_ino, {}, false, false};
        int error = 0;
        device = devices.open(folder.filePath("event9"), error);
        ASSERT_TRUE(device) << std::strerror(error);
    }
    void TearDown() override {
        device.reset();
        node = {};
        ::close(kernel);
    }
    void send(const std::vector<input_event>& events) const {
        const auto size = static_cast<ssize_t>(events.size() * sizeof(input_event));
        ASSERT_EQ(::write(kernel, events.data(), static_cast<std::size_t>(size)), size);
    }
    /// "type:code=value" of each event there is, and how it ends.
    std::string read() const {
        std::ostringstream text;
        input_event event{};
        InputDevice::Read result{};
        while ((result = device->next(event)) == InputDevice::Read::event)
            text << event.type << ':' << event.code << '=' << event.value << ' ';
        text << (result == InputDevice::Read::nothing ? "nothing"
                 : result == InputDevice::Read::gone  ? "gone"
                                                      : "failed");
        return text.str();
    }

    QTemporaryDir folder;
    int kernel = -1;
    platform::UdevInputDevices devices;
    std::unique_ptr<InputDevice> device;
};

} // namespace

TEST_F(UdevInputDevicesTest, events_are_read_until_the_device_has_gone) {
    EXPECT_EQ(read(), "nothing");
    send(recorded::key(KEY_VOLUMEUP, 1, 42));
    EXPECT_EQ(read(), "4:4=42 1:115=1 0:0=0 nothing");
    node.isGone = true; // while the key is down
    EXPECT_EQ(read(), "gone");
}

TEST_F(UdevInputDevicesTest, lost_events_are_caught_up_with_and_followed_by_whole_reports) {
    const struct {
        std::set<int> heldAfterwards;
        const char* read;
    } cases[] = {
        {{}, "0:3=0 1:115=0 0:0=0 0:0=0 nothing"},
        // The device stands where it stood: nothing but the end of the report is missing.
        {{KEY_VOLUMEUP}, "0:3=0 0:0=0 nothing"},
        {{KEY_VOLUMEUP, KEY_MUTE}, "0:3=0 1:113=1 0:0=0 0:0=0 nothing"},
    };
    for (const auto& c : cases) {
        node.heldKeys.clear();
        send(recorded::key(KEY_MUTE, 0));
        send(recorded::key(KEY_VOLUMEUP, 0));
        read();
        send(recorded::key(KEY_VOLUMEUP, 1));
        EXPECT_EQ(read(), "1:115=1 0:0=0 nothing");
        node.heldKeys = c.heldAfterwards;
        std::vector<input_event> flood{recorded::event(EV_SYN, SYN_DROPPED, 0), recorded::event(EV_KEY, KEY_MENU, 1)};
        flood.push_back(recorded::event(EV_SYN, SYN_REPORT, 0));
        send(flood);
        EXPECT_EQ(read(), c.read);
        send(recorded::key(KEY_MENU, 1));
        send(recorded::key(KEY_MENU, 0));
        EXPECT_EQ(read(), "1:139=1 0:0=0 1:139=0 0:0=0 nothing") << "the next press is whole";
    }
}

TEST_F(UdevInputDevicesTest, a_device_is_kept_from_others_unless_one_of_them_did_so) {
    node.isHeldByAnother = true;
    EXPECT_FALSE(device->grab());
    node.isHeldByAnother = false;
    EXPECT_TRUE(device->grab());
    int error = 0;
    EXPECT_FALSE(devices.open(folder.filePath("event10"), error));
    EXPECT_EQ(error, ENOENT);
}
