// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/RemoteControl.h"

#include "control/AppleRemote.h"
#include "platform/base/UserDefaults.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"

#include <utility>

RemoteControl::RemoteControl(const Environment& environment, AppleRemote& remote, AppleRemoteDelegate& delegate)
    : _environment(environment)
    , _remote(remote)
    , _delegate(delegate)
    , _beginning(environment, [this] {
        const auto asSet = [this] { follow(_environment.settings.boolForKey(kQVUseRemote)); };
        _preferencesChanged = _environment.notifications.observe<QVPreferencesChangedNotification>(
            [asSet](const QVPreferencesChangedNotification& changed) {
                if (changed.key == kQVUseRemote)
                    asSet();
            });
        asSet();
    }) {}

RemoteControl::~RemoteControl() {
    follow(false);
}

void RemoteControl::follow(bool wanted) {
    if (std::exchange(_isFollowed, wanted) == wanted || !_remote.isRemoteAvailable())
        return;
    if (wanted) {
        _remote.setOpenInExclusiveMode(true);
        _remote.setListeningToRemote(true);
        _remote.setDelegate(&_delegate);
    } else {
        _remote.setListeningToRemote(false); // what is held is released
        _remote.setOpenInExclusiveMode(false);
        _remote.setDelegate(nullptr);
    }
}
