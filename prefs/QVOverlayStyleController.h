// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"
#include "prefs/StyleControls.h"
#include "settings/QVOverlayStyleDefaults.h"

#include <QPointer>
#include <QString>

#include <optional>

class QScrollArea;
class StyleSample;
struct QVPreferencesChangedNotification;

/// A section of the preferences in which one overlay style is edited, with a sample beside it. Each change is stored
/// and announced at once with QVPreferencesChangedNotification (the selector key, and the style key that changed);
/// showing the style does neither. A value that a control cannot show stays as it is until that control is used. Main
/// thread.
class QVOverlayStyleController {
public:
    /// Made without a style, and with the fonts of the system.
    explicit QVOverlayStyleController(const Environment& environment);
    QVOverlayStyleController(const QVOverlayStyleController&) = delete;
    QVOverlayStyleController& operator=(const QVOverlayStyleController&) = delete;
    /// The section goes, too.
    ~QVOverlayStyleController();

    /// The section, to be put into a window, which may destroy it first.
    QWidget* widget() const { return _widget; }

    /// From here on the section edits the style that the selector key names, and shows it.
    void setupWithModelForKey(const QString& key);
    /// Shows the style as it stands in the settings now.
    void syncWithModel();
    /// Enables the whole section, but for what the style's own switches disable.
    void setEnabled(bool enabled);
    /// The selector key.
    const QString& key() const { return _key; }

    // What each control does, given the control that was used.
    void changeTextColor(const ColorWell& sender);
    void changeTextFontName(const QComboBox& sender);
    void changeTextFontSize(const QComboBox& sender);
    void changeShadowOn(const QCheckBox& sender);
    void changeShadowColor(const ColorWell& sender);
    void changeShadowBlurRadius(const FloatSlider& sender);
    /// Of either slider.
    void changeShadowOffset(const FloatSlider& sender);
    void changeBackgroundOn(const QCheckBox& sender);
    void changeBackgroundColor(const ColorWell& sender);
    void changeBackgroundRounded(const QCheckBox& sender);
    void changeBackgroundRadius(const FloatSlider& sender);
    void changeBackgroundFrameOn(const QCheckBox& sender);
    void changeBackgroundFrameWidth(const FloatSlider& sender);
    /// Of either pop-up. What is placed here stands inside its parent.
    void changeAlignment(const QComboBox& sender);
    void changeFadingInInterval(const FloatSlider& sender);
    void changeFadingOutInterval(const FloatSlider& sender);
    void changeFadingDelayInterval(const FloatSlider& sender);
    void changeMinAlpha(const FloatSlider& sender);
    void changeMaxAlpha(const FloatSlider& sender);

private:
    void awakeFromNib();
    void connectControls();
    /// A text size below the smallest that any overlay may have is raised to that.
    void preferencesChanged(const QVPreferencesChangedNotification& notification);

    void _shadowGroupSetEnabled(bool enabled);
    void _backgroundGroupSetEnabled(bool enabled);
    void _backgroundSliderSetEnabled(bool enabled);
    void _backgroundFrameWidthSetEnabled(bool enabled);
    bool isBackgroundOn() const;

    OverlayStyle values() const;
    template <class Value>
    void change(Value OverlayStyle::*field, const std::type_identity_t<Value>& value, const char* message,
                const QString& text);
    template <class Value>
    void changeNumber(Value OverlayStyle::*field, const FloatSlider& sender);
    void changeColor(std::optional<QColor> OverlayStyle::*field, const ColorWell& sender);
    void changeFlag(bool OverlayStyle::*field, const QCheckBox& sender);

    Environment _environment;
    QPointer<QWidget> _widget;
    StyleControls _controls;
    StyleSample* _sample;
    QString _key;
    std::optional<QVOverlayStyleDefaults> _model;
    bool _enabled = true;
    platform::Subscription _onPreferences;
};
