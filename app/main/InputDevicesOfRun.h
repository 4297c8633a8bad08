// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/linux/InputDevices.h"

#include <memory>

/// The input devices that remotes are looked for among. The program's are the computer's; the tests link the same
/// program with recorded ones in their place.
std::unique_ptr<platform::InputDevices> makeInputDevices();
