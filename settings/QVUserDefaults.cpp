// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/QVUserDefaults.h"

#include "platform/base/Bundle.h"
#include "platform/base/Log.h"
#include "platform/base/PropertyList.h"
#include "platform/base/PropertyValue.h"
#include "settings/ColorText.h"
#include "settings/QVOverlayStyleDefaults.h"
#include "settings/SettingsKeys.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

using platform::UserDefaults;

// The builds that first wrote the settings as they are read now.
constexpr std::int32_t kBuildWithoutFirstTimeFlag = 16;
constexpr std::int32_t kBuildWithLaunchActionAndArrangement = 23;
constexpr std::int32_t kBuildWithSubtitlesStyle = 25;
constexpr std::int32_t kBuildWithNewMirrorList = 38;

constexpr std::int32_t showOpenPanel = 2;
constexpr std::int32_t orderOfAdding = 0;

/// What lies over the shipped values, from the bottom: what packages add to the resources, in the order of the names,
/// and what the system's administrator says, in the system's configuration folders.
QStringList filesOfDistribution() {
    QStringList files;
    const QDir additions(platform::Bundle::main().resourcePath() + QStringLiteral("/UserDefaults.d"));
    for (const QString& name : additions.entryList({QStringLiteral("*.plist")}, QDir::Files, QDir::Name))
        files.append(additions.filePath(name));
    const QString given = qEnvironmentVariable("XDG_CONFIG_DIRS");
    QStringList folders = (given.isEmpty() ? QStringLiteral("/etc/xdg") : given).split(u':', Qt::SkipEmptyParts);
    std::reverse(folders.begin(), folders.end()); // the first of them counts most
    for (const QString& folder : std::as_const(folders)) {
        if (const QString path = folder + QStringLiteral("/lumaro/UserDefaults.plist");
            QDir::isAbsolutePath(folder) && QFileInfo::exists(path))
            files.append(path);
    }
    return files;
}

void registerShippedDefaults(UserDefaults& defaults) {
    const QString path =
        platform::Bundle::main().pathForResource(QStringLiteral("UserDefaults"), QStringLiteral("plist"));
    if (const auto shipped =
            path.isEmpty() ? std::optional<QVariantMap>() : platform::propertyList::readDictionary(path))
        defaults.registerDefaults(*shipped);
    for (const QString& file : filesOfDistribution()) {
        if (const auto values = platform::propertyList::readDictionary(file))
            defaults.registerDefaults(*values);
        else
            platform::Log::write(QStringLiteral("WARNING: The settings in %1 can't be read.").arg(file));
    }
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
