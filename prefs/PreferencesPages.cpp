// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/PreferencesPages.h"

#include "prefs/WheelGuard.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QButtonGroup>
#include <QComboBox>
#include <QKeySequence>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>
#include <QShortcut>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>

namespace PreferencesPages {

namespace {

/// The letter that, with Alt, goes to a control of this text.
QChar mnemonicOf(const QString& text) {
    const QKeySequence keys = QKeySequence::mnemonic(text);
    return keys.isEmpty() ? QChar() : QChar(keys[0].key()).toLower();
}

QSize naturalSize(const QTabWidget& pages) {
    const QWidget& window = *pages.window();
    const QSize around = window.sizeHint() - pages.currentWidget()->sizeHint();
    QSize size(pages.tabBar()->sizeHint().width() + around.width(), 0);
    for (int i = 0; i < pages.count(); ++i) {
        QWidget* contents = static_cast<const QScrollArea*>(pages.widget(i))->widget();
        contents->ensurePolished();
        for (auto* tabs : contents->findChildren<QTabWidget*>())
            tabs->updateGeometry(); // tabs that nobody has seen yet do not tell that they were filled
        contents->layout()->activate();
        size = size.expandedTo(contents->sizeHint() + around);
    }
    return size;
}

} // namespace

QRect frameIn(const QRect& place, const QTabWidget& pages) {
    QRect frame(QPoint(), naturalSize(pages).boundedTo(place.size() * 19 / 20));
    frame.moveCenter(place.center());
    return frame;
}

void fitDecoration(QWidget& window, const QRect& place) {
    const QMargins around = window.windowHandle()->frameMargins();
    if (!around.isNull())
        window.resize(window.size().boundedTo((place.size() * 9 / 10).shrunkBy(around)));
}

void prepare(QWidget& window) {
    for (auto* area : window.findChildren<QScrollArea*>()) {
        area->setFocusPolicy(Qt::NoFocus);
        area->viewport()->setAutoFillBackground(false);
        area->widget()->setAutoFillBackground(false);
    }
    auto* guard = new WheelGuard(&window);
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (qobject_cast<QComboBox*>(control) || qobject_cast<QSlider*>(control) ||
            qobject_cast<QAbstractSpinBox*>(control))
            guard->watch(*control);
    }
}

void yieldMnemonics(const QWidget& section, const QTabWidget& pages) {
    QString taken;
    for (int page = 0; page < pages.count(); ++page)
        taken += mnemonicOf(pages.tabText(page));
    for (const auto* button : pages.window()->findChildren<QAbstractButton*>(Qt::FindDirectChildrenOnly))
        taken += mnemonicOf(button->text());
    const QWidget* page = section.parentWidget();
    while (page && pages.indexOf(page) < 0)
        page = page->parentWidget();
    const auto visit = [](const auto& widgets, const auto& work) {
        for (auto* widget : widgets)
            work(*widget);
    };
    // Of sections on tabs of their own, one at a time can be used.
    const QWidget* tabs = section.parentWidget();
    while (tabs && !qobject_cast<const QTabWidget*>(tabs))
        tabs = tabs->parentWidget();
    const auto take = [&](const auto& widget) {
        const bool isOnOtherTab = tabs && tabs != &pages && tabs->isAncestorOf(&widget);
        if (!section.isAncestorOf(&widget) && !isOnOtherTab)
            taken += mnemonicOf(widget.text());
    };
    if (page) {
        visit(page->findChildren<QLabel*>(), take);
        visit(page->findChildren<QAbstractButton*>(), take);
    }
    const auto yield = [&](auto& widget) {
        if (const QChar letter = mnemonicOf(widget.text()); !letter.isNull() && taken.contains(letter))
            widget.setText(widget.text().remove(u'&'));
    };
    visit(section.findChildren<QLabel*>(), yield);
    visit(section.findChildren<QAbstractButton*>(), yield);
}

void orderTabs(const QTabWidget& pages) {
    QWidget* before = pages.tabBar();
    const auto follow = [&before](QWidget* next) {
        QWidget::setTabOrder(before, next);
        before = next;
    };
    // The chain as it stands, before it is changed.
    QList<QWidget*> chain;
    for (QWidget* next = before->nextInFocusChain(); next != before; next = next->nextInFocusChain())
        chain << next;
    const auto takesKeys = [](const QWidget* widget) { return widget->focusPolicy() != Qt::NoFocus; };
    for (int page = 0; page < pages.count(); ++page)
        for (QWidget* widget : chain)
            if (pages.widget(page)->isAncestorOf(widget) && takesKeys(widget) && !widget->focusProxy())
                follow(widget);
    for (QWidget* widget : chain)
        if (!pages.isAncestorOf(widget) && takesKeys(widget))
            follow(widget);
}

void switchByKeys(QTabWidget& pages) {
    const auto leads = [&pages](const QList<QKeySequence>& keys, int by) {
        auto* shortcut = new QShortcut(pages.window());
        shortcut->setKeys(keys);
        QObject::connect(shortcut, &QShortcut::activated, &pages, [&pages, by] {
            pages.setCurrentIndex((pages.currentIndex() + by + pages.count()) % pages.count());
            pages.tabBar()->setFocus(Qt::TabFocusReason);
        });
    };
    leads({Qt::CTRL | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageDown}, 1);
    leads({Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageUp}, -1);
}

void stopAtChecked(const QButtonGroup& group) {
    for (QAbstractButton* button : group.buttons())
        button->setFocusPolicy(button->isChecked() || !group.checkedButton() ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace PreferencesPages
