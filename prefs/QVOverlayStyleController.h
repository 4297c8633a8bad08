// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"
#include "prefs/StyleControls.h"
#include "settings/QVOverlayStyleDefaults.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>
#include <optional>

class PictureSource;
class SettingsReset;
class StyleSample;
struct QVPreferencesChangedNotification;

/// A section of the preferences in which one overlay style is edited, with a sample beside it. Each change is stored
/// and announced at once with QVPreferencesChangedNotification (the selector key, and the style key that changed);
/// showing the style does neither. While the section can be used, the player shows the style
/// (QVOverlayStyleEditedNotification). A value that a control cannot show stays as it is until that control is used.
/// Main thread.
class QVOverlayStyleController final : private QObject {
public:
    /// Made without a style, and with the fonts of the system. The source outlives the section.
    QVOverlayStyleController(const Environment& environment, PictureSource& pictures);
    QVOverlayStyleController(const QVOverlayStyleController&) = delete;
    QVOverlayStyleController& operator=(const QVOverlayStyleController&) = delete;
    /// The section goes, too.
    ~QVOverlayStyleController() override;

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
    // Of the two opacities, the other one moves along where the smallest would lie above the largest.
    void changeMinAlpha(const FloatSlider& sender);
    void changeMaxAlpha(const FloatSlider& sender);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void awakeFromNib();
    void connectControls();
    void connectReset();
    void showReset();
    void wasReset();
    /// Tells whether the section can be used, where that has changed.
    void tellEditing();
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
    std::unique_ptr<SettingsReset> _reset;
    bool _enabled = true;
    bool _isEditing = false;
    platform::Subscription _onPreferences;
};
