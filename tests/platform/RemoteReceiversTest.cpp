// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/RemoteReceivers.h"
#include "tests/support/CapturedLog.h"
#include "tests/support/ManualRunLoop.h"
#include "tests/support/RecordedEvents.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <deque>
#include <map>

using namespace platform;

namespace {

/// Devices whose nodes hold recorded events.
class RecordedDevices final : public InputDevices {
public:
    struct Node {
        std::deque<input_event> events;
        InputDevice::Read atEnd = InputDevice::Read::nothing;
        int error = 0;
        bool isGrabbed = false;
        bool isHeldByAnother = false;
        int opened = 0;
        std::function<void()> readable;
    };
    std::map<QString, Node> nodes;
    RemoteStart result = RemoteStart::listening;
    std::vector<FoundRemote> present;
    std::function<void(const FoundRemote&)> came;
    std::function<void(const QString&)> went;

    bool isAvailable() const override { return true; }
    RemoteStart watch(std::function<void(const FoundRemote&)> onCome,
                      std::function<void(const QString&)> onGo) override {
        if (result != RemoteStart::listening)
            return result;
        came = std::move(onCome);
        went = std::move(onGo);
        for (const FoundRemote& remote : present)
            came(remote);
        return result;
    }
    void unwatch() override {
        came = nullptr;
        went = nullptr;
    }
    std::unique_ptr<InputDevice> open(const QString& node, int& error) override {
        error = nodes[node].error;
        if (error)
            return nullptr;
        ++nodes[node].opened;
        return std::make_unique<Device>(nodes[node]);
    }

private:
    class Device final : public InputDevice {
    public:
        explicit Device(Node& node)
            : _node(node) {}
        ~Device() override {
            _node.readable = nullptr;
            _node.isGrabbed = false;
        }
        Read next(input_event& event) override {
            if (_node.events.empty())
                return _node.atEnd;
            event = _node.events.front();
            _node.events.pop_front();
            return Read::event;
        }
        bool grab() override { return _node.isGrabbed = !_node.isHeldByAnother; }
        void whenReadable(std::function<void()> readable) override { _node.readable = std::move(readable); }

    private:
        Node& _node;
    };
};

class Heard final : public RemoteListener {
public:
    QStringList said;
    void remoteBurst(RemoteResult result, const std::vector<RemoteEvent>& events) override {
        QString cookies;
        std::int32_t sum = 0;
        for (const RemoteEvent& event : events) {
            cookies +=
                QString("%1%2_").arg(event.cookie).arg(event.cookie == 19 ? QString("=%1").arg(event.value) : "");
            sum += event.cookie == 19 ? 0 : event.value;
        }
        said << (result == RemoteResult::failure ? QString("failure") : QString("%1 %2").arg(cookies).arg(sum));
    }
    void remoteKeyPressed(RemoteKey key) override { said << QString("key %1").arg(static_cast<int>(key)); }
    std::string taken() { return std::exchange(said, {}).join(", ").toStdString(); }
};

class RemoteReceiversTest : public testing::Test {
protected:
    RemoteReceiversTest() { RunLoop::setMain(&loop); }
    ~RemoteReceiversTest() override {
        receivers.stop();
        loop.runPending();
        RunLoop::setMain(nullptr);
    }
    void listen(RemoteKind kind = RemoteKind::infrared) {
        devices.present = {{node, "Receiver", kind}};
        ASSERT_EQ(receivers.start(RemoteAccess::exclusive, heard), RemoteStart::listening);
    }
    /// Lets the events come in at once, as the kernel hands them over.
    void send(const std::vector<input_event>& events) {
        devices.nodes[node].events.insert(devices.nodes[node].events.end(), events.begin(), events.end());
        turn();
    }
    /// As often as the run loop would call.
    void turn() {
        for (int pass = 0; pass < 1000 && devices.nodes[node].readable; ++pass) {
            devices.nodes[node].readable();
            loop.runPending();
            if (devices.nodes[node].events.empty())
                return;
        }
    }
    void press(std::uint16_t code) { send(recorded::key(code, 1)); }
    void release(std::uint16_t code) { send(recorded::key(code, 0)); }

    const QString node = "/dev/input/event5";
    ManualRunLoop loop;
    CapturedLog log;
    RecordedDevices devices;
    Heard heard;
    RemoteReceivers receivers{devices};
};

} // namespace

TEST_F(RemoteReceiversTest, each_button_goes_out_as_its_burst_pressed_and_released) {
    listen();
    const std::string right = "14_9_6_5_14_9_6_5_", left = "14_10_6_5_14_10_6_5_", menu = "14_7_6_5_14_7_6_5_",
                      play = "14_8_6_5_14_8_6_5_", sleep = "18_14_6_5_18_14_6_5_";
    const struct {
        std::uint16_t key;
        double heldFor;
        std::string atOnce, afterTheDelay, atTheRelease;
    } cases[] = {
        {KEY_VOLUMEUP, 1, "14_12_11_6_5_ 1", "", "14_12_11_6_5_ 0"},
        {KEY_UP, 0.1, "14_12_11_6_5_ 1", "", "14_12_11_6_5_ 0"},
        {KEY_VOLUMEDOWN, 1, "14_13_11_6_5_ 1", "", "14_13_11_6_5_ 0"},
        {KEY_DOWN, 0.1, "14_13_11_6_5_ 1", "", "14_13_11_6_5_ 0"},
        {KEY_MENU, 0.39, "", "", menu + " 1, " + menu + " 0"},
        {KEY_PLAYPAUSE, 0.39, "", "", play + " 1, " + play + " 0"},
        {KEY_RIGHT, 0.39, "", "", right + " 1, " + right + " 0"},
        {KEY_LEFT, 0.39, "", "", left + " 1, " + left + " 0"},
        {KEY_RIGHT, 0.41, "", "14_6_5_4_2_ 1", "14_6_5_4_2_ 0"},
        {KEY_LEFT, 0.41, "", "14_6_5_3_2_ 1", "14_6_5_3_2_ 0"},
        {KEY_MENU, 0.41, "", "14_6_5_14_6_5_ 1", "14_6_5_14_6_5_ 0"},
        {KEY_PLAYPAUSE, 0.41, "", sleep + " 1", sleep + " 0"},
        {KEY_SLEEP, 0.1, sleep + " 1", "", sleep + " 0"},
        {KEY_POWER, 1, "", "", ""},
    };
    for (const auto& c : cases) {
        press(c.key);
        EXPECT_EQ(heard.taken(), c.atOnce) << c.key;
        for (double held = 0; held < c.heldFor; held += 0.03) { // the kernel repeats held keys by itself
            loop.advance(std::min(0.03, c.heldFor - held));
            send(recorded::key(c.key, 2));
        }
        EXPECT_EQ(heard.taken(), c.afterTheDelay) << c.key;
        release(c.key);
        EXPECT_EQ(heard.taken(), c.atTheRelease) << c.key;
    }
}

TEST_F(RemoteReceiversTest, other_keys_go_out_as_themselves_when_pressed) {
    listen();
    const std::pair<std::vector<std::uint16_t>, RemoteKey> cases[] = {
        {{KEY_0, KEY_NUMERIC_0}, RemoteKey::number0},
        {{KEY_1, KEY_NUMERIC_1}, RemoteKey::number1},
        {{KEY_9, KEY_NUMERIC_9}, RemoteKey::number9},
        {{KEY_RED}, RemoteKey::red},
        {{KEY_BLUE}, RemoteKey::blue},
        {{KEY_FASTFORWARD}, RemoteKey::fastForward},
        {{KEY_NEXT, KEY_NEXTSONG}, RemoteKey::next},
        {{KEY_STOP, KEY_STOPCD}, RemoteKey::stop},
        {{KEY_PLAY, KEY_PLAYCD}, RemoteKey::play},
        {{KEY_PAUSE, KEY_PAUSECD}, RemoteKey::pause},
        {{KEY_OK, KEY_SELECT, KEY_ENTER, KEY_KPENTER}, RemoteKey::select},
        {{KEY_CHANNELUP}, RemoteKey::channelUp},
        {{KEY_MUTE}, RemoteKey::mute},
    };
    for (const auto& [codes, key] : cases) {
        for (const std::uint16_t code : codes) {
            press(code);
            send(recorded::key(code, 2));
            loop.advance(1);
            release(code);
            EXPECT_EQ(heard.taken(), "key " + std::to_string(static_cast<int>(key))) << code;
        }
    }
    press(KEY_FORWARD);
    EXPECT_EQ(heard.taken(), "") << "it turns pages on all but the receiver of a Macintosh";
    receivers.stop();
    loop.runPending();
    listen(RemoteKind::appleInfrared);
    press(KEY_FORWARD);
    release(KEY_FORWARD);
    press(KEY_BACK);
    loop.advance(0.5);
    release(KEY_BACK);
    EXPECT_EQ(heard.taken(), "14_9_6_5_14_9_6_5_ 1, 14_9_6_5_14_9_6_5_ 0, 14_6_5_3_2_ 1, 14_6_5_3_2_ 0");
}

TEST_F(RemoteReceiversTest, a_scan_code_that_tells_the_remote_comes_ahead_of_its_button_once) {
    listen();
    send(recorded::key(KEY_VOLUMEUP, 1, 0x87EE2A0B));
    EXPECT_EQ(heard.taken(), "19=42_14_12_11_6_5_ 1");
    release(KEY_VOLUMEUP);
    send(recorded::key(KEY_MENU, 1, 0x87EE2A03));
    release(KEY_MENU);
    EXPECT_EQ(heard.taken().find("19"), std::string::npos) << "the same remote again";
    send(recorded::key(KEY_VOLUMEUP, 1, 0x87EE070B));
    EXPECT_EQ(heard.taken(), "19=7_14_12_11_6_5_ 1");
    send(recorded::key(KEY_VOLUMEUP, 0));
    send(recorded::key(KEY_VOLUMEUP, 1, 0x1D0B));
    EXPECT_EQ(heard.taken().find("19"), std::string::npos) << "other remotes have no identity";
}

TEST_F(RemoteReceiversTest, what_has_arrived_is_read_before_a_key_counts_as_held) {
    listen();
    press(KEY_RIGHT);
    // The program was busy: the release waits to be read as the delay ends.
    const auto late = recorded::key(KEY_RIGHT, 0);
    devices.nodes[node].events.assign(late.begin(), late.end());
    loop.advance(0.5);
    EXPECT_EQ(heard.taken(), "14_9_6_5_14_9_6_5_ 1, 14_9_6_5_14_9_6_5_ 0");
    // And two keys at once.
    press(KEY_RIGHT);
    loop.advance(0.2);
    press(KEY_LEFT);
    loop.advance(0.3);
    EXPECT_EQ(heard.taken(), "14_6_5_4_2_ 1");
    loop.advance(0.2);
    EXPECT_EQ(heard.taken(), "14_6_5_3_2_ 1");
}

TEST_F(RemoteReceiversTest, a_remote_that_goes_mid_press_has_released) {
    const struct {
        const char* name;
        std::function<void()> go;
        const char* further;
    } ways[] = {
        {"udev says so", [this] { devices.went(node); }, ""},
        {"its node ends", [this] { devices.nodes[node].atEnd = InputDevice::Read::gone, turn(); }, ""},
        {"its node fails", [this] { devices.nodes[node].atEnd = InputDevice::Read::failed, turn(); }, ", failure"},
        {"nobody listens any more", [this] { receivers.stop(); }, ""},
        {"events were lost", [this] { send({recorded::event(EV_SYN, SYN_DROPPED, 0)}); }, ""},
    };
    for (const auto& way : ways) {
        devices.nodes.clear();
        listen();
        press(KEY_VOLUMEUP);
        press(KEY_MENU); // has not gone out yet, and never does
        EXPECT_EQ(heard.taken(), "14_12_11_6_5_ 1");
        way.go();
        loop.advance(1);
        EXPECT_EQ(heard.taken(), std::string("14_12_11_6_5_ 0") + way.further) << way.name;
        receivers.stop();
        loop.runPending();
        EXPECT_FALSE(devices.nodes[node].isGrabbed) << way.name;
    }
}

TEST_F(RemoteReceiversTest, the_rest_of_a_report_with_lost_events_is_left_out) {
    listen();
    send({recorded::event(EV_SYN, SYN_DROPPED, 0), recorded::event(EV_KEY, KEY_MUTE, 1),
          recorded::event(EV_SYN, SYN_REPORT, 0)});
    EXPECT_EQ(heard.taken(), "");
    press(KEY_MUTE);
    EXPECT_FALSE(heard.taken().empty());
}

TEST_F(RemoteReceiversTest, remotes_come_and_go_while_the_program_runs) {
    ASSERT_EQ(receivers.start(RemoteAccess::exclusive, heard), RemoteStart::listening);
    const FoundRemote remote{node, "Receiver", RemoteKind::infrared};
    devices.came(remote);
    devices.came(remote); // it may have changed
    EXPECT_EQ(devices.nodes[node].opened, 1);
    EXPECT_TRUE(devices.nodes[node].isGrabbed);
    press(KEY_MUTE);
    EXPECT_FALSE(heard.taken().empty());
    devices.went(node);
    loop.runPending();
    EXPECT_FALSE(devices.nodes[node].readable);
    devices.came(remote);
    press(KEY_MUTE);
    EXPECT_FALSE(heard.taken().empty());

    receivers.stop();
    loop.runPending();
    devices.present = {remote};
    receivers.start(RemoteAccess::withOthers, heard);
    EXPECT_FALSE(devices.nodes[node].isGrabbed) << "others may listen, too";
    devices.result = RemoteStart::noEventSource;
    EXPECT_EQ(receivers.start(RemoteAccess::exclusive, heard), RemoteStart::noEventSource);
}

TEST_F(RemoteReceiversTest, what_may_not_be_opened_is_said_once_and_what_another_holds_is_left_to_it) {
    devices.nodes["a"].error = devices.nodes["b"].error = EACCES;
    devices.nodes["c"].error = ENODEV;
    devices.nodes["d"].isHeldByAnother = true;
    for (const char* name : {"a", "b", "c", "d"})
        devices.present.push_back({name, "Receiver", RemoteKind::infrared});
    receivers.start(RemoteAccess::exclusive, heard);
    ASSERT_EQ(log.lines().size(), 2) << log.lines().join('\n').toStdString();
    EXPECT_TRUE(log.lines()[0].contains("\"Receiver\" (a) may not be read"));
    EXPECT_TRUE(log.lines()[1].contains("(d) is held by another program"));
    // udev has let the user in meanwhile.
    devices.nodes["a"].error = 0;
    devices.came(devices.present.front());
    EXPECT_TRUE(devices.nodes["a"].isGrabbed);
}

TEST_F(RemoteReceiversTest, a_device_that_floods_is_dropped_until_it_is_plugged_in_again) {
    listen();
    std::vector<input_event> many;
    for (int i = 0; i < RemoteReceivers::maximumEventsInSecond; ++i)
        many.push_back(recorded::event(EV_MSC, MSC_SCAN, i));
    devices.nodes[node].events.assign(many.begin(), many.end());
    devices.nodes[node].readable();
    EXPECT_EQ(devices.nodes[node].events.size(), many.size() - RemoteReceivers::maximumEventsInPass)
        << "others have their turn";
    turn();
    EXPECT_EQ(log.lines().size(), 0);
    loop.advance(1.1);
    send(many);
    EXPECT_TRUE(devices.nodes[node].readable) << "it has a second for as many again";
    press(KEY_VOLUMEUP);
    loop.runPending();
    EXPECT_FALSE(devices.nodes[node].readable);
    EXPECT_EQ(log.count("sends more than anybody presses"), 1);
    const FoundRemote remote = devices.present.front();
    devices.came(remote);
    EXPECT_EQ(devices.nodes[node].opened, 1);
    devices.went(node);
    devices.came(remote);
    EXPECT_EQ(devices.nodes[node].opened, 2);
}

TEST(RemoteKinds, a_remote_is_what_a_receiver_makes_or_what_calls_itself_one_and_is_no_keyboard) {
    const struct {
        InputDeviceFacts facts;
        std::optional<RemoteKind> kind;
    } cases[] = {
        {{.belongsToReceiver = true, .name = "Media Center Ed. eHome Infrared", .isKeyboard = true},
         RemoteKind::infrared},
        {{.driver = "appleir", .name = "Apple Computer, Inc. IR Receiver"}, RemoteKind::appleInfrared},
        {{.driver = "hid-generic", .name = "Media REMOTE Consumer Control", .hasKeys = true}, RemoteKind::named},
        {{.name = "Remote Desktop Keyboard", .hasKeys = true, .isKeyboard = true}, std::nullopt},
        {{.name = "Air Remote", .hasKeys = true, .isPointer = true}, std::nullopt},
        {{.name = "Remote motion sensor"}, std::nullopt},
        {{.driver = "hid-generic", .name = "USB Keyboard Consumer Control", .hasKeys = true}, std::nullopt},
    };
    for (const auto& c : cases)
        EXPECT_EQ(remoteKindOf(c.facts), c.kind) << c.facts.name.toStdString();
}
