// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

#include <functional>

class QLabel;
class QSlider;

namespace platform {
class UserDefaults;
} // namespace platform

/// A slider of the interface file over a setting that is a number with fractions, with its read-out. Each step to which
/// the user moves it is chosen at once; showing what is stored chooses nothing. Main thread.
class SettingSlider final : public QObject {
public:
    struct Parts {
        QSlider& slider;
        QLabel& value;
        QString key;
        /// What a step of the slider counts in the setting.
        double unit = 1;
        /// Of the read-out, whose "%d" is the slider's step.
        const char* format = "%d";
    };
    using Choose = std::function<void(const QVariant& value, const QString& key)>;
    /// The widgets and what `choose` uses outlive it.
    SettingSlider(Parts parts, Choose choose);

    /// The nearest value that the slider offers.
    void show(const platform::UserDefaults& settings);
    void setEnabled(bool enabled);
    const QString& key() const { return _parts.key; }

private:
    void write();

    Parts _parts;
    Choose _choose;
};
