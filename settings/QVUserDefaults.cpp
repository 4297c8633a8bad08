// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/QVUserDefaults.h"

#include "platform/base/Bundle.h"
#include "platform/base/PropertyList.h"
#include "platform/base/PropertyValue.h"
#include "settings/ColorText.h"
#include "settings/QVOverlayStyleDefaults.h"
#include "settings/SettingsKeys.h"

namespace {

using platform::UserDefaults;

// The builds that first wrote the settings as they are read now.
constexpr std::int32_t kBuildWithoutFirstTimeFlag = 16;
constexpr std::int32_t kBuildWithLaunchActionAndArrangement = 23;
constexpr std::int32_t kBuildWithSubtitlesStyle = 25;
constexpr std::int32_t kBuildWithNewMirrorList = 38;

constexpr std::int32_t showOpenPanel = 2;
constexpr std::int32_t orderOfAdding = 0;

void registerShippedDefaults(UserDefaults& defaults) {
    const QString path =
        platform::Bundle::main().pathForResource(QStringLiteral("UserDefaults"), QStringLiteral("plist"));
    if (path.isEmpty())
        return;
    if (const auto shipped = platform::propertyList::readDictionary(path))
        defaults.registerDefaults(*shipped);
}

/// Sets `key` when the old switch was turned off by the user, and drops the switch.
void migrateSwitch(UserDefaults& defaults, const QString& oldKey, std::int32_t whenOff, const QString& key) {
    if (defaults.hasStoredValue(oldKey) && !defaults.boolForKey(oldKey))
        defaults.setInteger(whenOff, key);
    defaults.removeObjectForKey(oldKey);
}

void migrateSubtitlesStyle(UserDefaults& defaults) {
    // Without a style the old settings have nowhere to go, and are dropped all the same.
    auto style = QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(defaults, kQVSubtitlesOverlayStyle);

    if (const QString color = defaults.stringForKey(kQVSubtitlesColor); !color.isNull()) {
        if (style)
            style->set(&OverlayStyle::textColor, JHColorFromString(color));
        defaults.removeObjectForKey(kQVSubtitlesColor);
    }
    if (const QString fontName = defaults.stringForKey(kQVSubtitlesFontName); !fontName.isNull()) {
        if (style)
            style->set(&OverlayStyle::textFontName, fontName);
        defaults.removeObjectForKey(kQVSubtitlesFontName);
    }
    if (const QVariant smallest = defaults.objectForKey(kQVSubtitlesSizeMin); smallest.isValid()) {
        defaults.setObject(smallest, kQVOverlayTextFontSizeMin);
        defaults.removeObjectForKey(kQVSubtitlesSizeMin);
    }
    if (defaults.objectForKey(kQVSubtitlesSizeMax).isValid()) {
        if (style)
            style->set(&OverlayStyle::textFontSize, defaults.integerForKey(kQVSubtitlesSizeMax));
        defaults.removeObjectForKey(kQVSubtitlesSizeMax);
    }
}

void migrate(UserDefaults& defaults) {
    const std::int32_t current = platform::propertyValue::toInteger(
        platform::Bundle::main().objectForInfoDictionaryKey(QStringLiteral("CFBundleVersion")));
    const std::int32_t last = defaults.integerForKey(kQVLastVersionSeen);
    if (current <= last)
        return;
    if (last < kBuildWithoutFirstTimeFlag)
        defaults.removeObjectForKey(kQVRunFirstTimeConfig);
    if (last < kBuildWithLaunchActionAndArrangement) {
        migrateSwitch(defaults, kQVOpenSavedPlaylist, showOpenPanel, kQVOnLaunchDefaultAction);
        migrateSwitch(defaults, kQVSortPlaylist, orderOfAdding, kQVPlaylistDefaultArrangement);
    }
    if (last < kBuildWithSubtitlesStyle)
        migrateSubtitlesStyle(defaults);
    if (last < kBuildWithNewMirrorList)
        defaults.removeObjectForKey(kLegacyVersionMirrorsKey);
}

} // namespace

void QVUserDefaults::prepare(UserDefaults& defaults) {
    registerShippedDefaults(defaults);
    migrate(defaults);
}

UserDefaults& QVUserDefaults::standardUserDefaults() {
    return UserDefaults::standard();
}
