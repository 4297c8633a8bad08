// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/StyleSections.h"

#include "platform/base/Localization.h"
#include "platform/base/UserDefaults.h"
#include "prefs/QVOverlayStyleController.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"

StyleSections::StyleSections(const Environment& environment)
    : _environment(environment) {
    const std::pair<const char*, QString> styles[] = {{"StyleTabSubtitles", kQVSubtitlesOverlayStyle},
                                                      {"StyleTabFeedback", kQVFeedbackOverlayStyle},
                                                      {"StyleTabOSD", kQVOSDOverlayStyle},
                                                      {"StyleTabWindow", kQVFullscreenOverlayStyle}};
    for (const auto& [title, key] : styles) {
        auto& section = *_sections.emplace_back(std::make_unique<QVOverlayStyleController>(environment));
        section.setupWithModelForKey(key);
        section.widget()->setObjectName(key);
        addTab(section.widget(), platform::localizedString(QString::fromLatin1(title)));
    }
    followFeedback();
    _onPreferences = environment.notifications.observe<QVPreferencesChangedNotification>(
        [this](const QVPreferencesChangedNotification& notification) {
            if (notification.key == kQVDisplayFeedback)
                followFeedback();
        });
}

StyleSections::~StyleSections() = default;

void StyleSections::syncWithModel() {
    for (const auto& section : _sections)
        section->syncWithModel();
    followFeedback();
}

void StyleSections::followFeedback() {
    for (const auto& section : _sections) {
        if (section->key() == kQVFeedbackOverlayStyle)
            section->setEnabled(_environment.settings.boolForKey(kQVDisplayFeedback));
    }
}
