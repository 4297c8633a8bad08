// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/ControlWords.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTabWidget>

#include <algorithm>

namespace ControlWords {

namespace {

/// A list of more tells nothing about what is chosen in it: fonts.
constexpr int maximumItems = 40;

/// Letters to compare: without case, accents and the marks of mnemonics.
QString folded(QString text) {
    text.remove(u'&');
    QString letters;
    for (const QChar letter : text.normalized(QString::NormalizationForm_KD).toCaseFolded()) {
        if (letter == u'ß')
            letters += QStringLiteral("ss");
        else if (!letter.isMark())
            letters += letter;
    }
    return letters;
}

/// Hidden by itself, or with a section, but not for lying on a page that is not open.
bool isLeftOut(const QWidget& control, const QWidget& page) {
    for (const QWidget* widget = &control; widget != &page; widget = widget->parentWidget()) {
        if (widget->isHidden() && !qobject_cast<const QStackedWidget*>(widget->parentWidget()))
            return true;
    }
    return false;
}

bool isControl(const QWidget& widget) {
    const QString& name = widget.objectName();
    const bool isPart = name.isEmpty() || name.startsWith(QStringLiteral("qt_")) || widget.isWindow();
    return !isPart && widget.focusPolicy() != Qt::NoFocus && !qobject_cast<const QTabWidget*>(&widget) &&
           (!qobject_cast<const QAbstractScrollArea*>(&widget) || qobject_cast<const QAbstractItemView*>(&widget));
}

QString itemsOf(const QWidget& control) {
    QStringList items;
    if (const auto* popUp = qobject_cast<const QComboBox*>(&control); popUp && popUp->count() <= maximumItems) {
        for (int i = 0; i < popUp->count(); ++i)
            items << popUp->itemText(i);
    } else if (const auto* view = qobject_cast<const QAbstractItemView*>(&control); view && view->model()) {
        for (int row = 0; row < view->model()->rowCount(); ++row)
            items << view->model()->index(row, 0).data().toString();
    }
    return items.join(u' ');
}

QString surroundingsOf(const QWidget& control) {
    QStringList texts;
    for (QWidget* widget = control.parentWidget(); widget; widget = widget->parentWidget()) {
        if (const auto* group = qobject_cast<const QGroupBox*>(widget))
            texts << group->title();
        if (const auto* pages = qobject_cast<const QTabWidget*>(widget)) {
            for (int page = 0; page < pages->count(); ++page) {
                if (pages->widget(page)->isAncestorOf(&control))
                    texts << pages->tabText(page);
            }
        }
    }
    return texts.join(u' ');
}

} // namespace

QList<QWidget*> controlsOf(const QTabWidget& pages) {
    QList<QWidget*> controls;
    for (int number = 0; number < pages.count(); ++number) {
        const QWidget& page = *pages.widget(number);
        for (QWidget* widget : page.findChildren<QWidget*>()) {
            // The list of a pop-up is a window of its own.
            if (isControl(*widget) && widget->window() == pages.window() && !isLeftOut(*widget, page))
                controls << widget;
        }
    }
    return controls;
}

QWidget* labelOf(const QWidget& control) {
    for (const QWidget* widget = control.parentWidget(); widget; widget = widget->parentWidget()) {
        for (QLabel* label : widget->findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
            if (label->buddy() == &control)
                return label;
        }
    }
    return nullptr;
}

QStringList wordsOf(const QString& text) {
    return folded(text).simplified().split(u' ', Qt::SkipEmptyParts);
}

std::optional<int> depthOf(const QStringList& words, const QWidget& control) {
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    const auto* label = static_cast<const QLabel*>(labelOf(control));
    QString text;
    int depth = 0;
    for (const QString& more : {(button ? button->text() : QString()) + u' ' + (label ? label->text() : QString()) +
                                    u' ' + control.accessibleName(),
                                control.toolTip() + u' ' + itemsOf(control), surroundingsOf(control)}) {
        text += u'\n' + folded(more);
        if (std::ranges::all_of(words, [&](const QString& word) { return text.contains(word); }))
            return depth;
        ++depth;
    }
    return std::nullopt;
}

} // namespace ControlWords
