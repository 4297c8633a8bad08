// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/RemoteSource.h"

#include <QString>

#include <cstdint>
#include <functional>

/// Told of a remote's buttons. Main thread.
class AppleRemoteDelegate {
public:
    virtual ~AppleRemoteDelegate() = default;

    /// `button` is one of remoteButton (control/RemoteButtons.h), pressed or released.
    virtual void appleRemoteButton(std::int32_t button, bool pressedDown) = 0;
    /// A key that is none of these buttons was pressed.
    virtual void remoteKeyPressed(platform::RemoteKey key) = 0;
};

/// The remote: turns bursts of the receiver's events into buttons, pressed or released. Main thread.
class AppleRemote final : public platform::RemoteListener {
public:
    /// The source outlives it.
    explicit AppleRemote(platform::RemoteSource& source);
    AppleRemote(const AppleRemote&) = delete;
    AppleRemote& operator=(const AppleRemote&) = delete;
    ~AppleRemote() override;

    /// The process's remote, as the composition publishes it; null outside its life. Components are handed it instead.
    static AppleRemote* sharedRemote();
    static void setShared(AppleRemote* remote);

    /// A receiver is there, or may come.
    bool isRemoteAvailable() const;
    bool isListeningToRemote() const { return _isListening; }
    void setListeningToRemote(bool listening);
    /// Does nothing while listening, and without a receiver. What fails on the way is logged.
    void startListening();
    void stopListening();

    /// Whether other programs get nothing of the remote meanwhile; on to begin with. It is read when listening starts.
    bool isOpenInExclusiveMode() const { return _openInExclusiveMode; }
    void setOpenInExclusiveMode(bool exclusive) { _openInExclusiveMode = exclusive; }

    AppleRemoteDelegate* delegate() const { return _delegate; }
    /// Null for nobody. It must stay until then.
    void setDelegate(AppleRemoteDelegate* delegate) { _delegate = delegate; }

    /// The identity last reported by a remote; 0 to begin with.
    std::int32_t remoteId() const { return _remoteId; }
    void setRemoteId(std::int32_t identity) { _remoteId = identity; }

    void remoteBurst(platform::RemoteResult result, const std::vector<platform::RemoteEvent>& events) override;
    void remoteKeyPressed(platform::RemoteKey key) override;

private:
    void handleEventWithCookieString(const QString& cookies, std::int32_t sumOfValues);

    platform::RemoteSource& _source;
    bool _isListening = false;
    bool _openInExclusiveMode = true;
    std::int32_t _remoteId = 0;
    AppleRemoteDelegate* _delegate = nullptr;
};
