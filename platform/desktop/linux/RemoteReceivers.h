// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/RunLoop.h"
#include "platform/desktop/RemoteSource.h"
#include "platform/desktop/linux/InputDevices.h"
#include "platform/desktop/linux/RemoteTranslator.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace platform {

/// The remotes among the input devices, as one source: opened as they come, read, translated, and let go. Main thread.
class RemoteReceivers final : public RemoteSource {
public:
    /// Events read of a device before others have their turn, and how many of them in a second no remote makes.
    static constexpr int maximumEventsInPass = 64;
    static constexpr int maximumEventsInSecond = 2000;

    /// The devices outlive it.
    explicit RemoteReceivers(InputDevices& devices);
    RemoteReceivers(const RemoteReceivers&) = delete;
    RemoteReceivers& operator=(const RemoteReceivers&) = delete;
    ~RemoteReceivers() override;

    bool isAvailable() const override;
    RemoteStart start(RemoteAccess access, RemoteListener& listener) override;
    void stop() override;

private:
    struct Receiver {
        FoundRemote remote;
        std::unique_ptr<InputDevice> device;
        RemoteTranslator translator;
        double secondBegan = 0;
        int eventsInSecond = 0;
    };
    /// What is to be told once the devices have been read: a failure, or what was translated.
    struct Report {
        RemoteResult result = RemoteResult::success;
        std::vector<RemoteOutput> outputs;
    };

    void came(const FoundRemote& remote);
    void went(const QString& node);
    void read(const std::shared_ptr<Receiver>& receiver);
    Report readEvents(Receiver& receiver);
    Report close(Receiver& receiver);
    void tell(const Report& report);
    void holdsMayBeDue();
    void scheduleHolds();

    InputDevices& _devices;
    RemoteListener* _listener = nullptr;
    RemoteAccess _access = RemoteAccess::withOthers;
    std::vector<std::shared_ptr<Receiver>> _receivers;
    /// Closed from inside their own calls: they go when the run loop is back.
    std::vector<std::shared_ptr<Receiver>> _closed;
    std::unique_ptr<Timer> _closing;
    std::unique_ptr<Timer> _holdTimer;
    /// Nodes that sent too much, until they go.
    QStringList _shunned;
    bool _saidRefusal = false;
};

} // namespace platform
