// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/RemoteReceivers.h"

#include "platform/base/Log.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <utility>

namespace platform {

RemoteReceivers::RemoteReceivers(InputDevices& devices)
    : _devices(devices) {}

RemoteReceivers::~RemoteReceivers() {
    stop();
}

bool RemoteReceivers::isAvailable() const {
    return _devices.isAvailable();
}

RemoteStart RemoteReceivers::start(RemoteAccess access, RemoteListener& listener) {
    stop();
    _access = access;
    const RemoteStart result = _devices.watch([this](const FoundRemote& remote) { came(remote); },
                                              [this](const QString& node) { went(node); });
    if (result == RemoteStart::listening)
        _listener = &listener;
    return result;
}

void RemoteReceivers::stop() {
    _devices.unwatch();
    _holdTimer.reset();
    _shunned.clear();
    _saidRefusal = false;
    while (!_receivers.empty())
        tell(close(*_receivers.back()));
    _listener = nullptr;
}

void RemoteReceivers::came(const FoundRemote& remote) {
    const auto isSame = [&](const auto& receiver) { return receiver->remote.node == remote.node; };
    if (std::ranges::any_of(_receivers, isSame) || _shunned.contains(remote.node))
        return;
    int error = 0;
    std::unique_ptr<InputDevice> device = _devices.open(remote.node, error);
    if (!device) {
        if ((error == EACCES || error == EPERM) && !std::exchange(_saidRefusal, true))
            Log::write(
                QStringLiteral("WARNING: RemoteReceivers: \"%1\" (%2) may not be read by this user: see \"Remotes\" "
                               "in the README for the udev rule that allows it")
                    .arg(remote.name, remote.node));
        return;
    }
    if (_access == RemoteAccess::exclusive && !device->grab()) {
        Log::write(QStringLiteral("WARNING: RemoteReceivers: \"%1\" (%2) is held by another program")
                       .arg(remote.name, remote.node));
        return;
    }
    const auto receiver = std::make_shared<Receiver>(remote, std::move(device), RemoteTranslator(remote.kind));
    _receivers.push_back(receiver);
    receiver->device->whenReadable([this, weak = std::weak_ptr(receiver)] {
        if (const auto readable = weak.lock())
            read(readable);
    });
}

void RemoteReceivers::went(const QString& node) {
    _shunned.removeAll(node);
    const auto receiver = std::ranges::find_if(_receivers, [&](const auto& one) { return one->remote.node == node; });
    if (receiver != _receivers.end())
        tell(close(**receiver));
}

void RemoteReceivers::read(const std::shared_ptr<Receiver>& receiver) {
    if (std::ranges::find(_receivers, receiver) == _receivers.end())
        return; // closed, and not gone yet
    tell(readEvents(*receiver));
    scheduleHolds();
}

/// The receiver may be closed by it.
RemoteReceivers::Report RemoteReceivers::readEvents(Receiver& receiver) {
    const double now = RunLoop::main().now();
    Report report;
    const auto add = [&report](std::vector<RemoteOutput> outputs) {
        std::ranges::move(outputs, std::back_inserter(report.outputs));
    };
    if (now - receiver.secondBegan >= 1) {
        receiver.secondBegan = now;
        receiver.eventsInSecond = 0;
    }
    for (int count = 0; count < maximumEventsInPass; ++count) {
        input_event event{};
        const InputDevice::Read result = receiver.device->next(event);
        if (result == InputDevice::Read::nothing)
            return report;
        if (result != InputDevice::Read::event) {
            add(close(receiver).outputs);
            report.result = result == InputDevice::Read::failed ? RemoteResult::failure : RemoteResult::success;
            return report;
        }
        add(receiver.translator.take(event, now));
        if (++receiver.eventsInSecond > maximumEventsInSecond) {
            Log::write(QStringLiteral("WARNING: RemoteReceivers: \"%1\" (%2) sends more than anybody presses; it is "
                                      "not listened to until it is plugged in again")
                           .arg(receiver.remote.name, receiver.remote.node));
            _shunned.append(receiver.remote.node);
            add(close(receiver).outputs);
            return report;
        }
    }
    return report;
}

RemoteReceivers::Report RemoteReceivers::close(Receiver& receiver) {
    const auto place = std::ranges::find(_receivers, &receiver, [](const auto& one) { return one.get(); });
    if (place == _receivers.end())
        return {};
    _closed.push_back(std::move(*place));
    _receivers.erase(place);
    _closing = RunLoop::main().schedule(0, false, [this] { _closed.clear(); });
    return {RemoteResult::success, receiver.translator.releaseAll()};
}

/// What the listener does may wait in a panel, and may stop this: nothing of a receiver is touched any more.
void RemoteReceivers::tell(const Report& report) {
    for (const RemoteOutput& output : report.outputs) {
        if (!_listener)
            return;
        if (const auto* burst = std::get_if<std::vector<RemoteEvent>>(&output))
            _listener->remoteBurst(RemoteResult::success, *burst);
        else
            _listener->remoteKeyPressed(std::get<RemoteKey>(output));
    }
    if (_listener && report.result == RemoteResult::failure)
        _listener->remoteBurst(RemoteResult::failure, {});
}

/// What has arrived meanwhile comes first: it may be the release.
void RemoteReceivers::holdsMayBeDue() {
    std::vector<Report> reports;
    for (const auto& receiver : std::vector(_receivers)) {
        reports.push_back(readEvents(*receiver));
        reports.push_back({RemoteResult::success, receiver->translator.tick(RunLoop::main().now())});
    }
    scheduleHolds();
    for (const Report& report : reports)
        tell(report);
}

void RemoteReceivers::scheduleHolds() {
    std::optional<double> earliest;
    for (const auto& receiver : _receivers) {
        const auto due = receiver->translator.due();
        if (due && (!earliest || *due < *earliest))
            earliest = due;
    }
    if (!earliest) {
        _holdTimer.reset();
        return;
    }
    const double delay = std::max(0.0, *earliest - RunLoop::main().now());
    _holdTimer = RunLoop::main().schedule(delay, false, [this] { holdsMayBeDue(); });
}

} // namespace platform
