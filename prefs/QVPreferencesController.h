// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"
#include "prefs/PlainControl.h"
#include "prefs/StyleSections.h"
#include "subtitles/JHStringEncodings.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

class ColorsGroup;
class EncodingMenu;
class KeysPage;
class LanguageList;
class PageReset;
class PictureSource;
class PreferencesFilter;
class VersionCheckGroup;
class VersionChecking;
class QVariant;
class QWidget;
class QWindow;
class SettingSlider;
struct QVPreferencesChangedNotification;

namespace Ui {
class Preferences;
} // namespace Ui

namespace platform {
class Desktop;
} // namespace platform

/// Runs the preferences window: shows the stored settings in its controls, stores each change at once, as the user's
/// own choice also where this run overrides the key, and posts QVPreferencesChangedNotification with the key, also when
/// the value is the same as before. Showing a value does none of this. Made when the preferences are first asked for.
///
/// The controls are the members of the interface file (resources/interface/Preferences.ui), each named as it is here.
/// Main thread.
class QVPreferencesController final : public QObject {
public:
    /// All outlive the controller.
    QVPreferencesController(const Environment& environment, platform::Desktop& desktop, PictureSource& pictures,
                            VersionChecking& versions);
    QVPreferencesController(const QVPreferencesController&) = delete;
    QVPreferencesController& operator=(const QVPreferencesController&) = delete;
    ~QVPreferencesController() override;

    QWidget& window() const { return *_window; }
    /// Shows every stored value in its control. A value that a control cannot show leaves it at the nearest, or without
    /// a selection.
    void syncWithDefaults();
    /// Shows the window with what is stored now, in the middle of `owner`'s place and above it, and gives it the
    /// keyboard. The owner takes the keyboard back when the window closes.
    void showAbove(QWindow* owner);
    void close();

    // What the controls do when the user has changed them.
    void changeAutofetchSubtitles();
    void changeMovieDefaultSize();
    void changeHideOnDeactivate();
    void changeMovieRemember();
    void changeOpenSavedPlaylist();
    void changePauseOnDeactivate();
    void changeShowController();
    void changeOpenVideoPages();
    void changeUseRemote();
    /// Which of the two controls of the jump interval was changed. What is typed counts at once; beyond the bounds it
    /// sounds the beep, and the stepper's value comes back. An empty field waits for what is typed next.
    enum class JumpControl { field, stepper };
    void changeJumpInterval(JumpControl sender);
    void changeSaveVolume();
    void changeControllerOverPicture();
    void changeWindowLayer();
    void changePlaylistSort();
    void changePlaylistSortNumerically();
    void changePlaylistSortOnlyFilenames();
    void changePlaylistAutoPlay();
    void changePlaylistAutoNext();
    void changePlaylistAutoQuit();
    void changePlaylistDefaultLoop();
    void changeSubtitlesShow();
    void changeSubtitlesDefaultEncoding();
    void changeSubtitlesAvailableEncodings(const QString& title);
    void changeSubtitlesDefaultFPS();
    void changeSubtitlesMarkup();
    void changeSubtitlesRepair();
    void changeCursorHideDelay();
    void changeEnableTrace();
    void changeOverlayTextSizeMin();
    void changeFeedbackShow();
    void changeDisplaySaveState();
    void changeVersionCheck();
    void changeVersionCheckBeta();
    void changeVersionCheckPeriod();
    void changeForceBrightness();

private:
    struct PlainRow {
        PlainControl plain;
        void (QVPreferencesController::*action)();
    };

    bool eventFilter(QObject* watched, QEvent* event) override;
    void awakeFromNib();
    void setupOwnRows();
    void setupWholeWindow();
    void connectControls();
    void windowWillClose();
    void preferencesChanged(const QVPreferencesChangedNotification& notification);

    void plainChange(const QObject* control);
    /// Stores what the user chose, and announces it.
    void choose(const QVariant& value, const QString& key);
    void store(const QVariant& value, const QString& key);
    void settingsNotSaved();
    void showEncoding(std::uint32_t encoding);
    void showTextSizeMin(std::int32_t size);

    void _playlistGroupSetEnabled(bool enabled);
    void _subtitlesGroupSetEnabled(bool enabled);
    void _versionGroupSetEnabled(bool enabled);
    void _brightnessGroupSetEnabled(bool enabled);
    void _updateCursorHideDelayValue(std::int32_t seconds);

    Environment _environment;
    platform::Desktop& _desktop;
    std::unique_ptr<QWidget> _window;
    std::unique_ptr<Ui::Preferences> _controls;
    std::vector<PlainRow> _plain;
    JHStringEncodings _encodings;
    std::unique_ptr<EncodingMenu> _subtitlesEncodings;
    StyleSections _styles;
    std::unique_ptr<KeysPage> _keys;
    std::unique_ptr<SettingSlider> _brightness;
    std::unique_ptr<SettingSlider> _padding;
    std::unique_ptr<ColorsGroup> _colors;
    std::unique_ptr<LanguageList> _languages;
    std::unique_ptr<PageReset> _reset;
    std::unique_ptr<PreferencesFilter> _filter;
    /// Whether a screen lets its brightness be set.
    bool _hasBrightness = false;
    std::unique_ptr<VersionCheckGroup> _versionGroup;
    bool _hasChosen = false;
    bool _saidNotSaved = false;
    platform::Subscription _preferencesChanged;
};
