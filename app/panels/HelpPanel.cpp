// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/HelpPanel.h"

#include "control/CommandHelp.h"
#include "platform/base/Localization.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <QWindow>

namespace {

QString localized(std::string_view key) {
    return platform::localizedString(QString::fromUtf8(key));
}

QLabel* boldLabel(const QString& text) {
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

QGridLayout* gridOf(std::span<const Command> commands) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    int row = 0;
    const HelpLine* before = nullptr;
    const std::vector<HelpLine> lines = helpLines(commands);
    for (const HelpLine& line : lines) {
        if (!before || before->section != line.section)
            grid->addWidget(boldLabel(localized(sectionTitle(line.section))), row++, 0, 1, 2);
        grid->addWidget(new QLabel(line.keys.join(QStringLiteral("   "))), row, 0);
        grid->addWidget(new QLabel(localized(line.text)), row++, 1);
        before = &line;
    }
    return grid;
}

} // namespace

void runHelpPanel(std::span<const Command> commands, QWindow* window) {
    QDialog panel;
    panel.setWindowTitle(platform::localizedString(QStringLiteral("Help")));
    auto* layout = new QVBoxLayout(&panel);
    layout->addLayout(gridOf(commands));
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
