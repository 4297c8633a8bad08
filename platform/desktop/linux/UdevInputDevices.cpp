// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/UdevInputDevices.h"

#include <QFile>
#include <QSocketNotifier>
#include <QString>

#include <fcntl.h>
#include <libevdev/libevdev.h>
#include <libudev.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <utility>

namespace platform {

namespace {

template <auto Function>
struct Freed {
    template <class Object>
    void operator()(Object* object) const {
        Function(object);
    }
};
using Udev = std::unique_ptr<udev, Freed<udev_unref>>;
using UdevMonitor = std::unique_ptr<udev_monitor, Freed<udev_monitor_unref>>;
using UdevEnumerate = std::unique_ptr<udev_enumerate, Freed<udev_enumerate_unref>>;
using UdevDevice = std::unique_ptr<udev_device, Freed<udev_device_unref>>;
using EvdevDevice = std::unique_ptr<libevdev, Freed<libevdev_free>>;

struct DeletedLater {
    void operator()(QSocketNotifier* notifier) const {
        notifier->setEnabled(false);
        notifier->deleteLater(); // it may be on its way here
    }
};
using Notifier = std::unique_ptr<QSocketNotifier, DeletedLater>;

Notifier followed(int descriptor, std::function<void()> readable) {
    Notifier notifier(new QSocketNotifier(descriptor, QSocketNotifier::Read));
    QObject::connect(notifier.get(), &QSocketNotifier::activated, notifier.get(), std::move(readable));
    return notifier;
}

class EvdevInputDevice final : public InputDevice {
public:
    /// Takes the descriptor over.
    EvdevInputDevice(int descriptor, EvdevDevice device)
        : _descriptor(descriptor)
        , _device(std::move(device)) {}
    ~EvdevInputDevice() override {
        _notifier.reset();
        _device.reset();
        ::close(_descriptor);
    }

    Read next(input_event& event) override {
        const auto flag = _isCatchingUp ? LIBEVDEV_READ_FLAG_SYNC : LIBEVDEV_READ_FLAG_NORMAL;
        const int result = libevdev_next_event(_device.get(), flag, &event);
        if (result == LIBEVDEV_READ_STATUS_SUCCESS)
            return Read::event;
        if (result == LIBEVDEV_READ_STATUS_SYNC) {
            _isCatchingUp = true;
            return Read::event;
        }
        if (result == -EAGAIN && std::exchange(_isCatchingUp, false)) {
            // From here on the reports are whole again.
            event = {};
            event.type = EV_SYN;
            event.code = SYN_REPORT;
            return Read::event;
        }
        return result == -EAGAIN || result == -EINTR ? Read::nothing : result == -ENODEV ? Read::gone : Read::failed;
    }

    bool grab() override { return libevdev_grab(_device.get(), LIBEVDEV_GRAB) == 0; }

    void whenReadable(std::function<void()> readable) override {
        _notifier = followed(_descriptor, std::move(readable));
    }

private:
    int _descriptor;
    EvdevDevice _device;
    Notifier _notifier;
    bool _isCatchingUp = false;
};

bool hasFlag(udev_device* device, const char* property) {
    const char* value = udev_device_get_property_value(device, property);
    return value && std::string_view(value) == "1";
}

/// The remote that an event node stands for; no node for other devices.
FoundRemote remoteAt(udev_device* device) {
    const char* node = udev_device_get_devnode(device);
    const char* name = udev_device_get_sysname(device);
    if (!node || !name || !std::string_view(name).starts_with("event"))
        return {};
    // These belong to the device itself.
    InputDeviceFacts facts;
    facts.belongsToReceiver = udev_device_get_parent_with_subsystem_devtype(device, "rc", nullptr) != nullptr;
    if (udev_device* hid = udev_device_get_parent_with_subsystem_devtype(device, "hid", nullptr))
        facts.driver = QString::fromUtf8(udev_device_get_driver(hid));
    if (udev_device* input = udev_device_get_parent_with_subsystem_devtype(device, "input", nullptr))
        facts.name = QString::fromUtf8(udev_device_get_sysattr_value(input, "name"));
    facts.hasKeys = hasFlag(device, "ID_INPUT_KEY");
    facts.isKeyboard = hasFlag(device, "ID_INPUT_KEYBOARD");
    facts.isPointer = hasFlag(device, "ID_INPUT_MOUSE") || hasFlag(device, "ID_INPUT_TOUCHPAD");
    const auto kind = remoteKindOf(facts);
    return kind ? FoundRemote{QString::fromUtf8(node), facts.name, *kind} : FoundRemote{};
}

} // namespace

class UdevInputDevices::Watch {
public:
    Watch(std::function<void(const FoundRemote&)> came, std::function<void(const QString&)> went)
        : _came(std::move(came))
        , _went(std::move(went)) {}

    RemoteStart begin() {
        if (!_udev)
            return RemoteStart::noDeviceInterface;
        if (!_monitor)
            return RemoteStart::noQueue;
        // What udev says, not the kernel: the user may open a device once udev has dealt with it.
        if (udev_monitor_filter_add_match_subsystem_devtype(_monitor.get(), "input", nullptr) < 0 ||
            udev_monitor_enable_receiving(_monitor.get()) < 0)
            return RemoteStart::noEventSource;
        const int descriptor = udev_monitor_get_fd(_monitor.get());
        if (descriptor < 0)
            return RemoteStart::noEventCallout;
        const UdevEnumerate devices(udev_enumerate_new(_udev.get()));
        if (!devices || udev_enumerate_add_match_subsystem(devices.get(), "input") < 0 ||
            udev_enumerate_scan_devices(devices.get()) < 0)
            return RemoteStart::noClassName;
        _notifier = followed(descriptor, [this] { takeChanges(); });
        udev_list_entry* entry = nullptr;
        udev_list_entry_foreach(entry, udev_enumerate_get_list_entry(devices.get())) {
            const UdevDevice device(udev_device_new_from_syspath(_udev.get(), udev_list_entry_get_name(entry)));
            if (device)
                offer(device.get());
        }
        return RemoteStart::listening;
    }

private:
    void offer(udev_device* device) {
        if (const FoundRemote remote = remoteAt(device); !remote.node.isEmpty())
            _came(remote);
    }

    void takeChanges() {
        constexpr int maximumInPass = 64;
        for (int count = 0; count < maximumInPass; ++count) {
            const UdevDevice device(udev_monitor_receive_device(_monitor.get()));
            if (!device)
                return;
            const char* action = udev_device_get_action(device.get());
            if (!action)
                continue;
            if (std::string_view(action) != "remove")
                offer(device.get());
            else if (const char* node = udev_device_get_devnode(device.get()))
                _went(QString::fromUtf8(node));
        }
    }

    std::function<void(const FoundRemote&)> _came;
    std::function<void(const QString&)> _went;
    Udev _udev{udev_new()};
    UdevMonitor _monitor{_udev ? udev_monitor_new_from_netlink(_udev.get(), "udev") : nullptr};
    Notifier _notifier;
};

UdevInputDevices::UdevInputDevices() = default;
UdevInputDevices::~UdevInputDevices() = default;

bool UdevInputDevices::isAvailable() const {
    return QFile::exists(QStringLiteral("/sys/class/input"));
}

RemoteStart UdevInputDevices::watch(std::function<void(const FoundRemote&)> came,
                                    std::function<void(const QString& node)> went) {
    _watch = std::make_unique<Watch>(std::move(came), std::move(went));
    const RemoteStart result = _watch->begin();
    if (result != RemoteStart::listening)
        _watch.reset();
    return result;
}

void UdevInputDevices::unwatch() {
    _watch.reset();
}

std::unique_ptr<InputDevice> UdevInputDevices::open(const QString& node, int& error) {
    const int descriptor = ::open(QFile::encodeName(node).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) {
        error = errno;
        return nullptr;
    }
    libevdev* device = nullptr;
    if (const int result = libevdev_new_from_fd(descriptor, &device); result < 0) {
        error = -result;
        ::close(descriptor);
        return nullptr;
    }
    return std::make_unique<EvdevInputDevice>(descriptor, EvdevDevice(device));
}

} // namespace platform
