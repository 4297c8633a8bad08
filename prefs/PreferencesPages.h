// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

class QButtonGroup;
class QTabWidget;
class QWidget;

/// What concerns the pages of the preferences, each of them a scroll area, as a whole. Main thread.
namespace PreferencesPages {

/// Where their window stands: in the middle of the place, large enough for the largest page, and for the names of all,
/// as far as the place is.
QRect frameIn(const QRect& place, const QTabWidget& pages);

/// Leaves space for a title bar that the program draws itself, and for the desktop's own bar, which may lie above the
/// place. Such a title bar is known once the window is shown.
void fitDecoration(QWidget& window, const QRect& place);

/// Makes the window's pages as light as what holds them, and keeps the wheel from changing what passes under the
/// pointer while they are scrolled.
void prepare(QWidget& window);

/// Takes from a section the letters, to be pressed with Alt, that the page around it, the pages' names or the
/// window's own buttons have: of two controls with the same one, neither would act.
void yieldMnemonics(const QWidget& section, const QTabWidget& pages);

/// Has Tab go through each page from its first control to its last, and on to what stands below the pages, also where
/// controls were put into a page later than others.
void orderTabs(const QTabWidget& pages);

/// Ctrl+Tab goes to the next page and Ctrl+Shift+Tab to the one before, and so do Ctrl+Page Down and Up, whatever has
/// the keyboard: a pop-up menu keeps Ctrl+Tab to itself, and pages within a page would take it.
void switchByKeys(QTabWidget& pages);

/// Has Tab stop once in a group of radio buttons, at the one that is checked. By itself the group learns of that when
/// one of its buttons has had the keyboard.
void stopAtChecked(const QButtonGroup& group);

} // namespace PreferencesPages
