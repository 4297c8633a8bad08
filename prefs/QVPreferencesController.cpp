// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/QVPreferencesController.h"

#include "platform/base/Localization.h"
#include "platform/base/RunLoop.h"
#include "platform/base/SettingsFile.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "platform/window/qt/KeysAhead.h"
#include "prefs/ColorsGroup.h"
#include "prefs/EncodingMenu.h"
#include "prefs/KeysPage.h"
#include "prefs/LanguageList.h"
#include "prefs/PageReset.h"
#include "prefs/PreferencesFilter.h"
#include "prefs/PreferencesPages.h"
#include "prefs/RecentEncodings.h"
#include "prefs/SettingSlider.h"
#include "prefs/VersionCheckGroup.h"
#include "settings/QVOverlayStyleDefaults.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <QColorDialog>
#include <QEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTabBar>
#include <QWindow>

#include <algorithm>
#include <array>
#include <cmath>
#include <ui_Preferences.h>
#include <utility>

namespace {

constexpr const char* className = "QVPreferencesController";

/// The arrangement of the playlist by which its movies are sorted.
constexpr std::int32_t sorted = 2;
/// Above this many seconds the pointer is never hidden.
constexpr std::int32_t maximumCursorHideDelay = 10;

QString nameOfEncoding(std::uint32_t encoding) {
    const QStringList names = JHStringEncodings::localizedNamesOfStringEncodings({encoding});
    return names.isEmpty() ? QString() : names.first();
}

QString localized(const char* key) {
    return platform::localizedString(QString::fromUtf8(key));
}

} // namespace

QVPreferencesController::QVPreferencesController(const Environment& environment, platform::Desktop& desktop,
                                                 PictureSource& pictures, VersionChecking& versions)
    : _environment(environment)
    , _desktop(desktop)
    , _controls(std::make_unique<Ui::Preferences>())
    , _styles(environment, pictures) {
    auto window = std::make_unique<QDialog>();
    _controls->setupUi(window.get());
    _window = std::move(window);
    _versionGroup = std::make_unique<VersionCheckGroup>(environment, *_controls, versions);
    _preferencesChanged = environment.notifications.observe<QVPreferencesChangedNotification>(
        [this](const auto& notification) { preferencesChanged(notification); });
    awakeFromNib();
    _colors = std::make_unique<ColorsGroup>(environment, *_controls, pictures,
                                            [this](const QVariant& value, const QString& key) {
                                                trace("%@: %@ changed to: %d", className, key, value.toInt());
                                                choose(value, key);
                                            });
    setupWholeWindow();
    connectControls();
}

QVPreferencesController::~QVPreferencesController() {
    _environment.settings.setWriteFailureHandler(nullptr);
}

// Setting up

void QVPreferencesController::awakeFromNib() {
    using Self = QVPreferencesController;
    const auto& c = *_controls;
    _plain = {{{c._movieAutofetchSubtitles, kQVAutoloadSubtitles}, &Self::changeAutofetchSubtitles},
              {{c._movieDefaultSize, kQVDefaultMovieSize}, &Self::changeMovieDefaultSize},
              {{c._movieHideOnDeactivate, kQVHideOnDeactivate}, &Self::changeHideOnDeactivate},
              {{c._movieOpenSavedPlaylist, kQVOnLaunchDefaultAction}, &Self::changeOpenSavedPlaylist},
              {{c._movieRemember, kQVRememberMovies}, &Self::changeMovieRemember},
              {{c._moviePauseOnDeactivate, kQVPauseOnDeactivate}, &Self::changePauseOnDeactivate},
              {{c._movieShowController, kQVControllerVisible}, &Self::changeShowController},
              {{c._movieControllerOverPicture, kQVControllerOverPicture}, &Self::changeControllerOverPicture},
              {{c._openVideoPages, kQVOpenVideoPages}, &Self::changeOpenVideoPages},
              {{c._volumeSave, kQVVolumeSave}, &Self::changeSaveVolume},
              {{c._mainWindowLayer, kQVMainWindowLayer}, &Self::changeWindowLayer},
              {{c._playlistSort, kQVPlaylistDefaultArrangement}, &Self::changePlaylistSort},
              {{c._playlistSortNumerically, kQVSortNumerically}, &Self::changePlaylistSortNumerically},
              {{c._playlistSortOnlyFilenames, kQVSortOnlyFilenames, true}, &Self::changePlaylistSortOnlyFilenames},
              {{c._playlistAutoPlay, kQVPlaylistAutoPlay}, &Self::changePlaylistAutoPlay},
              {{c._playlistAutoNext, kQVPlaylistAutoNext}, &Self::changePlaylistAutoNext},
              {{c._playlistAutoQuit, kQVPlaylistAutoQuit}, &Self::changePlaylistAutoQuit},
              {{c._playlistDefaultLoop, kQVPlaylistDefaultLooping}, &Self::changePlaylistDefaultLoop},
              {{c._subtitlesShow, kQVDisplaySubtitles}, &Self::changeSubtitlesShow},
              {{c._subtitlesDefaultFPS, kQVSubtitlesDefaultFPS}, &Self::changeSubtitlesDefaultFPS},
              {{c._subtitlesMarkup, kQVSubtitlesMarkup}, &Self::changeSubtitlesMarkup},
              {{c._subtitlesRepair, kQVSubtitlesRepair}, &Self::changeSubtitlesRepair},
              {{c._useRemote, kQVUseRemote}, &Self::changeUseRemote},
              {{c._advancedEnableTrace, kQVEnableTrace}, &Self::changeEnableTrace},
              {{c._overlayTextFontSizeMin, kQVOverlayTextFontSizeMin}, &Self::changeOverlayTextSizeMin},
              {{c._feedbackShow, kQVDisplayFeedback}, &Self::changeFeedbackShow},
              {{c._displaySaveState, kQVOSDStateSave}, &Self::changeDisplaySaveState},
              {{c._versionCheck, kQVNewVersionShouldCheck}, &Self::changeVersionCheck},
              {{c._versionCheckBeta, kQVNewVersionShouldCheckBeta}, &Self::changeVersionCheckBeta},
              {{c._versionCheckPeriod, kQVNewVersionCheckingPeriod}, &Self::changeVersionCheckPeriod},
              {{c._screenForceBrightness, kQVForceScreenBrightness}, &Self::changeForceBrightness}};

    _subtitlesEncodings = std::make_unique<EncodingMenu>(
        *c._subtitlesDefaultEncoding, [this](const QString&) { changeSubtitlesDefaultEncoding(); },
        [this](const QString& title) { changeSubtitlesAvailableEncodings(title); });
    _subtitlesEncodings->fill(JHStringEncodings::localizedNamesOfStringEncodings(RecentEncodings::fromSetting(
                                  _environment.settings.arrayForKey(kQVSubtitlesEncodingsList))),
                              _encodings.availableEncodings().keys());

    setupOwnRows();
    _styles.addTo(*c._subtitlesStyles, *c._overlayStyles, *c._pages);
    _keys = std::make_unique<KeysPage>(_environment,
                                       [this](const QVariant& value, const QString& key) { choose(value, key); });
    c._keysPageLayout->addWidget(_keys->widget());
    _environment.settings.setWriteFailureHandler([this] { settingsNotSaved(); });
}

void QVPreferencesController::setupOwnRows() {
    const auto& c = *_controls;
    constexpr double percent = 0.01;
    const auto choosing = [this](const QVariant& value, const QString& key) {
        trace("%@: %@ changed to: %@", className, key, value.toStringList().join(u' '));
        choose(value, key);
    };
    _languages = std::make_unique<LanguageList>(
        LanguageList::Parts{*c._languages, *c._languageAdd, *c._languageUp, *c._languageDown, *c._languageRemove},
        [this, choosing](const QVariant& value, const QString& key) {
            choosing(value, key);
            _languages->show(_environment.settings); // an emptied list is the system's again
        });
    _padding = std::make_unique<SettingSlider>(
        SettingSlider::Parts{*c._overlayPadding, *c._overlayPaddingValue, kQVOverlayDefaultPadding, 1, "%d pt"},
        choosing);
    _brightness = std::make_unique<SettingSlider>(SettingSlider::Parts{*c._screenBrightness, *c._screenBrightnessValue,
                                                                       kQVScreenBrightness, percent, "StylePercent"},
                                                  choosing);
    const std::vector<platform::Screen> screens = _desktop.screens();
    _hasBrightness = std::ranges::any_of(
        screens, [this](const platform::Screen& screen) { return std::isfinite(_desktop.brightness(screen)); });
    if (!_hasBrightness) {
        for (QWidget* control :
             {static_cast<QWidget*>(c._screenForceBrightness), static_cast<QWidget*>(c._screenBrightness)})
            control->setToolTip(localized("The brightness of this screen can’t be set"));
    }
}

/// What belongs to no page.
void QVPreferencesController::setupWholeWindow() {
    const auto& c = *_controls;
    _reset =
        std::make_unique<PageReset>(_environment, PageReset::Parts{*c._pages, *c._resetPage, *c._undoReset}, [this] {
            _hasChosen = true;
            syncWithDefaults();
        });
    for (const PlainRow& row : _plain)
        _reset->add(*row.plain.widget(), row.plain.key);
    _reset->add(*c._jumpIntervalStepper, kQVJumpInterval);
    _reset->add(*c._screenBrightness, kQVScreenBrightness);
    _reset->add(*c._subtitlesDefaultEncoding, kQVSubtitlesDefaultEncoding);
    _reset->add(*c._languages, kQVPreferredLanguages);
    _reset->add(*c._overlayPadding, kQVOverlayDefaultPadding);
    _reset->add(*c._advancedCursorHideDelay, kQVCursorAutohideDelay);
    _reset->add(*c._keysPageContents, kQVCommandKeys);
    for (const QString& key : _colors->keys())
        _reset->add(*c._colorsGroup, key);
    _filter = std::make_unique<PreferencesFilter>(*c._pages);
}

void QVPreferencesController::connectControls() {
    const auto& c = *_controls;
    // Signals of what the user does, not of what the program shows.
    for (const auto& [plain, action] : _plain) {
        plain.takeTags();
        const auto act = [this, done = action] { (this->*done)(); };
        if (auto* box = qobject_cast<QCheckBox*>(plain.control))
            connect(box, &QCheckBox::clicked, this, act);
        else if (auto* popUp = qobject_cast<QComboBox*>(plain.control))
            connect(popUp, &QComboBox::activated, this, act);
        else if (auto* group = qobject_cast<QButtonGroup*>(plain.control))
            connect(group, &QButtonGroup::idClicked, this, act);
    }
    connect(&c._jumpIntervalStepper->field(), &QLineEdit::textEdited, this,
            [this] { changeJumpInterval(JumpControl::field); });
    connect(c._jumpIntervalStepper, &QSpinBox::valueChanged, this,
            [this] { changeJumpInterval(JumpControl::stepper); });
    connect(c._advancedCursorHideDelay, &QSlider::valueChanged, this, [this] { changeCursorHideDelay(); });

    auto* window = static_cast<QDialog*>(_window.get());
    connect(c._close, &QPushButton::clicked, window, &QDialog::reject);
    connect(new QShortcut(QKeySequence(QKeySequence::Close), window), &QShortcut::activated, window, &QDialog::reject);
    connect(window, &QDialog::finished, this, [this] { windowWillClose(); });
    window->installEventFilter(this);
    PreferencesPages::prepare(*window);
    PreferencesPages::orderTabs(*c._pages);
    PreferencesPages::switchByKeys(*c._pages);
}

bool QVPreferencesController::eventFilter(QObject* watched, QEvent* event) {
    // The player's own keys and menus may have changed something meanwhile.
    if (event->type() == QEvent::WindowActivate)
        syncWithDefaults();
    return QObject::eventFilter(watched, event);
}

// The window

void QVPreferencesController::showAbove(QWindow* owner) {
    syncWithDefaults();
    _window->winId();
    if (owner) {
        _window->windowHandle()->setTransientParent(owner);
        _window->windowHandle()->setScreen(owner->screen());
    }
    const QRect place = owner ? owner->geometry() : _window->screen()->availableGeometry();
    const bool appears = !_window->isVisible();
    if (appears) {
        _window->setGeometry(PreferencesPages::frameIn(place, *_controls->_pages));
        _filter->clear();
        _controls->_pages->tabBar()->setFocus();
    }
    _window->show();
    if (appears)
        PreferencesPages::fitDecoration(*_window, place);
    _window->raise();
    _window->activateWindow();
    if (owner)
        platform::KeysAhead::await(*owner, *_window->windowHandle());
}

void QVPreferencesController::close() {
    _window->close();
}

void QVPreferencesController::windowWillClose() {
    // A color that is being chosen stays as it was chosen last.
    for (auto* panel : _window->findChildren<QColorDialog*>())
        panel->accept();
    // Without a window manager nobody else gives the keyboard back.
    if (const QWindow* handle = _window->windowHandle(); handle && handle->transientParent())
        handle->transientParent()->requestActivate();
}

// Showing what is stored

void QVPreferencesController::syncWithDefaults() {
    const platform::UserDefaults& settings = _environment.settings;
    const auto& c = *_controls;
    for (const PlainRow& row : _plain)
        row.plain.show(settings);
    _padding->show(settings);
    _colors->show(settings);
    _brightness->show(settings);
    _brightnessGroupSetEnabled(settings.boolForKey(kQVForceScreenBrightness));
    _languages->show(settings);
    showTextSizeMin(settings.integerForKey(kQVOverlayTextFontSizeMin));
    {
        const QSignalBlocker shown(c._jumpIntervalStepper);
        // What is being typed stays.
        if (const std::int32_t interval = settings.integerForKey(kQVJumpInterval);
            interval != c._jumpIntervalStepper->value())
            c._jumpIntervalStepper->setValue(interval);
    }
    _playlistGroupSetEnabled(settings.integerForKey(kQVPlaylistDefaultArrangement) == sorted);
    showEncoding(static_cast<std::uint32_t>(settings.integerForKey(kQVSubtitlesDefaultEncoding)));
    _subtitlesGroupSetEnabled(settings.boolForKey(kQVDisplaySubtitles));
    {
        const QSignalBlocker shown(c._advancedCursorHideDelay);
        c._advancedCursorHideDelay->setValue(settings.integerForKey(kQVCursorAutohideDelay));
    }
    _updateCursorHideDelayValue(c._advancedCursorHideDelay->value());
    _versionGroup->sync();
    _styles.setFeedbackEnabled(settings.boolForKey(kQVDisplayFeedback));
    _styles.sync();
    _reset->update();
}

/// A size that is not offered is added in its place.
void QVPreferencesController::showTextSizeMin(std::int32_t size) {
    QComboBox& popUp = *_controls->_overlayTextFontSizeMin;
    if (popUp.findData(size) < 0) {
        int place = 0;
        while (place < popUp.count() && popUp.itemData(place).toInt() < size)
            ++place;
        popUp.insertItem(place, QString::number(size) + QStringLiteral(" pt"), size);
    }
    popUp.setCurrentIndex(popUp.findData(size));
}

void QVPreferencesController::showEncoding(std::uint32_t encoding) {
    const QString title = nameOfEncoding(encoding);
    if (title == _subtitlesEncodings->titleOfSelectedItem() && !title.isEmpty())
        return;
    _subtitlesEncodings->setChecked(_subtitlesEncodings->titleOfSelectedItem(), false);
    // One that the list has lost is the chosen one all the same.
    if (!title.isEmpty())
        _subtitlesEncodings->insertItem(title);
    _subtitlesEncodings->selectItemWithTitle(title.isEmpty() ? localized("Unknown") : title);
    _subtitlesEncodings->setChecked(title, true);
}

void QVPreferencesController::_playlistGroupSetEnabled(bool enabled) {
    _controls->_playlistSortNumerically->setEnabled(enabled);
    for (QAbstractButton* button : _controls->_playlistSortOnlyFilenames->buttons())
        button->setEnabled(enabled);
}

void QVPreferencesController::_subtitlesGroupSetEnabled(bool enabled) {
    _controls->_subtitlesDefaultEncoding->setEnabled(enabled);
    _controls->_subtitlesDefaultFPS->setEnabled(enabled);
    _styles.setSubtitlesEnabled(enabled);
}

void QVPreferencesController::_versionGroupSetEnabled(bool enabled) {
    _versionGroup->setEnabled(enabled);
}

void QVPreferencesController::_brightnessGroupSetEnabled(bool enabled) {
    _controls->_screenForceBrightness->setEnabled(_hasBrightness);
    _brightness->setEnabled(_hasBrightness && enabled);
}

void QVPreferencesController::_updateCursorHideDelayValue(std::int32_t seconds) {
    const QString text = seconds > maximumCursorHideDelay
                             ? localized("Never")
                             : platform::localizedFormat(QStringLiteral("%d sec."), {QString::number(seconds)});
    _controls->_advancedCursorHideDelayValue->setText(text);
    _controls->_advancedCursorHideDelay->setAccessibleDescription(text);
}

// What the user changed

void QVPreferencesController::store(const QVariant& value, const QString& key) {
    _hasChosen = true;
    _environment.settings.setChosenObject(value, key);
}

void QVPreferencesController::choose(const QVariant& value, const QString& key) {
    store(value, key);
    _environment.notifications.post(QVPreferencesChangedNotification{key, {}});
}

void QVPreferencesController::plainChange(const QObject* control) {
    const PlainControl& plain =
        std::ranges::find(_plain, control, [](const PlainRow& row) { return row.plain.control; })->plain;
    trace("%@: %@ changed to: %d", className, plain.key, plain.value());
    choose(plain.stored(), plain.key);
}

void QVPreferencesController::changeAutofetchSubtitles() {
    plainChange(_controls->_movieAutofetchSubtitles);
}

void QVPreferencesController::changeMovieDefaultSize() {
    plainChange(_controls->_movieDefaultSize);
}

void QVPreferencesController::changeMovieRemember() {
    plainChange(_controls->_movieRemember);
}

void QVPreferencesController::changeHideOnDeactivate() {
    plainChange(_controls->_movieHideOnDeactivate);
}

void QVPreferencesController::changeOpenSavedPlaylist() {
    plainChange(_controls->_movieOpenSavedPlaylist);
}

void QVPreferencesController::changePauseOnDeactivate() {
    plainChange(_controls->_moviePauseOnDeactivate);
}

void QVPreferencesController::changeShowController() {
    plainChange(_controls->_movieShowController);
}

void QVPreferencesController::changeControllerOverPicture() {
    plainChange(_controls->_movieControllerOverPicture);
}

void QVPreferencesController::changeOpenVideoPages() {
    plainChange(_controls->_openVideoPages);
}

void QVPreferencesController::changeUseRemote() {
    plainChange(_controls->_useRemote);
}

void QVPreferencesController::changeSaveVolume() {
    plainChange(_controls->_volumeSave);
}

void QVPreferencesController::changeWindowLayer() {
    plainChange(_controls->_mainWindowLayer);
}

void QVPreferencesController::changePlaylistSort() {
    _playlistGroupSetEnabled(_controls->_playlistSort->checkedId() == sorted);
    plainChange(_controls->_playlistSort);
}

void QVPreferencesController::changePlaylistSortNumerically() {
    plainChange(_controls->_playlistSortNumerically);
}

void QVPreferencesController::changePlaylistSortOnlyFilenames() {
    plainChange(_controls->_playlistSortOnlyFilenames);
}

void QVPreferencesController::changePlaylistAutoPlay() {
    plainChange(_controls->_playlistAutoPlay);
}

void QVPreferencesController::changePlaylistAutoNext() {
    plainChange(_controls->_playlistAutoNext);
}

void QVPreferencesController::changePlaylistAutoQuit() {
    plainChange(_controls->_playlistAutoQuit);
}

void QVPreferencesController::changePlaylistDefaultLoop() {
    plainChange(_controls->_playlistDefaultLoop);
}

void QVPreferencesController::changeSubtitlesShow() {
    _subtitlesGroupSetEnabled(_controls->_subtitlesShow->isChecked());
    plainChange(_controls->_subtitlesShow);
}

void QVPreferencesController::changeSubtitlesDefaultFPS() {
    plainChange(_controls->_subtitlesDefaultFPS);
}

void QVPreferencesController::changeSubtitlesMarkup() {
    plainChange(_controls->_subtitlesMarkup);
}

void QVPreferencesController::changeSubtitlesRepair() {
    plainChange(_controls->_subtitlesRepair);
}

void QVPreferencesController::changeEnableTrace() {
    plainChange(_controls->_advancedEnableTrace);
}

void QVPreferencesController::changeOverlayTextSizeMin() {
    plainChange(_controls->_overlayTextFontSizeMin);
}

void QVPreferencesController::changeFeedbackShow() {
    _styles.setFeedbackEnabled(_controls->_feedbackShow->isChecked());
    plainChange(_controls->_feedbackShow);
}

void QVPreferencesController::changeDisplaySaveState() {
    plainChange(_controls->_displaySaveState);
}

void QVPreferencesController::changeVersionCheck() {
    _versionGroupSetEnabled(_controls->_versionCheck->isChecked());
    plainChange(_controls->_versionCheck);
}

void QVPreferencesController::changeVersionCheckBeta() {
    plainChange(_controls->_versionCheckBeta);
}

void QVPreferencesController::changeVersionCheckPeriod() {
    plainChange(_controls->_versionCheckPeriod);
}

void QVPreferencesController::changeForceBrightness() {
    _brightnessGroupSetEnabled(_controls->_screenForceBrightness->isChecked());
    plainChange(_controls->_screenForceBrightness);
}

void QVPreferencesController::changeJumpInterval(JumpControl sender) {
    JumpIntervalBox& stepper = *_controls->_jumpIntervalStepper;
    if (sender == JumpControl::field) {
        const QString text = stepper.field().text();
        if (text.isEmpty())
            return;
        bool isNumber = false;
        const int typed = stepper.locale().toInt(text, &isNumber);
        const QSignalBlocker copied(&stepper);
        if (isNumber && typed >= stepper.minimum() && typed <= stepper.maximum()) {
            stepper.setValue(typed);
        } else {
            _desktop.beep();
            stepper.setValue(stepper.value());
        }
    }
    const std::int32_t interval = stepper.value();
    if (interval == _environment.settings.integerForKey(kQVJumpInterval))
        return;
    trace("%@: %@ changed to: %d", className, kQVJumpInterval, interval);
    choose(interval, kQVJumpInterval);
}

void QVPreferencesController::changeCursorHideDelay() {
    const std::int32_t delay = _controls->_advancedCursorHideDelay->value();
    if (delay == _environment.settings.integerForKey(kQVCursorAutohideDelay))
        return;
    trace("%@: %@ changed to: %d", className, kQVCursorAutohideDelay, delay);
    _updateCursorHideDelayValue(delay);
    choose(delay, kQVCursorAutohideDelay);
}

void QVPreferencesController::changeSubtitlesDefaultEncoding() {
    platform::UserDefaults& settings = _environment.settings;
    const QString title = _subtitlesEncodings->titleOfSelectedItem();
    const std::uint32_t encoding = _encodings.encodingForLocalizedEncodingName(title);
    const auto before = static_cast<std::uint32_t>(settings.integerForKey(kQVSubtitlesDefaultEncoding));
    if (encoding == before || encoding == JHStringEncodings::noEncoding)
        return;
    _subtitlesEncodings->setChecked(nameOfEncoding(before), false);
    _subtitlesEncodings->setChecked(title, true);
    trace("%@: %@ changed to: %@", className, kQVSubtitlesDefaultEncoding, title);
    const auto recent = RecentEncodings::fromSetting(settings.arrayForKey(kQVSubtitlesEncodingsList));
    store(RecentEncodings::toSetting(RecentEncodings::withFirst(recent, encoding)), kQVSubtitlesEncodingsList);
    choose(static_cast<std::int32_t>(encoding), kQVSubtitlesDefaultEncoding);
}

void QVPreferencesController::changeSubtitlesAvailableEncodings(const QString& title) {
    platform::UserDefaults& settings = _environment.settings;
    const std::uint32_t encoding = _encodings.encodingForLocalizedEncodingName(title);
    if (encoding == static_cast<std::uint32_t>(settings.integerForKey(kQVSubtitlesDefaultEncoding)))
        return;
    if (!_subtitlesEncodings->hasItemWithTitle(title)) {
        const auto [encodings, dropped] =
            RecentEncodings::adding(RecentEncodings::fromSetting(settings.arrayForKey(kQVSubtitlesEncodingsList)),
                                    encoding, settings.integerForKey(kQVSubtitlesEncodingsListSize));
        for (const std::uint32_t old : dropped)
            _subtitlesEncodings->removeItemWithTitle(nameOfEncoding(old));
        store(RecentEncodings::toSetting(encodings), kQVSubtitlesEncodingsList);
        _subtitlesEncodings->insertItem(title);
    }
    _subtitlesEncodings->selectItemWithTitle(title);
    changeSubtitlesDefaultEncoding();
}

// What was changed elsewhere

void QVPreferencesController::preferencesChanged(const QVPreferencesChangedNotification& notification) {
    static const std::array styles{&kQVSubtitlesOverlayStyle, &kQVFeedbackOverlayStyle, &kQVOSDOverlayStyle};
    const auto isChanged = [&](const QString* style) { return notification.key == *style; };
    if (std::ranges::none_of(styles, isChanged) ||
        !notification.styleKeys.contains(OverlayStyle::keyOf(&OverlayStyle::textFontSize)))
        return;
    const auto style = QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(_environment.settings, notification.key);
    if (!style)
        return;
    // The minimum never stays above a size that the user has just chosen.
    const auto size = static_cast<std::int32_t>(style->values().textFontSize);
    if (_environment.settings.integerForKey(kQVOverlayTextFontSizeMin) > size) {
        showTextSizeMin(size);
        changeOverlayTextSizeMin();
    }
}

/// Said once, and only to whoever changed something here.
void QVPreferencesController::settingsNotSaved() {
    if (!_hasChosen || std::exchange(_saidNotSaved, true))
        return;
    _desktop.runAlert(
        {localized("SettingsNotSavedMessage"),
         platform::localizedFormat(QStringLiteral("SettingsNotSavedDetails"), {platform::SettingsFile::defaultPath()}),
         localized("OK"),
         {},
         {}});
    // Without a window manager nobody else gives the keyboard back.
    _window->activateWindow();
}
