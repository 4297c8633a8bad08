// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/linux/InputDevices.h"

#include <memory>

namespace platform {

/// The kernel's input devices, found by udev and read by libevdev. Main thread.
class UdevInputDevices final : public InputDevices {
public:
    UdevInputDevices();
    ~UdevInputDevices() override;

    bool isAvailable() const override;
    RemoteStart watch(std::function<void(const FoundRemote&)> came,
                      std::function<void(const QString& node)> went) override;
    void unwatch() override;
    std::unique_ptr<InputDevice> open(const QString& node, int& error) override;

private:
    class Watch;
    std::unique_ptr<Watch> _watch;
};

} // namespace platform
