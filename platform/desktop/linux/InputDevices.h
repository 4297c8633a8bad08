// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/RemoteSource.h"
#include "platform/desktop/linux/RemoteKeyCodes.h"

#include <QString>

#include <functional>
#include <memory>

struct input_event;

namespace platform {

/// An input device that was opened for reading; it is closed with this object. Main thread.
class InputDevice {
public:
    InputDevice() = default;
    InputDevice(const InputDevice&) = delete;
    InputDevice& operator=(const InputDevice&) = delete;
    virtual ~InputDevice() = default;

    enum class Read { event, nothing, gone, failed };
    /// The next event, or why there is none; never waits.
    virtual Read next(input_event& event) = 0;
    /// Keeps its events from every other program, until it is closed. False when another one has done so.
    virtual bool grab() = 0;
    /// Calls `readable` from the run loop while there is something to read, or the device has gone. The device must not
    /// be destroyed from inside such a call.
    virtual void whenReadable(std::function<void()> readable) = 0;
};

/// A remote that may be opened.
struct FoundRemote {
    QString node;
    QString name;
    RemoteKind kind;
};

/// The input devices of the computer. Main thread.
class InputDevices {
public:
    virtual ~InputDevices() = default;

    /// Whether this system tells of input devices at all.
    virtual bool isAvailable() const = 0;
    /// Calls `came` for each remote there is, from inside this call, and for those that come later, perhaps again for
    /// one that may be opened now; `went` for devices that go, remotes or not. Anything but `listening`: there are no
    /// calls.
    virtual RemoteStart watch(std::function<void(const FoundRemote&)> came,
                              std::function<void(const QString& node)> went) = 0;
    virtual void unwatch() = 0;
    /// Read-only; null with the system's error number.
    virtual std::unique_ptr<InputDevice> open(const QString& node, int& error) = 0;
};

} // namespace platform
