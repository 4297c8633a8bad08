// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/PreferencesFilter.h"

#include "platform/base/Localization.h"
#include "prefs/ControlWords.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollArea>
#include <QShortcut>
#include <QTabWidget>

#include <algorithm>

class FoundMark final : public QWidget {
public:
    explicit FoundMark(QWidget& control)
        : QWidget(control.parentWidget())
        , _control(&control) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        parentWidget()->installEventFilter(this);
        place();
        show();
        raise();
    }

    /// Of the control with its label, where both lie beside each other.
    QRect area() const {
        QRect area = _control->geometry();
        if (const QWidget* label = ControlWords::labelOf(*_control); label && label->parentWidget() == parentWidget())
            area |= label->geometry();
        return area;
    }

private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
            QMetaObject::invokeMethod(
                this, [this] { place(); }, Qt::QueuedConnection);
        return QWidget::eventFilter(watched, event);
    }
    void place() {
        constexpr int margin = 3;
        if (_control)
            setGeometry(area().adjusted(-margin, -margin, margin, margin));
    }
    void paintEvent(QPaintEvent*) override {
        constexpr double line = 2;
        constexpr double corner = 4;
        constexpr float tint = 0.12F;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor color = palette().color(QPalette::Highlight);
        painter.setPen(QPen(color, line));
        color.setAlphaF(tint);
        painter.setBrush(color);
        painter.drawRoundedRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2), corner, corner);
    }

    QPointer<QWidget> _control;
};

namespace {

/// Opens the pages on which the control lies, the inner ones, too, and scrolls to it.
void reveal(QWidget& control) {
    for (QWidget* widget = control.parentWidget(); widget; widget = widget->parentWidget()) {
        if (auto* pages = qobject_cast<QTabWidget*>(widget)) {
            for (int page = 0; page < pages->count(); ++page) {
                if (pages->widget(page)->isAncestorOf(&control))
                    pages->setCurrentIndex(page);
            }
        }
    }
    for (QWidget* widget = control.parentWidget(); widget; widget = widget->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(widget))
            area->ensureWidgetVisible(&control);
    }
}

} // namespace

PreferencesFilter::PreferencesFilter(QTabWidget& pages)
    : _pages(pages)
    , _field(new QLineEdit)
    , _result(new QLabel) {
    const QString name = platform::localizedString(QStringLiteral("Find a setting"));
    _field->setObjectName(QStringLiteral("_find"));
    _field->setPlaceholderText(name);
    _field->setAccessibleName(name);
    _field->setToolTip(platform::localizedString(QStringLiteral(
        "Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.")));
    _field->setClearButtonEnabled(true);
    constexpr int letters = 28;
    _field->setMinimumWidth(_field->fontMetrics().averageCharWidth() * letters);
    _field->installEventFilter(this);
    _result->setObjectName(QStringLiteral("_findResult"));
    auto* corner = new QWidget;
    auto* row = new QHBoxLayout(corner);
    row->setContentsMargins({});
    row->addWidget(_result);
    row->addWidget(_field);
    pages.setCornerWidget(corner);
    connect(_field, &QLineEdit::textChanged, this, [this] { find(); });
    connect(new QShortcut(QKeySequence(QKeySequence::Find), pages.window()), &QShortcut::activated, this, [this] {
        _field->setFocus(Qt::ShortcutFocusReason);
        _field->selectAll();
    });
}

PreferencesFilter::~PreferencesFilter() {
    delete _mark.data();
}

void PreferencesFilter::clear() {
    _field->clear();
}

bool PreferencesFilter::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Down:
        go(1);
        return true;
    case Qt::Key_Up:
        go(-1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter: // would press a button of the window
        if (!_found.empty() && _found[_place].control)
            _found[_place].control->setFocus(Qt::ShortcutFocusReason);
        return true;
    case Qt::Key_Escape:
        if (_field->text().isEmpty())
            break; // closes the window
        clear();
        return true;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void PreferencesFilter::find() {
    const QStringList words = ControlWords::wordsOf(_field->text());
    _found.clear();
    _place = 0;
    if (!words.isEmpty()) {
        for (QWidget* control : ControlWords::controlsOf(_pages)) {
            if (const auto depth = ControlWords::depthOf(words, *control))
                _found.push_back({control, *depth});
        }
    }
    std::ranges::stable_sort(_found, {}, &Found::depth);
    go(0);
}

void PreferencesFilter::go(qsizetype by) {
    delete _mark.data();
    if (!_found.empty()) {
        const auto count = static_cast<qsizetype>(_found.size());
        _place = static_cast<std::size_t>((static_cast<qsizetype>(_place) + by + count) % count);
        if (QWidget* control = _found[_place].control) {
            reveal(*control);
            _mark = new FoundMark(*control);
        }
    }
    writeResult();
}

void PreferencesFilter::writeResult() {
    QString text;
    if (!_found.empty())
        text = platform::localizedFormat(QStringLiteral("PreferencesFound"),
                                         {QString::number(_place + 1), QString::number(_found.size())});
    else if (!_field->text().trimmed().isEmpty())
        text = platform::localizedString(QStringLiteral("Nothing found"));
    _result->setText(text);
    _field->setAccessibleDescription(text);
}
