// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/StyleSections.h"

#include "platform/base/Localization.h"
#include "prefs/PreferencesPages.h"
#include "prefs/QVOverlayStyleController.h"
#include "settings/SettingsKeys.h"

#include <QTabWidget>

StyleSections::StyleSections(const Environment& environment, PictureSource& pictures)
    : _environment(environment)
    , _pictures(pictures) {}

StyleSections::~StyleSections() = default;

void StyleSections::addTo(QTabWidget& subtitles, QTabWidget& overlays, const QTabWidget& pages) {
    add(subtitles, kQVSubtitlesOverlayStyle, "Text style");
    add(subtitles, kQVVobSubOverlayStyle, "Picture style");
    add(overlays, kQVFeedbackOverlayStyle, "Feedback style");
    add(overlays, kQVOSDOverlayStyle, "On-screen display style");
    add(overlays, kQVFullscreenOverlayStyle, "Window style");
    for (const auto& section : _sections)
        PreferencesPages::yieldMnemonics(*section->widget(), pages);
}

void StyleSections::add(QTabWidget& tabs, const QString& key, const char* title) {
    auto section = std::make_unique<QVOverlayStyleController>(_environment, _pictures);
    section->setupWithModelForKey(key);
    tabs.addTab(section->widget(), platform::localizedString(QString::fromLatin1(title)));
    _sections.push_back(std::move(section));
}

void StyleSections::sync() {
    for (const auto& section : _sections)
        section->syncWithModel();
}

void StyleSections::setEnabled(const QString& key, bool enabled) {
    for (const auto& section : _sections)
        if (section->key() == key)
            section->setEnabled(enabled);
}

void StyleSections::setSubtitlesEnabled(bool enabled) {
    setEnabled(kQVSubtitlesOverlayStyle, enabled);
    setEnabled(kQVVobSubOverlayStyle, enabled);
}

void StyleSections::setFeedbackEnabled(bool enabled) {
    setEnabled(kQVFeedbackOverlayStyle, enabled);
}
