// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/GoToTimePanel.h"

#include "overlays/ClockText.h"
#include "platform/base/Localization.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWindow>

using platform::localizedFormat;
using platform::localizedString;

std::optional<double> runGoToTimePanel(double now, double duration, const std::function<void()>& beep,
                                       QWindow* window) {
    QDialog panel;
    panel.setWindowTitle(localizedString(QStringLiteral("Go to Time")));
    auto* layout = new QVBoxLayout(&panel);
    const QString words =
        duration > 0 ? localizedFormat(QStringLiteral("Time in the movie, up to %@:"), {preciseClockText(duration, 1)})
                     : localizedString(QStringLiteral("Time in the movie:"));
    auto* label = new QLabel(words);
    auto* field = new QLineEdit(preciseClockText(now, 3));
    label->setBuddy(field);
    field->setAccessibleName(words);
    field->selectAll();
    auto* hint = new QLabel(localizedString(QStringLiteral("Seconds, minutes or hours: 90, 1:30 or 1:23:45.6")));
    hint->setEnabled(false);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    for (QWidget* widget : std::initializer_list<QWidget*>{label, field, hint, buttons})
        layout->addWidget(widget);
    std::optional<double> answer;
    QObject::connect(buttons, &QDialogButtonBox::accepted, &panel, [&] {
        answer = secondsOfClockText(field->text());
        if (answer && (duration <= 0 || *answer <= duration)) {
            panel.accept();
            return;
        }
        answer.reset();
        beep();
        field->selectAll();
        field->setFocus();
    });
    QObject::connect(buttons, &QDialogButtonBox::rejected, &panel, &QDialog::reject);
    panel.winId();
    if (window) {
        panel.windowHandle()->setTransientParent(window);
        // Below the middle: most of the picture stays to be seen.
        const QRect area = window->geometry();
        panel.adjustSize();
        panel.move(area.center().x() - panel.width() / 2, area.top() + area.height() * 2 / 3);
    }
    // Without a window manager nobody else gives a new window the keyboard.
    QMetaObject::invokeMethod(
        &panel, [&panel] { panel.activateWindow(); }, Qt::QueuedConnection);
    return panel.exec() == QDialog::Accepted ? answer : std::nullopt;
}
