// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main/InputDevicesOfRun.h"

#include "platform/desktop/linux/UdevInputDevices.h"

std::unique_ptr<platform::InputDevices> makeInputDevices() {
    return std::make_unique<platform::UdevInputDevices>();
}
