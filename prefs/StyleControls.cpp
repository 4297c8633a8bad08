// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/StyleControls.h"

#include "platform/base/Localization.h"
#include "prefs/ColorWell.h"
#include "prefs/FloatSlider.h"
#include "prefs/WheelGuard.h"
#include "settings/SettingsKeys.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

QString localized(const char* identifier) {
    return platform::localizedString(QString::fromLatin1(identifier));
}

/// A title as it is read out: without the mark of its mnemonic and the colon.
QString plain(QString title) {
    title.remove(u'&');
    return title.endsWith(u':') ? title.chopped(1) : title;
}

void addTags(QComboBox& popUp, std::initializer_list<std::pair<const char*, int>> items) {
    popUp.clear();
    for (const auto& [title, tag] : items)
        popUp.addItem(localized(title), tag);
}

/// By which numbers are written. The process's own writes them for the libraries.
QLocale textLocale() {
    const QStringList languages = platform::localizationLanguages();
    return languages.isEmpty() ? QLocale() : QLocale(languages.front());
}

QString percentText(double value) {
    constexpr double percent = 100;
    // A value of single precision may lie a little below the whole number that it stands for.
    constexpr double singlePrecision = 1e-5;
    return platform::localizedFormat(QStringLiteral("StylePercent"),
                                     {textLocale().toString(static_cast<int>(value * percent + singlePrecision))});
}

QString numberText(double value) {
    return textLocale().toString(value, 'g', 6);
}

QString secondsText(double value) {
    return platform::localizedFormat(QStringLiteral("StyleSeconds"), {numberText(value)});
}

using Write = QString (*)(double);

void show(const StyleRow<FloatSlider>& row, Write write) {
    row.value->setText(write(row.control->shownValue()));
    row.control->setAccessibleDescription(row.value->text());
}

// What the sliders offer, in points and seconds. Farther away a shadow looks like another text.
struct Offer {
    double smallest;
    double largest;
    double step;
    Write write;
};
constexpr Offer blur{0, 20, 0.5, numberText};
constexpr Offer shift{-12, 12, 0.5, numberText};
constexpr Offer corner{0, 40, 1, numberText};
constexpr Offer line{0.5, 10, 0.5, numberText};
constexpr Offer fade{0, 5, 0.05, secondsText};
constexpr Offer hold{0, 10, 0.1, secondsText};
constexpr Offer opacity{0, 1, 0.01, percentText};

constexpr int textSizes[] = {8,  9,  10, 11, 12, 13, 14, 15, 16, 17, 18, 20, 22, 24, 26, 28,
                             30, 32, 34, 36, 38, 40, 44, 48, 52, 56, 60, 64, 72, 80, 88, 96};

} // namespace

/// Makes rows of a group, one below the other.
class StyleControls::Group {
public:
    Group(const char* title, WheelGuard& guard)
        : _box(new QGroupBox(localized(title)))
        , _grid(new QGridLayout(_box))
        , _guard(guard) {
        _grid->setColumnStretch(1, 1);
    }
    QGroupBox* box() const { return _box; }

    void add(StyleRow<QCheckBox>& row, const char* name, const char* title) {
        row.control = new QCheckBox(localized(title));
        finish(row.control, name, title);
        _grid->addWidget(row.control, _row++, 0, 1, 3);
    }
    void add(StyleRow<ColorWell>& row, const char* name, const char* title) {
        row.control = new ColorWell;
        addCaptioned(row, name, title);
        row.control->setTitle(row.control->accessibleName());
        _grid->addWidget(row.control, _row++, 1, Qt::AlignLeft);
    }
    void add(StyleRow<QComboBox>& row, const char* name, const char* title) {
        row.control = new QComboBox;
        // As wide as a usual title: a list of fonts holds very long ones.
        constexpr int characters = 12;
        row.control->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        row.control->setMinimumContentsLength(characters);
        addCaptioned(row, name, title);
        _grid->addWidget(row.control, _row++, 1, 1, 2);
    }
    void add(StyleRow<FloatSlider>& row, const char* name, const char* title, const Offer& offer) {
        row.control = new FloatSlider(offer.smallest, offer.largest, offer.step);
        row.control->setMinimumWidth(6 * row.control->fontMetrics().height());
        addCaptioned(row, name, title);
        row.value = new QLabel;
        row.value->setObjectName(QLatin1String(name) + QStringLiteral("Value"));
        row.value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        // Nothing moves while a slider is dragged.
        const auto width = [&](double value) {
            row.value->setText(offer.write(value));
            return row.value->sizeHint().width();
        };
        row.value->setMinimumWidth(
            std::max({width(offer.smallest + offer.step), width(offer.largest), width(offer.largest - offer.step)}));
        _grid->addWidget(row.control, _row, 1);
        _grid->addWidget(row.value, _row++, 2);
    }

private:
    template <class Row>
    void addCaptioned(Row& row, const char* name, const char* title) {
        row.label = new QLabel(localized(title));
        row.label->setObjectName(QLatin1String(name) + QStringLiteral("Label"));
        row.label->setBuddy(row.control);
        _grid->addWidget(row.label, _row, 0);
        finish(row.control, name, title);
        row.label->setToolTip(row.control->toolTip());
    }
    void finish(QWidget* control, const char* name, const char* title) {
        control->setObjectName(QLatin1String(name));
        control->setAccessibleName(QStringLiteral("%1: %2").arg(_box->title(), plain(localized(title))));
        control->setToolTip(localized((QByteArray(title) + "Tip").constData()));
        control->setFocusPolicy(Qt::StrongFocus);
        control->installEventFilter(&_guard);
    }

    QGroupBox* _box;
    QGridLayout* _grid;
    WheelGuard& _guard;
    int _row = 0;
};

StyleControls::StyleControls()
    : controls(new QWidget) {
    auto& guard = *new WheelGuard(controls);

    Group text("StyleText", guard);
    text.add(textColor, "textColor", "StyleTextColor");
    text.add(textFontName, "textFontName", "StyleTextFontName");
    text.add(textFontSize, "textFontSize", "StyleTextFontSize");
    for (const int size : textSizes)
        textFontSize.control->addItem(textLocale().toString(size), size);

    Group shadow("StyleShadow", guard);
    shadow.add(shadowOn, "shadowOn", "StyleShadowOn");
    shadow.add(shadowColor, "shadowColor", "StyleShadowColor");
    shadow.add(shadowBlurRadius, "shadowBlurRadius", "StyleShadowBlur", blur);
    shadow.add(shadowOffsetX, "shadowOffsetX", "StyleShadowOffsetX", shift);
    shadow.add(shadowOffsetY, "shadowOffsetY", "StyleShadowOffsetY", shift);

    Group position("StylePosition", guard);
    position.add(alignmentVertical, "alignmentVertical", "StyleAlignmentVertical");
    position.add(alignmentHorizontal, "alignmentHorizontal", "StyleAlignmentHorizontal");
    addTags(*alignmentHorizontal.control, {{"StyleLeft", 1}, {"StyleCenter", 0}, {"StyleRight", 2}});

    Group panel("StylePanel", guard);
    panel.add(backgroungOn, "backgroungOn", "StyleBackgroundOn");
    panel.add(backgroungColor, "backgroungColor", "StyleBackgroundColor");
    panel.add(backgroungRounded, "backgroungRounded", "StyleBackgroundRounded");
    panel.add(backgroungRadius, "backgroungRadius", "StyleBackgroundRadius", corner);
    panel.add(backgroungFrameOn, "backgroungFrameOn", "StyleFrameOn");
    panel.add(backgroungFrameWidth, "backgroungFrameWidth", "StyleFrameWidth", line);

    Group fading("StyleFading", guard);
    fading.add(fadingInInterval, "fadingInInterval", "StyleFadingIn", fade);
    fading.add(fadingOutInterval, "fadingOutInterval", "StyleFadingOut", fade);
    fading.add(fadingDelayInterval, "fadingDelayInterval", "StyleFadingDelay", hold);
    fading.add(minAlpha, "minAlpha", "StyleMinAlpha", opacity);
    fading.add(maxAlpha, "maxAlpha", "StyleMaxAlpha", opacity);

    _text = text.box();
    _shadow = shadow.box();
    _position = position.box();
    _panel = panel.box();
    _fading = fading.box();
    auto* layout = new QVBoxLayout(controls);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* columns = new QHBoxLayout;
    layout->addLayout(columns);
    auto* buttons = new QHBoxLayout;
    const auto button = [&](const char* name, const char* title) {
        auto* made = new QPushButton(localized(title));
        made->setObjectName(QLatin1String(name));
        made->setToolTip(localized((QByteArray(title) + "Tip").constData()));
        made->setAutoDefault(false);
        buttons->addWidget(made);
        return made;
    };
    reset = button("reset", "StyleReset");
    undoReset = button("undoReset", "StyleResetUndo");
    buttons->addStretch(1);
    layout->addLayout(buttons);
    for (const auto& boxes : {std::vector{_text, _shadow, _position}, std::vector{_panel, _fading}}) {
        auto* column = new QVBoxLayout;
        for (QGroupBox* box : boxes)
            column->addWidget(box);
        column->addStretch(1);
        columns->addLayout(column);
    }
}

template <class Visit>
void StyleControls::visitRows(Visit visit) {
    visit(textColor);
    visit(textFontName);
    visit(textFontSize);
    visit(shadowOn);
    visit(shadowColor);
    visit(shadowBlurRadius);
    visit(shadowOffsetX);
    visit(shadowOffsetY);
    visit(backgroungOn);
    visit(backgroungColor);
    visit(backgroungRounded);
    visit(backgroungRadius);
    visit(backgroungFrameOn);
    visit(backgroungFrameWidth);
    visit(alignmentVertical);
    visit(alignmentHorizontal);
    visit(fadingInInterval);
    visit(fadingOutInterval);
    visit(fadingDelayInterval);
    visit(minAlpha);
    visit(maxAlpha);
}

void StyleControls::setupForKey(const QString& key) {
    const bool isWindow = key == kQVFullscreenOverlayStyle;
    const bool isPicture = key == kQVVobSubOverlayStyle;
    // A picture brings its own letters and place; the window has a colour of its own and fades. Only feedback goes by
    // itself.
    textColor.used = textFontName.used = textFontSize.used = shadowOn.used = shadowColor.used = !isWindow && !isPicture;
    shadowBlurRadius.used = shadowOffsetX.used = shadowOffsetY.used = shadowOn.used;
    alignmentVertical.used = alignmentHorizontal.used = !isWindow && !isPicture;
    backgroungOn.used = backgroungRounded.used = backgroungRadius.used = !isWindow;
    backgroungFrameOn.used = backgroungFrameWidth.used = !isWindow;
    fadingDelayInterval.used = key == kQVFeedbackOverlayStyle || key == kQVDefaultOverlayStyle;
    visitRows([](const auto& row) { row.visit([&row](QWidget* widget) { widget->setVisible(row.used); }); });
    _text->setVisible(textColor.used);
    _shadow->setVisible(shadowOn.used);
    _position->setVisible(alignmentVertical.used);

    if (isWindow) {
        _panel->setTitle(localized("StyleBackground"));
        backgroungColor.control->setToolTip(localized("StyleBackgroundTip"));
        backgroungColor.label->setToolTip(localized("StyleBackgroundTip"));
        backgroungColor.control->setAccessibleName(
            QStringLiteral("%1: %2").arg(_panel->title(), plain(backgroungColor.label->text())));
        backgroungColor.control->setTitle(backgroungColor.control->accessibleName());
    }
    if (key == kQVSubtitlesOverlayStyle) {
        addTags(*alignmentVertical.control,
                {{"StyleAbovePictureEdge", 0x20}, {"StyleOnPictureEdge", 0x10}, {"StyleBelowPicture", 0x00}});
    } else {
        addTags(*alignmentVertical.control, {{"StyleTop", 0x10}, {"StyleMiddle", 0x00}, {"StyleBottom", 0x20}});
    }
}

void StyleControls::showPoints(const StyleRow<FloatSlider>& row) {
    show(row, numberText);
}

void StyleControls::showSeconds(const StyleRow<FloatSlider>& row) {
    show(row, secondsText);
}

void StyleControls::showPercent(const StyleRow<FloatSlider>& row) {
    show(row, percentText);
}

int StyleControls::indexOfTag(const QComboBox& popUp, int tag) {
    return popUp.findData(tag);
}
