// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"

#include <QTabWidget>

#include <memory>
#include <vector>

class QVOverlayStyleController;

/// The sections of the styles that a person can change, a tab for each: subtitles, feedback, the on-screen display, the
/// window. That of feedback is disabled while none is shown. Main thread.
class StyleSections final : public QTabWidget {
public:
    explicit StyleSections(const Environment& environment);
    ~StyleSections() override;

    /// Shows the styles as they stand in the settings now.
    void syncWithModel();

private:
    void followFeedback();

    Environment _environment;
    std::vector<std::unique_ptr<QVOverlayStyleController>> _sections; // in the order of the tabs
    platform::Subscription _onPreferences;
};
