// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"

#include <QString>

#include <memory>
#include <vector>

class PictureSource;
class QTabWidget;
class QVOverlayStyleController;

/// The sections of the preferences in which styles are edited, each on a tab of its own. Main thread.
class StyleSections {
public:
    /// The source outlives the sections.
    StyleSections(const Environment& environment, PictureSource& pictures);
    StyleSections(const StyleSections&) = delete;
    StyleSections& operator=(const StyleSections&) = delete;
    ~StyleSections();

    /// Puts the sections onto the tabs, which may go before this object; `pages` are those of the window.
    void addTo(QTabWidget& subtitles, QTabWidget& overlays, const QTabWidget& pages);
    /// Shows the styles as they stand in the settings now.
    void sync();
    // Whether what they are about is shown at all.
    void setSubtitlesEnabled(bool enabled);
    void setFeedbackEnabled(bool enabled);

private:
    void add(QTabWidget& tabs, const QString& key, const char* title);
    void setEnabled(const QString& key, bool enabled);

    Environment _environment;
    PictureSource& _pictures;
    std::vector<std::unique_ptr<QVOverlayStyleController>> _sections;
};
