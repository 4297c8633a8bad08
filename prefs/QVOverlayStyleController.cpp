// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/QVOverlayStyleController.h"

#include "context/Notifications.h"
#include "overlays/OverlayPlacement.h"
#include "platform/base/UserDefaults.h"
#include "prefs/ColorWell.h"
#include "prefs/FloatSlider.h"
#include "prefs/SettingsReset.h"
#include "prefs/StyleSample.h"
#include "settings/ColorText.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <utility>

namespace {

constexpr const char* className = "QVOverlayStyleController";

constexpr auto verticalField = static_cast<std::int32_t>(OverlayPlacement::verticalMask);
constexpr auto horizontalField = static_cast<std::int32_t>(OverlayPlacement::horizontalMask);
constexpr auto insideParent = static_cast<std::int32_t>(OverlayPlacement::insideParent);

QString twoDigits(double value) {
    return QString::number(value, 'g', 2);
}

/// Selects an item without telling anybody; -1 selects none.
void select(QComboBox& popUp, int index) {
    const QSignalBlocker silently(popUp);
    popUp.setCurrentIndex(index);
}

void check(QCheckBox& box, bool checked) {
    const QSignalBlocker silently(box);
    box.setChecked(checked);
}

/// The item of the text size, put in its place among the others where there is none.
int itemOfSize(QComboBox& popUp, int size) {
    if (const int known = StyleControls::indexOfTag(popUp, size); known >= 0)
        return known;
    int index = 0;
    while (index < popUp.count() && popUp.itemData(index).toInt() < size)
        ++index;
    const QSignalBlocker silently(popUp);
    popUp.insertItem(index, QLocale().toString(size), size);
    return index;
}

/// The same for a font's name. A font that is not installed stays what the style asks for.
int itemOfFont(QComboBox& popUp, const QString& name) {
    if (name.isEmpty())
        return -1;
    if (const int known = popUp.findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive); known >= 0)
        return known;
    int index = 0;
    while (index < popUp.count() && popUp.itemText(index) < name)
        ++index;
    const QSignalBlocker silently(popUp);
    popUp.insertItem(index, name);
    return index;
}

/// The selected item's tag; without one, `other`.
std::int32_t selectedTag(const QComboBox& popUp, std::int32_t other) {
    return popUp.currentIndex() >= 0 ? popUp.currentData().toInt() : other;
}

/// The controls keep their width, and scroll where the window is too low for them.
class ControlsArea final : public QScrollArea {
public:
    explicit ControlsArea(QWidget* controls) {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFocusPolicy(Qt::NoFocus);
        setWidget(controls);
    }
    QSize sizeHint() const override { return widget()->sizeHint() + QSize(barWidth(), 0); }
    QSize minimumSizeHint() const override {
        return {widget()->minimumSizeHint().width() + barWidth(), QScrollArea::minimumSizeHint().height()};
    }

private:
    int barWidth() const { return verticalScrollBar()->sizeHint().width(); }
};

} // namespace

QVOverlayStyleController::QVOverlayStyleController(const Environment& environment, PictureSource& pictures)
    : _environment(environment)
    , _widget(new QWidget)
    , _sample(new StyleSample(environment, pictures)) {
    auto* layout = new QHBoxLayout(_widget);
    layout->addWidget(new ControlsArea(_controls.controls));
    layout->addWidget(_sample, 1);
    awakeFromNib();
    connectControls();
    connectReset();
    _widget->installEventFilter(this);
    _onPreferences = environment.notifications.observe<QVPreferencesChangedNotification>(
        [this](const QVPreferencesChangedNotification& notification) { preferencesChanged(notification); });
}

QVOverlayStyleController::~QVOverlayStyleController() {
    if (_widget)
        _widget->removeEventFilter(this);
    delete _widget.data();
    _widget = nullptr;
    tellEditing();
}

bool QVOverlayStyleController::eventFilter(QObject* watched, QEvent* event) {
    if (watched == _widget.data() && (event->type() == QEvent::Show || event->type() == QEvent::Hide))
        tellEditing();
    return QObject::eventFilter(watched, event);
}

void QVOverlayStyleController::tellEditing() {
    using Page = QVOverlayStyleEditedNotification::Page;
    const bool isEditing = _widget && _widget->isVisible() && _enabled;
    if (std::exchange(_isEditing, isEditing) != isEditing)
        _environment.notifications.post(
            QVOverlayStyleEditedNotification{_key, isEditing ? Page::opened : Page::closed});
}

void QVOverlayStyleController::awakeFromNib() {
    QStringList families = QFontDatabase::families();
    families.removeIf([](const QString& family) { return QFontDatabase::isPrivateFamily(family); });
    families.sort();
    const QSignalBlocker silently(_controls.textFontName.control);
    _controls.textFontName.control->clear();
    _controls.textFontName.control->addItems(families);
}

void QVOverlayStyleController::connectControls() {
    using Self = QVOverlayStyleController;
    const auto well = [this](const StyleRow<ColorWell>& row, void (Self::*action)(const ColorWell&)) {
        row.control->chosen = [this, control = row.control, action] { (this->*action)(*control); };
    };
    const auto slider = [this](const StyleRow<FloatSlider>& row, void (Self::*action)(const FloatSlider&)) {
        row.control->moved = [this, control = row.control, action] { (this->*action)(*control); };
    };
    const auto popUp = [this](const StyleRow<QComboBox>& row, void (Self::*action)(const QComboBox&)) {
        QObject::connect(row.control, &QComboBox::currentIndexChanged, row.control,
                         [this, control = row.control, action] { (this->*action)(*control); });
    };
    const auto box = [this](const StyleRow<QCheckBox>& row, void (Self::*action)(const QCheckBox&)) {
        QObject::connect(row.control, &QCheckBox::toggled, row.control,
                         [this, control = row.control, action] { (this->*action)(*control); });
    };
    well(_controls.textColor, &Self::changeTextColor);
    popUp(_controls.textFontName, &Self::changeTextFontName);
    popUp(_controls.textFontSize, &Self::changeTextFontSize);
    box(_controls.shadowOn, &Self::changeShadowOn);
    well(_controls.shadowColor, &Self::changeShadowColor);
    slider(_controls.shadowBlurRadius, &Self::changeShadowBlurRadius);
    slider(_controls.shadowOffsetX, &Self::changeShadowOffset);
    slider(_controls.shadowOffsetY, &Self::changeShadowOffset);
    box(_controls.backgroungOn, &Self::changeBackgroundOn);
    well(_controls.backgroungColor, &Self::changeBackgroundColor);
    box(_controls.backgroungRounded, &Self::changeBackgroundRounded);
    slider(_controls.backgroungRadius, &Self::changeBackgroundRadius);
    box(_controls.backgroungFrameOn, &Self::changeBackgroundFrameOn);
    slider(_controls.backgroungFrameWidth, &Self::changeBackgroundFrameWidth);
    popUp(_controls.alignmentVertical, &Self::changeAlignment);
    popUp(_controls.alignmentHorizontal, &Self::changeAlignment);
    slider(_controls.fadingInInterval, &Self::changeFadingInInterval);
    slider(_controls.fadingOutInterval, &Self::changeFadingOutInterval);
    slider(_controls.fadingDelayInterval, &Self::changeFadingDelayInterval);
    slider(_controls.minAlpha, &Self::changeMinAlpha);
    slider(_controls.maxAlpha, &Self::changeMaxAlpha);
}

void QVOverlayStyleController::connectReset() {
    const auto act = [this](const QPushButton& button, void (SettingsReset::*action)()) {
        QObject::connect(&button, &QPushButton::clicked, &button, [this, action] {
            if (_reset)
                (_reset.get()->*action)();
        });
    };
    act(*_controls.reset, &SettingsReset::reset);
    act(*_controls.undoReset, &SettingsReset::undo);
}

void QVOverlayStyleController::showReset() {
    _controls.reset->setEnabled(_enabled && _reset && _reset->isNeeded());
    _controls.undoReset->setEnabled(_enabled && _reset && _reset->canUndo());
}

OverlayStyle QVOverlayStyleController::values() const {
    return _model ? _model->values() : OverlayStyle();
}

void QVOverlayStyleController::setupWithModelForKey(const QString& key) {
    _key = key;
    _model = QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(_environment.settings, key);
    _reset = _model ? std::make_unique<SettingsReset>(_environment.settings,
                                                      QList<SettingsReset::Setting>{{kQVOverlayStyles, _model->key()}},
                                                      [this](const SettingsReset::Setting&) { wasReset(); })
                    : nullptr;
    if (!_widget)
        return;
    const QSignalBlocker silently(_controls.alignmentVertical.control);
    _controls.setupForKey(key);
    _sample->showStyle(key);
    syncWithModel();
}

void QVOverlayStyleController::syncWithModel() {
    if (!_widget)
        return;
    const OverlayStyle style = values();
    const auto color = [](const StyleRow<ColorWell>& row, const std::optional<QColor>& value) {
        row.control->setColor(value.value_or(QColor()));
    };
    const auto slide = [](const StyleRow<FloatSlider>& row, double value, auto show) {
        row.control->setFloatValue(value);
        show(row);
    };
    constexpr auto points = &StyleControls::showPoints;
    constexpr auto seconds = &StyleControls::showSeconds;
    constexpr auto percent = &StyleControls::showPercent;

    color(_controls.textColor, style.textColor);
    select(*_controls.textFontName.control, itemOfFont(*_controls.textFontName.control, style.textFontName));
    select(*_controls.textFontSize.control,
           StyleControls::indexOfTag(*_controls.textFontSize.control, style.textFontSize));
    check(*_controls.shadowOn.control, style.shadowOn);
    _shadowGroupSetEnabled(style.shadowOn);
    color(_controls.shadowColor, style.shadowColor);
    slide(_controls.shadowBlurRadius, static_cast<double>(style.shadowBlurRadius), points);
    slide(_controls.shadowOffsetX, style.shadowOffset.width(), points);
    slide(_controls.shadowOffsetY, style.shadowOffset.height(), points);
    check(*_controls.backgroungRounded.control, style.backgroundRounded);
    _backgroundSliderSetEnabled(style.backgroundRounded);
    slide(_controls.backgroungRadius, static_cast<double>(style.backgroundRadius), points);
    check(*_controls.backgroungFrameOn.control, style.frameOn);
    _backgroundFrameWidthSetEnabled(style.frameOn);
    slide(_controls.backgroungFrameWidth, static_cast<double>(style.frameWidth), points);
    check(*_controls.backgroungOn.control, style.backgroundOn);
    _backgroundGroupSetEnabled(isBackgroundOn());
    color(_controls.backgroungColor, style.backgroundColor);
    select(*_controls.alignmentVertical.control,
           StyleControls::indexOfTag(*_controls.alignmentVertical.control, style.alignment & verticalField));
    select(*_controls.alignmentHorizontal.control,
           StyleControls::indexOfTag(*_controls.alignmentHorizontal.control, style.alignment & horizontalField));
    slide(_controls.fadingInInterval, style.fadingInInterval, seconds);
    slide(_controls.fadingOutInterval, style.fadingOutInterval, seconds);
    slide(_controls.fadingDelayInterval, style.fadingDelayInterval, seconds);
    slide(_controls.minAlpha, static_cast<double>(style.minAlpha), percent);
    slide(_controls.maxAlpha, static_cast<double>(style.maxAlpha), percent);
    setEnabled(_enabled);
    _sample->takeStill();
}

void QVOverlayStyleController::setEnabled(bool enabled) {
    _enabled = enabled;
    if (!_widget)
        return;
    const auto follow = [enabled](const auto&... rows) { (rows.setEnabled(enabled), ...); };
    follow(_controls.textColor, _controls.textFontName, _controls.textFontSize, _controls.alignmentVertical,
           _controls.alignmentHorizontal, _controls.fadingInInterval, _controls.fadingOutInterval,
           _controls.fadingDelayInterval, _controls.minAlpha, _controls.maxAlpha, _controls.shadowOn,
           _controls.backgroungOn);
    _shadowGroupSetEnabled(enabled && _controls.shadowOn.control->isChecked());
    _backgroundGroupSetEnabled(enabled && isBackgroundOn());
    _sample->setEnabled(enabled);
    showReset();
    tellEditing();
}

/// Any value may have changed.
void QVOverlayStyleController::wasReset() {
    syncWithModel();
    QStringList styleKeys;
    for (const auto& entry : OverlayStyle::entries())
        styleKeys.append(entry.key);
    _environment.notifications.post(QVPreferencesChangedNotification{_key, styleKeys});
}

/// The window's colour has no switch.
bool QVOverlayStyleController::isBackgroundOn() const {
    return !_controls.backgroungOn.used || _controls.backgroungOn.control->isChecked();
}

void QVOverlayStyleController::_shadowGroupSetEnabled(bool enabled) {
    _controls.shadowColor.setEnabled(enabled);
    _controls.shadowBlurRadius.setEnabled(enabled);
    _controls.shadowOffsetX.setEnabled(enabled);
    _controls.shadowOffsetY.setEnabled(enabled);
}

void QVOverlayStyleController::_backgroundGroupSetEnabled(bool enabled) {
    _controls.backgroungColor.setEnabled(enabled);
    _controls.backgroungRounded.setEnabled(enabled);
    _controls.backgroungFrameOn.setEnabled(enabled);
    _backgroundSliderSetEnabled(enabled && _controls.backgroungRounded.control->isChecked());
    _backgroundFrameWidthSetEnabled(enabled && _controls.backgroungFrameOn.control->isChecked());
}

void QVOverlayStyleController::_backgroundSliderSetEnabled(bool enabled) {
    _controls.backgroungRadius.setEnabled(enabled);
}

void QVOverlayStyleController::_backgroundFrameWidthSetEnabled(bool enabled) {
    _controls.backgroungFrameWidth.setEnabled(enabled);
}

template <class Value>
void QVOverlayStyleController::change(Value OverlayStyle::*field, const std::type_identity_t<Value>& value,
                                      const char* message, const QString& text) {
    const QString styleKey = OverlayStyle::keyOf(field);
    trace(message, className, styleKey, _key, text);
    if (_model)
        _model->set(field, value);
    _environment.notifications.post(QVPreferencesChangedNotification{_key, {styleKey}});
}

void QVOverlayStyleController::changeColor(std::optional<QColor> OverlayStyle::*field, const ColorWell& sender) {
    change(field, sender.color(), "%@: %@ of %@ changed to: %@", JHStringFromColor(sender.color()));
}

void QVOverlayStyleController::changeFlag(bool OverlayStyle::*field, const QCheckBox& sender) {
    change(field, sender.isChecked(), "%@: %@ of %@ changed to: %d", QString::number(sender.isChecked() ? 1 : 0));
}

template <class Value>
void QVOverlayStyleController::changeNumber(Value OverlayStyle::*field, const FloatSlider& sender) {
    change(field, static_cast<Value>(sender.floatValue()), "%@: %@ of %@ changed to: %.2g",
           twoDigits(sender.floatValue()));
}

void QVOverlayStyleController::changeTextColor(const ColorWell& sender) {
    changeColor(&OverlayStyle::textColor, sender);
}

void QVOverlayStyleController::changeTextFontName(const QComboBox& sender) {
    change(&OverlayStyle::textFontName, sender.currentText(), "%@: %@ of %@ changed to: %@", sender.currentText());
}

void QVOverlayStyleController::changeTextFontSize(const QComboBox& sender) {
    const std::int32_t size = selectedTag(sender, values().textFontSize);
    change(&OverlayStyle::textFontSize, size, "%@: %@ of %@ changed to: %d", QString::number(size));
}

void QVOverlayStyleController::changeShadowOn(const QCheckBox& sender) {
    _shadowGroupSetEnabled(sender.isChecked());
    changeFlag(&OverlayStyle::shadowOn, sender);
}

void QVOverlayStyleController::changeShadowColor(const ColorWell& sender) {
    changeColor(&OverlayStyle::shadowColor, sender);
}

void QVOverlayStyleController::changeShadowBlurRadius(const FloatSlider& sender) {
    StyleControls::showPoints(_controls.shadowBlurRadius);
    changeNumber(&OverlayStyle::shadowBlurRadius, sender);
}

void QVOverlayStyleController::changeShadowOffset(const FloatSlider& sender) {
    StyleControls::showPoints(&sender == _controls.shadowOffsetX.control ? _controls.shadowOffsetX
                                                                         : _controls.shadowOffsetY);
    const double x = _controls.shadowOffsetX.control->floatValue();
    const double y = _controls.shadowOffsetY.control->floatValue();
    change(&OverlayStyle::shadowOffset, QSizeF(x, y), "%@: %@ of %@ changed to: %@",
           QStringLiteral("(%1, %2)").arg(twoDigits(x), twoDigits(y)));
}

void QVOverlayStyleController::changeBackgroundOn(const QCheckBox& sender) {
    _backgroundGroupSetEnabled(sender.isChecked());
    changeFlag(&OverlayStyle::backgroundOn, sender);
}

void QVOverlayStyleController::changeBackgroundColor(const ColorWell& sender) {
    changeColor(&OverlayStyle::backgroundColor, sender);
}

void QVOverlayStyleController::changeBackgroundRounded(const QCheckBox& sender) {
    _backgroundSliderSetEnabled(sender.isChecked());
    changeFlag(&OverlayStyle::backgroundRounded, sender);
}

void QVOverlayStyleController::changeBackgroundRadius(const FloatSlider& sender) {
    StyleControls::showPoints(_controls.backgroungRadius);
    changeNumber(&OverlayStyle::backgroundRadius, sender);
}

void QVOverlayStyleController::changeBackgroundFrameOn(const QCheckBox& sender) {
    _backgroundFrameWidthSetEnabled(sender.isChecked());
    changeFlag(&OverlayStyle::frameOn, sender);
}

void QVOverlayStyleController::changeBackgroundFrameWidth(const FloatSlider& sender) {
    StyleControls::showPoints(_controls.backgroungFrameWidth);
    changeNumber(&OverlayStyle::frameWidth, sender);
}

void QVOverlayStyleController::changeAlignment(const QComboBox&) {
    const std::int32_t stored = values().alignment;
    const std::int32_t code = selectedTag(*_controls.alignmentVertical.control, stored & verticalField) |
                              selectedTag(*_controls.alignmentHorizontal.control, stored & horizontalField) |
                              insideParent;
    change(&OverlayStyle::alignment, code, "%@: %@ of %@ changed to: %d", QString::number(code));
}

void QVOverlayStyleController::changeFadingInInterval(const FloatSlider& sender) {
    StyleControls::showSeconds(_controls.fadingInInterval);
    changeNumber(&OverlayStyle::fadingInInterval, sender);
}

void QVOverlayStyleController::changeFadingOutInterval(const FloatSlider& sender) {
    StyleControls::showSeconds(_controls.fadingOutInterval);
    changeNumber(&OverlayStyle::fadingOutInterval, sender);
}

void QVOverlayStyleController::changeFadingDelayInterval(const FloatSlider& sender) {
    StyleControls::showSeconds(_controls.fadingDelayInterval);
    changeNumber(&OverlayStyle::fadingDelayInterval, sender);
}

void QVOverlayStyleController::changeMinAlpha(const FloatSlider& sender) {
    StyleControls::showPercent(_controls.minAlpha);
    changeNumber(&OverlayStyle::minAlpha, sender);
    if (FloatSlider& other = *_controls.maxAlpha.control; other.floatValue() < sender.floatValue()) {
        other.setFloatValue(sender.floatValue());
        changeMaxAlpha(other);
    }
}

void QVOverlayStyleController::changeMaxAlpha(const FloatSlider& sender) {
    StyleControls::showPercent(_controls.maxAlpha);
    changeNumber(&OverlayStyle::maxAlpha, sender);
    if (FloatSlider& other = *_controls.minAlpha.control; other.floatValue() > sender.floatValue()) {
        other.setFloatValue(sender.floatValue());
        changeMinAlpha(other);
    }
}

void QVOverlayStyleController::preferencesChanged(const QVPreferencesChangedNotification& notification) {
    if (!_widget)
        return;
    if (notification.key == _key)
        showReset();
    if (notification.key != kQVOverlayTextFontSizeMin)
        return;
    const std::int32_t smallest = _environment.settings.integerForKey(kQVOverlayTextFontSizeMin);
    QComboBox& sizes = *_controls.textFontSize.control;
    if (smallest <= selectedTag(sizes, values().textFontSize))
        return;
    select(sizes, itemOfSize(sizes, smallest));
    changeTextFontSize(sizes);
}
