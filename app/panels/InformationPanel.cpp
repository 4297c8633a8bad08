// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/InformationPanel.h"

#include "control/CurrentCommands.h"
#include "control/KeyText.h"
#include "platform/base/Localization.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <utility>

using platform::localizedString;

namespace {

// Seconds.
constexpr double interval = 1;

/// Whether the panels hold the same lines, whatever these say.
bool haveSameLines(const MovieInformation::Groups& first, const MovieInformation::Groups& second) {
    return std::ranges::equal(first, second, [](const auto& one, const auto& other) {
        return one.title == other.title &&
               std::ranges::equal(one.lines, other.lines, {}, &MovieInformation::Line::label,
                                  &MovieInformation::Line::label);
    });
}

} // namespace

InformationPanel::InformationPanel(platform::RunLoop& loop, const MovieInformation& information,
                                   const CurrentCommands& commands)
    : _loop(loop)
    , _information(information)
    , _commands(commands) {
    setWindowTitle(localizedString(QStringLiteral("Information")));
    auto* layout = new QVBoxLayout(this);
    _area = new QScrollArea;
    _area->setAccessibleName(windowTitle());
    _area->setWidgetResizable(true);
    _area->setFrameShape(QFrame::NoFrame);
    layout->addWidget(_area);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* copying = buttons->addButton(localizedString(QStringLiteral("Copy")), QDialogButtonBox::ActionRole);
    copying->setAutoDefault(false);
    connect(copying, &QPushButton::clicked, this, [this] { copy(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

InformationPanel::~InformationPanel() = default;

void InformationPanel::toggleAbove(QWindow* window) {
    if (isVisible()) {
        close();
        return;
    }
    winId();
    if (window)
        windowHandle()->setTransientParent(window);
    // Its size is that of what it says.
    _information.ask([self = std::weak_ptr(_self), window](const MovieInformation::Groups& groups) {
        const auto panel = self.lock();
        if (!panel)
            return;
        InformationPanel& found = **panel;
        found.show(groups);
        if (window)
            found.place(*window);
        found.setVisible(true);
        found.raise();
        // Without a window manager nobody else gives a new window the keyboard.
        QMetaObject::invokeMethod(
            &found, [&found] { found.activateWindow(); }, Qt::QueuedConnection);
        found._renewal = found._loop.schedule(interval, true, [&found] { found.renew(); });
    });
}

void InformationPanel::place(const QWindow& window) {
    QWidget& content = *_area->widget();
    content.adjustSize();
    const QMargins margins = layout()->contentsMargins();
    const int others = sizeHint().height() - _area->sizeHint().height();
    const QSize whole(content.sizeHint().width() + _area->verticalScrollBar()->sizeHint().width() + margins.left() +
                          margins.right(),
                      content.sizeHint().height() + others);
    // In the upper left of the picture, which stays to be seen beside it.
    const QRect area = window.geometry();
    const int gap = area.height() / 40;
    resize(whole.boundedTo(area.size() - QSize(2 * gap, 2 * gap)));
    move(area.topLeft() + QPoint(gap, gap));
}

void InformationPanel::renew() {
    _information.ask([self = std::weak_ptr(_self)](const MovieInformation::Groups& groups) {
        if (const auto panel = self.lock(); panel && (*panel)->isVisible())
            (*panel)->show(groups);
    });
}

void InformationPanel::show(const MovieInformation::Groups& groups) {
    const bool isSame = _area->widget() && haveSameLines(groups, _shown);
    _shown = groups;
    if (!isSame) {
        layOut();
        return;
    }
    auto value = _values.begin();
    for (const MovieInformation::Group& group : _shown) {
        for (const MovieInformation::Line& line : group.lines) {
            QLabel& label = **value++;
            // What is selected is about to be copied.
            if (label.text() == line.value || label.hasSelectedText())
                continue;
            label.setText(line.value);
            label.setAccessibleName(line.label + QStringLiteral(": ") + line.value);
        }
    }
}

void InformationPanel::layOut() {
    auto* content = new QWidget;
    auto* lines = new QGridLayout(content);
    lines->setColumnStretch(1, 1);
    lines->setHorizontalSpacing(fontMetrics().averageCharWidth() * 3);
    lines->setVerticalSpacing(fontMetrics().height() / 8);
    _values.clear();
    int row = 0;
    for (const MovieInformation::Group& group : _shown) {
        auto* title = new QLabel(group.title);
        QFont font = title->font();
        font.setBold(true);
        title->setFont(font);
        title->setContentsMargins(0, row == 0 ? 0 : fontMetrics().height() / 2, 0, 0);
        lines->addWidget(title, row++, 0, 1, 2);
        for (const MovieInformation::Line& line : group.lines) {
            auto* value = new QLabel(line.value);
            value->setTextFormat(Qt::PlainText);
            value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
            value->setAccessibleName(line.label + QStringLiteral(": ") + line.value);
            value->installEventFilter(this);
            lines->addWidget(new QLabel(line.label), row, 0, Qt::AlignTop);
            lines->addWidget(value, row++, 1, Qt::AlignTop);
            _values.push_back(value);
        }
    }
    if (_shown.empty())
        lines->addWidget(new QLabel(localizedString(QStringLiteral("No movie"))), row++, 0, 1, 2);
    lines->setRowStretch(row, 1);
    _area->setWidget(content);
}

void InformationPanel::copy() const {
    const auto selected = std::ranges::find_if(_values, &QLabel::hasSelectedText);
    QApplication::clipboard()->setText(selected == _values.end() ? text() : (*selected)->selectedText());
}

/// A label that has the keyboard would copy nothing where nothing of it is selected.
bool InformationPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        copy();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

/// Escape is QDialog's.
void InformationPanel::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copy();
        return;
    }
    const Command* command = _commands.withName("show-information");
    const QString typed = QKeySequence(event->keyCombination()).toString(QKeySequence::PortableText);
    const bool closes = command && std::ranges::any_of(command->keys, [&](const CommandKey& key) {
                            return key.character != 0 && portableKeyText(key.chord()) == typed;
                        });
    if (closes)
        close();
    else
        QDialog::keyPressEvent(event);
}

void InformationPanel::hideEvent(QHideEvent* event) {
    _renewal.reset();
    QDialog::hideEvent(event);
    // Without a window manager nobody else gives the keyboard back.
    if (const QWindow* handle = windowHandle(); handle && handle->transientParent())
        handle->transientParent()->requestActivate();
}
