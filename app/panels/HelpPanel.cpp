// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/HelpPanel.h"

#include "platform/base/Localization.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace {

// Keys, and the text that says what they do.
constexpr std::pair<const char*, const char*> keys[] = {
    {"Space", "Play or pause"},
    {"\u2190  \u2192", "Step one frame while paused, faster and faster while playing"},
    {"Ctrl+\u2190  Ctrl+\u2192", "Jump back and forward"},
    {"Alt+\u2190  Alt+\u2192", "Beginning and end of the movie"},
    {"Page Up  Page Down", "Previous and next movie"},
    {"\u2191  \u2193", "Louder and softer"},
    {"M", "Mute"},
    {"0  1  2  3", "Half, normal, double size, fit to the screen"},
    {"4  5", "Fit to the width, to the height"},
    {"+  \u2212", "Bigger and smaller"},
    {"S", "Next subtitles"},
    {"D", "On-screen display: time, movie, subtitles, looping, volume"},
    {"L", "Loop off, one, all"},
    {"C", "Controller bar"},
    {"Tab", "Next screen"},
    {"Ctrl+O", "Open movies"},
    {"Esc", "Quit"},
};

} // namespace

void runHelpPanel(QWindow* window) {
    QDialog panel;
    panel.setWindowTitle(platform::localizedString(QStringLiteral("Help")));
    auto* layout = new QVBoxLayout(&panel);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    int row = 0;
    for (const auto& [key, meaning] : keys) {
        auto* keyLabel = new QLabel(QString::fromUtf8(key));
        QFont font = keyLabel->font();
        font.setBold(true);
        keyLabel->setFont(font);
        grid->addWidget(keyLabel, row, 0);
        grid->addWidget(new QLabel(platform::localizedString(QString::fromUtf8(meaning))), row++, 1);
    }
    layout->addLayout(grid);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &panel, &QDialog::reject);
    layout->addWidget(buttons);
    panel.winId();
    if (window)
        panel.windowHandle()->setTransientParent(window);
    QMetaObject::invokeMethod(
        &panel, [&panel] { panel.activateWindow(); }, Qt::QueuedConnection);
    panel.exec();
}
