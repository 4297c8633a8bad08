// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/ColorWell.h"

#include <QColorDialog>
#include <QEvent>
#include <QPainter>
#include <QSignalBlocker>

#include <cmath>

ColorWell::ColorWell() {
    // In a dialog Return would open the colors of the first one, whichever control has the keyboard.
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] { openDialog(); });
}

ColorWell::~ColorWell() {
    delete _dialog.data();
}

void ColorWell::setColor(const QColor& color) {
    _color = color;
    constexpr float percent = 100;
    setAccessibleDescription(
        color.isValid()
            ? QStringLiteral("%1, %2 %").arg(color.name()).arg(static_cast<int>(std::lround(color.alphaF() * percent)))
            : QString());
    if (_dialog && _dialog->currentColor().rgba() != color.rgba()) {
        const QSignalBlocker silently(_dialog);
        _dialog->setCurrentColor(color);
    }
    update();
}

QSize ColorWell::sizeHint() const {
    return {4 * fontMetrics().height(), QPushButton::sizeHint().height()};
}

void ColorWell::paintEvent(QPaintEvent* event) {
    QPushButton::paintEvent(event);
    QPainter painter(this);
    if (!isEnabled())
        painter.setOpacity(0.3);
    const int margin = height() / 4;
    const QRect swatch = rect().adjusted(margin, margin, -margin, -margin);
    // What shows through tells how opaque the colour is; the left half tells what it is.
    painter.fillRect(swatch, Qt::white);
    const int tile = std::max(2, swatch.height() / 3);
    for (int y = 0; y * tile < swatch.height(); ++y)
        for (int x = y % 2; x * tile < swatch.width(); x += 2)
            painter.fillRect(QRect(swatch.x() + x * tile, swatch.y() + y * tile, tile, tile).intersected(swatch),
                             Qt::gray);
    if (_color.isValid()) {
        painter.fillRect(swatch, _color);
        QColor opaque = _color;
        opaque.setAlphaF(1);
        painter.fillRect(QRect(swatch.topLeft(), QSize(swatch.width() / 2, swatch.height())), opaque);
    }
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(swatch.adjusted(0, 0, -1, -1));
}

void ColorWell::changeEvent(QEvent* event) {
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled() && _dialog)
        _dialog->close();
}

void ColorWell::choose(const QColor& color) {
    if (color == _color)
        return;
    setColor(color);
    if (chosen)
        chosen();
}

void ColorWell::openDialog() {
    if (_dialog) {
        _dialog->raise();
        _dialog->activateWindow();
        return;
    }
    _dialog = new QColorDialog(this);
    _dialog->setAttribute(Qt::WA_DeleteOnClose);
    _dialog->setWindowTitle(_title);
    _dialog->setOptions(QColorDialog::ShowAlphaChannel | QColorDialog::DontUseNativeDialog);
    _dialog->setCurrentColor(_color);
    connect(_dialog, &QColorDialog::currentColorChanged, this, [this](const QColor& color) { choose(color); });
    connect(_dialog, &QColorDialog::rejected, this, [this, before = _color] { choose(before); });
    // Without a window manager nobody else gives the keyboard, or takes it back.
    connect(_dialog, &QColorDialog::finished, this, [this] { window()->activateWindow(); });
    _dialog->setModal(false);
    _dialog->show();
    _dialog->activateWindow();
}
