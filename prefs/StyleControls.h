// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QString>

class ColorWell;
class FloatSlider;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QPushButton;
class QWidget;

/// A control with its caption and its read-out, where it has them.
template <class Control>
struct StyleRow {
    Control* control = nullptr;
    QLabel* label = nullptr;
    QLabel* value = nullptr;
    /// Whether the style has a use for it; else it is not shown.
    bool used = true;

    template <class Visit>
    void visit(Visit visit) const {
        visit(static_cast<QWidget*>(control));
        if (label)
            visit(static_cast<QWidget*>(label));
        if (value)
            visit(static_cast<QWidget*>(value));
    }
    void setEnabled(bool enabled) const {
        visit([enabled](QWidget* widget) { widget->setEnabled(enabled); });
    }
};

/// The widgets in which one overlay style is edited, laid out in groups. They know nothing of settings. All belong to
/// `controls`, and each is named as its member, with "Label" or "Value" behind for captions and read-outs. Main thread.
struct StyleControls {
    /// `key` is the style selector key: what its overlays have no use for is not shown, and some titles depend on it.
    void setupForKey(const QString& key);
    /// Makes all of them, with nothing to choose among the fonts.
    StyleControls();

    QWidget* controls;

    StyleRow<ColorWell> textColor;
    StyleRow<QComboBox> textFontName;
    /// Items are tagged with points.
    StyleRow<QComboBox> textFontSize;
    StyleRow<QCheckBox> shadowOn;
    StyleRow<ColorWell> shadowColor;
    StyleRow<FloatSlider> shadowBlurRadius;
    StyleRow<FloatSlider> shadowOffsetX;
    StyleRow<FloatSlider> shadowOffsetY;
    StyleRow<QCheckBox> backgroungOn;
    StyleRow<ColorWell> backgroungColor;
    StyleRow<QCheckBox> backgroungRounded;
    StyleRow<FloatSlider> backgroungRadius;
    StyleRow<QCheckBox> backgroungFrameOn;
    StyleRow<FloatSlider> backgroungFrameWidth;
    /// Items are tagged with the fields of the alignment code.
    StyleRow<QComboBox> alignmentVertical;
    StyleRow<QComboBox> alignmentHorizontal;
    StyleRow<FloatSlider> fadingInInterval;
    StyleRow<FloatSlider> fadingOutInterval;
    StyleRow<FloatSlider> fadingDelayInterval;
    StyleRow<FloatSlider> minAlpha;
    StyleRow<FloatSlider> maxAlpha;

    QPushButton* reset;
    QPushButton* undoReset;

    /// Fills the read-out: plain points, and seconds and opacities with their units.
    static void showPoints(const StyleRow<FloatSlider>& row);
    static void showSeconds(const StyleRow<FloatSlider>& row);
    static void showPercent(const StyleRow<FloatSlider>& row);

    /// Of the item with that tag; -1 for none.
    static int indexOfTag(const QComboBox& popUp, int tag);

private:
    class Group;
    template <class Visit>
    void visitRows(Visit visit);

    QGroupBox* _text;
    QGroupBox* _shadow;
    QGroupBox* _position;
    QGroupBox* _panel;
    QGroupBox* _fading;
};
