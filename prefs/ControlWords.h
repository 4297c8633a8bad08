// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringList>

#include <optional>

class QTabWidget;
class QWidget;

/// The words by which the controls of pages are found. Main thread.
namespace ControlWords {

/// The controls that the user may come to, in the order in which they lie on the pages.
QList<QWidget*> controlsOf(const QTabWidget& pages);

/// The label that belongs to the control; none where it has its own text.
QWidget* labelOf(const QWidget& control);

/// What is looked for, as words to compare.
QStringList wordsOf(const QString& text);

/// Whether all of the words stand about the control, and how far one has to look: 0 for its own label, 1 with its tip
/// and its items, 2 with its group and its page.
std::optional<int> depthOf(const QStringList& words, const QWidget& control);

} // namespace ControlWords
