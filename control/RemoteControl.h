// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "control/AfterFirstPicture.h"
#include "platform/base/NotificationCenter.h"

class AppleRemote;
class AppleRemoteDelegate;

/// Listens to the remote for the delegate, to itself alone, for as long as it lives and the setting QVUseRemote is on;
/// looking for receivers waits for the first picture. Main thread.
class RemoteControl {
public:
    /// Both outlive it.
    RemoteControl(const Environment& environment, AppleRemote& remote, AppleRemoteDelegate& delegate);
    RemoteControl(const RemoteControl&) = delete;
    RemoteControl& operator=(const RemoteControl&) = delete;
    ~RemoteControl();

private:
    void follow(bool wanted);

    Environment _environment;
    AppleRemote& _remote;
    AppleRemoteDelegate& _delegate;
    bool _isFollowed = false;
    platform::Subscription _preferencesChanged;
    AfterFirstPicture _beginning;
};
