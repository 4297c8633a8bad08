// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/QVOpenURLPanel.h"

#include "app/OpeningFiles.h"
#include "platform/base/AddressText.h"
#include "platform/base/UserDefaults.h"
#include "platform/window/Window.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QShortcut>
#include <QWindow>

#include <algorithm>
#include <ui_OpenURLPanel.h>
#include <utility>

namespace {

constexpr const char* className = "QVOpenURLPanel";

constexpr std::int32_t single = 0;
constexpr std::int32_t multiple = 1;
constexpr std::int32_t okTag = 1;

constexpr int smallestWidth = 560;
constexpr int maximumCharacters = 120;

std::int32_t tagOf(const QObject& button) {
    return button.property("tag").toInt();
}

/// In one line, each between quotes would be hard to read: as lists are described elsewhere.
QString descriptionOf(const QList<QUrl>& urls) {
    QStringList lines;
    for (const QUrl& url : urls)
        lines.append(QStringLiteral("    ") + url.toString(QUrl::RemovePassword));
    return QStringLiteral("(\n") + lines.join(QStringLiteral(",\n")) + QStringLiteral("\n)");
}

} // namespace

QVOpenURLPanel::QVOpenURLPanel(const Environment& environment)
    : _environment(environment) {}

QVOpenURLPanel::~QVOpenURLPanel() = default;

void QVOpenURLPanel::load() {
    QWidget owner;
    Ui::OpenURLPanel interface;
    interface.setupUi(&owner);
    const auto adopt = [](QDialog* panel) {
        panel->setParent(nullptr, panel->windowFlags());
        return std::unique_ptr<QDialog>(panel);
    };
    _panelS = adopt(interface._panelS);
    _urlCombo = interface._urlCombo;
    _btnOkS = interface._btnOkS;
    _addS = interface._addS;
    _panelM = adopt(interface._panelM);
    _urlText = interface._urlText;
    _btnOkM = interface._btnOkM;
    _addM = interface._addM;
    for (QPushButton* button : {interface._btnOkS, interface._btnCancelS, interface._btnOkM, interface._btnCancelM})
        connect(button, &QPushButton::clicked, this, [this, button] { doOpenURL(tagOf(*button)); });
    connect(_urlCombo, &QComboBox::editTextChanged, this, [this] { _validateOkButton(); });
    connect(_urlCombo, &QComboBox::activated, this, &QVOpenURLPanel::comboBoxSelectionDidChange);
    connect(_urlText, &QPlainTextEdit::textChanged, this, [this] { _validateOkButton(); });
    for (const QDialog* panel : {_panelS.get(), _panelM.get()})
        connect(panel, &QDialog::finished, this, [this] { windowWillClose(); });
    _urlCombo->setCompleter(nullptr); // Enter opens what was typed, not an earlier address that begins so
    // Enter begins a line there.
    for (const int key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(key)), _panelM.get()), &QShortcut::activated,
                _btnOkM, &QPushButton::click);
    awakeFromNib();
}

void QVOpenURLPanel::awakeFromNib() {
    for (const QVariant& entry : _environment.settings.objectForKey(kQVOpenURLRecentListS).toList()) {
        // Whatever else a hand wrote into the settings.
        if (entry.typeId() == QMetaType::QString && !entry.toString().isEmpty())
            _urlCombo->addItem(entry.toString());
    }
    _urlCombo->clearEditText();
    _urlText->setPlainText(_environment.settings.stringForKey(kQVOpenURLRecentListM));
    _validateOkButton();
}

std::int32_t QVOpenURLPanel::runModalWithType(std::int32_t type, QWindow* above) {
    _type = type;
    if (!_panelS || !_panelM)
        load();
    _panel = type == multiple ? _panelM.get() : _panelS.get();
    _addS->setChecked(false);
    _addM->setChecked(false);
    offerClipboard();
    _validateOkButton();
    // Above the movie, however high that lies.
    const bool isHigh = _environment.settings.integerForKey(kQVMainWindowLayer) > platform::windowLevel::normal;
    _panel->setWindowFlag(Qt::WindowStaysOnTopHint, isHigh);
    _panel->winId();
    if (above)
        _panel->windowHandle()->setTransientParent(above);
    // As wide as long addresses are, on a large screen too.
    const int wide = maximumCharacters * _panel->fontMetrics().averageCharWidth();
    const int half = above ? std::min(above->width() / 2, wide) : 0;
    _panel->resize(std::max(smallestWidth, half), _panel->sizeHint().height());
    // Without a window manager nobody else gives a new window the keyboard.
    QMetaObject::invokeMethod(
        _panel, [panel = _panel] { panel->activateWindow(); }, Qt::QueuedConnection);
    _code = 0;
    _panel->exec();
    if (_panel)
        windowWillClose(); // the event loop ended
    return _code;
}

/// The address lies in the field, selected: Enter opens it, typing writes over it.
void QVOpenURLPanel::offerClipboard() {
    const QStringList copied = platform::addressesIn(QGuiApplication::clipboard()->text());
    if (_type == multiple) {
        if (_urlText->toPlainText().trimmed().isEmpty() && !copied.isEmpty())
            _urlText->setPlainText(copied.join(u'\n') + u'\n');
        _urlText->selectAll();
        _urlText->setFocus();
    } else {
        if (!copied.isEmpty())
            _urlCombo->setEditText(copied.front());
        _urlCombo->lineEdit()->selectAll();
        _urlCombo->setFocus();
    }
}

void QVOpenURLPanel::_validateOkButton() {
    if (_type == single)
        _btnOkS->setEnabled(!_urlComboString().isEmpty());
    else if (_type == multiple)
        _btnOkM->setEnabled(!_urlText->toPlainText().isEmpty());
}

void QVOpenURLPanel::comboBoxSelectionDidChange(int index) {
    if (index < 0)
        _validateOkButton();
    else
        _btnOkS->setEnabled(!_urlCombo->itemText(index).isEmpty());
}

QString QVOpenURLPanel::_urlComboString() const {
    return _urlCombo->currentText();
}

QStringList QVOpenURLPanel::urlStrings() const {
    if (_type == multiple)
        return _urlText ? _urlText->toPlainText().split(u'\n') : QStringList();
    if (_type != single || !_urlCombo || _urlComboString().isEmpty())
        return {};
    return {_urlComboString()};
}

QList<QUrl> QVOpenURLPanel::urls() const {
    QStringList addresses;
    std::ranges::transform(urlStrings(), std::back_inserter(addresses), platform::addressOfTyped);
    return urlsWithURLStrings(addresses);
}

bool QVOpenURLPanel::isAddingChosen() const {
    const QCheckBox* const box = _type == multiple ? _addM : _addS;
    return box && box->isChecked();
}

void QVOpenURLPanel::doOpenURL(std::int32_t tag) {
    if (!_panel)
        return;
    if (const QList<QUrl> opened = urls(); tag == okTag && !opened.isEmpty()) {
        trace("%@: Opening URLs: %@", className, descriptionOf(opened));
        if (_panel == _panelS.get())
            rememberUrl();
    }
    _code = tag;
    _panel->done(tag);
}

/// The latest one comes last.
void QVOpenURLPanel::rememberUrl() {
    const QString text = _urlComboString();
    const int maximum = std::max(_environment.settings.integerForKey(kQVOpenURLRecentListSSize), 0);
    if (const int held = _urlCombo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive); held >= 0)
        _urlCombo->removeItem(held);
    _urlCombo->addItem(text);
    while (_urlCombo->count() > maximum)
        _urlCombo->removeItem(0);
    _urlCombo->setEditText(text);
}

void QVOpenURLPanel::windowWillClose() {
    if (std::exchange(_panel, nullptr))
        _saveURLs();
}

void QVOpenURLPanel::_saveURLs() {
    if (_type == single) {
        QVariantList entries;
        for (int index = 0; index < _urlCombo->count(); ++index)
            entries.append(_urlCombo->itemText(index));
        _environment.settings.setObject(entries, kQVOpenURLRecentListS);
    } else if (_type == multiple) {
        _environment.settings.setObject(_urlText->toPlainText(), kQVOpenURLRecentListM);
    }
}
