// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

class QTabWidget;
class QWidget;

/// What concerns the pages of the preferences, each of them a scroll area, as a whole. Main thread.
namespace PreferencesPages {

/// That of their window, large enough for the largest page, and for the names of all.
QSize naturalSize(const QTabWidget& pages);

/// Takes from a section the letters, to be pressed with Alt, that the page around it or the pages' names have: of two
/// controls with the same one, neither would act.
void yieldMnemonics(const QWidget& section, const QTabWidget& pages);

} // namespace PreferencesPages
