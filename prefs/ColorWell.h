// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPointer>
#include <QPushButton>

#include <functional>

class QColorDialog;

/// A button that shows a colour with its opacity, and opens a window to choose another. Each colour that is tried there
/// counts at once; cancelling brings back the one before. Main thread.
class ColorWell final : public QPushButton {
public:
    ColorWell();
    ~ColorWell() override;

    QColor color() const { return _color; }
    /// Tells nobody. An invalid colour shows as none.
    void setColor(const QColor& color);
    /// Of the window.
    void setTitle(const QString& title) { _title = title; }

    /// Called with each colour that the user tries.
    std::function<void()> chosen;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void openDialog();
    void choose(const QColor& color);

    QColor _color;
    QString _title;
    QPointer<QColorDialog> _dialog; // while it is open
};
