// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSpinBox>

/// A number field with its stepper, into which any whole number may be typed: whoever listens to the field judges it,
/// and says so, where a plain box would swallow the key without a word. The value always lies within the bounds.
class JumpIntervalBox final : public QSpinBox {
public:
    using QSpinBox::QSpinBox;

    QLineEdit& field() const { return *lineEdit(); }

protected:
    QValidator::State validate(QString& text, int& position) const override;
    /// A field that is left empty takes the value again.
    void fixup(QString& text) const override;
};
