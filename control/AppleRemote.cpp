// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/AppleRemote.h"

#include "control/RemoteButtons.h"
#include "settings/Tracing.h"

namespace {

/// The element that tells which remote it is, beside any button.
constexpr std::int32_t identityCookie = 19;

AppleRemote* sShared = nullptr;

/// Null where the system has nothing to say.
const char* messageOf(platform::RemoteStart result) {
    using platform::RemoteStart;
    switch (result) {
    case RemoteStart::noClassName:
        return "Error: Failed to get class name.";
    case RemoteStart::noDeviceInterface:
        return "Error: Couldn't create HID class device interface";
    case RemoteStart::noQueue:
        return "Error when opening device";
    case RemoteStart::noEventSource:
        return "Error when creating async event source";
    case RemoteStart::noEventCallout:
        return "Error when setting event callout";
    case RemoteStart::listening:
    case RemoteStart::unavailable:
        break;
    }
    return nullptr;
}

} // namespace

AppleRemote::AppleRemote(platform::RemoteSource& source)
    : _source(source) {}

AppleRemote::~AppleRemote() {
    stopListening();
}

AppleRemote* AppleRemote::sharedRemote() {
    return sShared;
}

void AppleRemote::setShared(AppleRemote* remote) {
    sShared = remote;
}

bool AppleRemote::isRemoteAvailable() const {
    return _source.isAvailable();
}

void AppleRemote::setListeningToRemote(bool listening) {
    if (listening)
        startListening();
    else
        stopListening();
}

void AppleRemote::startListening() {
    if (_isListening || !isRemoteAvailable())
        return;
    const auto access = _openInExclusiveMode ? platform::RemoteAccess::exclusive : platform::RemoteAccess::withOthers;
    const platform::RemoteStart result = _source.start(access, *this);
    _isListening = result == platform::RemoteStart::listening;
    if (const char* message = messageOf(result))
        logAlways(message);
}

void AppleRemote::stopListening() {
    if (!_isListening)
        return;
    _source.stop();
    _isListening = false;
}

void AppleRemote::remoteBurst(platform::RemoteResult result, const std::vector<platform::RemoteEvent>& events) {
    QString cookies;
    std::int32_t sumOfValues = 0;
    if (result == platform::RemoteResult::success) {
        for (const platform::RemoteEvent& event : events) {
            if (event.cookie == identityCookie) {
                _remoteId = event.value;
                handleEventWithCookieString(QStringLiteral("19_"), 0);
                continue;
            }
            sumOfValues += event.value;
            cookies += QString::number(event.cookie) + u'_';
        }
    }
    handleEventWithCookieString(cookies, sumOfValues);
}

void AppleRemote::handleEventWithCookieString(const QString& cookies, std::int32_t sumOfValues) {
    const auto button = remoteButtonWithCookies(cookies);
    if (!button)
        logAlways("Unknown button for cookiestring %@", cookies);
    else if (_delegate)
        _delegate->appleRemoteButton(*button, sumOfValues >= 1);
}

void AppleRemote::remoteKeyPressed(platform::RemoteKey key) {
    if (_delegate)
        _delegate->remoteKeyPressed(key);
}
