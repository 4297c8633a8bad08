// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/input/ReadingMode.h"

#include "platform/base/UserDefaults.h"
#include "settings/SettingsKeys.h"

ReadingMode readingMode(const platform::UserDefaults& settings) {
    return settings.boolForKey(kQVSubtitlesRepair) ? ReadingMode::repairing : ReadingMode::strict;
}
