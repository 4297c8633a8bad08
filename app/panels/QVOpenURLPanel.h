// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <cstdint>
#include <memory>

class QCheckBox;
class QComboBox;
class QDialog;
class QPlainTextEdit;
class QPushButton;
class QWindow;

/// The two panels in which addresses are entered, with what was entered before: one for a single address (type 0), one
/// for several, a line each (type 1). Their layout is the interface file OpenURLPanel, loaded at the first use. An
/// address on the clipboard is offered; nothing is opened before the user says so. Main thread.
class QVOpenURLPanel final : public QObject {
public:
    explicit QVOpenURLPanel(const Environment& environment);
    ~QVOpenURLPanel() override;

    /// Runs the panel of the type above the window until it is answered, or the event loop ended: 1 for OK, else 0.
    std::int32_t runModalWithType(std::int32_t type, QWindow* above);

    /// What was entered, and the addresses among it.
    QStringList urlStrings() const;
    QList<QUrl> urls() const;
    /// Whether they are to be added to the playlist.
    bool isAddingChosen() const;

    /// Answers the panel that runs, as the button of this tag does.
    void doOpenURL(std::int32_t tag);

private:
    void load();
    void awakeFromNib();
    void offerClipboard();
    void _validateOkButton();
    void comboBoxSelectionDidChange(int index);
    QString _urlComboString() const;
    void rememberUrl();
    void windowWillClose();
    void _saveURLs();

    Environment _environment;
    std::unique_ptr<QDialog> _panelS;
    QComboBox* _urlCombo = nullptr;
    QPushButton* _btnOkS = nullptr;
    QCheckBox* _addS = nullptr;
    std::unique_ptr<QDialog> _panelM;
    QPlainTextEdit* _urlText = nullptr;
    QPushButton* _btnOkM = nullptr;
    QCheckBox* _addM = nullptr;
    QDialog* _panel = nullptr; // of the current run
    std::int32_t _type = 0;
    std::int32_t _code = 0;
};
