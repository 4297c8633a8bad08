// SPDX-License-Identifier: GPL-3.0-or-later
// Linked into lumaro_recorded in place of the computer's input devices: the pipes of a folder that
// LUMARO_RECORDED_INPUT names, each a remote that sends what a test writes into it as the kernel would.
#include "app/main/InputDevicesOfRun.h"

#include <QDir>
#include <QSocketNotifier>

#include <fcntl.h>
#include <linux/input.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace {

using platform::FoundRemote;
using platform::InputDevice;

class Pipe final : public InputDevice {
public:
    explicit Pipe(int descriptor)
        : _descriptor(descriptor) {}
    ~Pipe() override {
        _notifier.reset();
        ::close(_descriptor);
    }
    Read next(input_event& event) override {
        // Writers write whole events, which a pipe keeps together.
        const ssize_t count = ::read(_descriptor, &event, sizeof event);
        return count == sizeof event ? Read::event : count == 0 ? Read::gone : Read::nothing;
    }
    bool grab() override { return true; }
    void whenReadable(std::function<void()> readable) override {
        _notifier = std::make_unique<QSocketNotifier>(_descriptor, QSocketNotifier::Read);
        QObject::connect(_notifier.get(), &QSocketNotifier::activated, _notifier.get(), std::move(readable));
    }

private:
    int _descriptor;
    std::unique_ptr<QSocketNotifier> _notifier;
};

class PipesOfFolder final : public platform::InputDevices {
public:
    bool isAvailable() const override { return true; }
    platform::RemoteStart watch(std::function<void(const FoundRemote&)> came,
                                std::function<void(const QString&)> /*went*/) override {
        const QDir folder(qEnvironmentVariable("LUMARO_RECORDED_INPUT"));
        for (const QString& name : folder.entryList(QDir::System | QDir::Files))
            came({folder.filePath(name), name, platform::RemoteKind::infrared});
        return platform::RemoteStart::listening;
    }
    void unwatch() override {}
    std::unique_ptr<InputDevice> open(const QString& node, int& error) override {
        const int descriptor = ::open(node.toLocal8Bit().constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        if (descriptor >= 0)
            return std::make_unique<Pipe>(descriptor);
        error = errno;
        return nullptr;
    }
};

} // namespace

std::unique_ptr<platform::InputDevices> makeInputDevices() {
    return std::make_unique<PipesOfFolder>();
}
