// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/HelpPanel.h"

#include "control/CommandHelp.h"
#include "platform/base/Localization.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace {

QString localized(std::string_view key) {
    return platform::localizedString(QString::fromUtf8(key));
}

/// What one wants to do on the left, its keys on the right, in groups. What is typed leaves the lines that hold it.
class Panel final : public QDialog {
public:
    explicit Panel(std::span<const Command> commands) {
        setWindowTitle(localized("Help"));
        auto* layout = new QVBoxLayout(this);
        auto* introduction = new QLabel(localized("HelpIntroduction"));
        introduction->setWordWrap(true);
        layout->addWidget(introduction);
        _filter = new QLineEdit;
        _filter->setPlaceholderText(localized("What do you want to do?"));
        _filter->setAccessibleName(localized("What do you want to do?"));
        _filter->setClearButtonEnabled(true);
        layout->addWidget(_filter);
        _lines = new QTreeWidget;
        _lines->setAccessibleName(localized("Help"));
        _lines->setColumnCount(2);
        _lines->setHeaderHidden(true);
        _lines->setRootIsDecorated(false);
        _lines->setItemsExpandable(false);
        _lines->setUniformRowHeights(true);
        _lines->setIndentation(fontMetrics().averageCharWidth() * 2);
        _lines->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        _lines->setTextElideMode(Qt::ElideNone);
        fill(helpGroups(commands));
        layout->addWidget(_lines);
        _nothing = new QLabel(localized("No command holds these words."));
        _nothing->setVisible(false);
        layout->addWidget(_nothing);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        layout->addWidget(buttons);
        connect(_filter, &QLineEdit::textChanged, this, [this](const QString& text) { leave(text); });
        _filter->installEventFilter(this);
        _filter->setFocus();
    }

    /// As large as all lines want it, within `bounds`.
    QSize fittingSize(const QSize& bounds) const {
        const QMargins margins = layout()->contentsMargins();
        const int width = _lineWidth + _lines->verticalScrollBar()->sizeHint().width() + 2 * _lines->frameWidth() +
                          margins.left() + margins.right();
        int rows = 0;
        for (int i = 0; i < _lines->topLevelItemCount(); ++i)
            rows += 1 + _lines->topLevelItem(i)->childCount();
        const int others = sizeHint().height() - _lines->sizeHint().height();
        return QSize(width, others + rows * _lines->sizeHintForRow(0) + 2 * _lines->frameWidth()).boundedTo(bounds);
    }

private:
    void fill(const std::vector<HelpGroup>& groups) {
        for (const HelpGroup& group : groups) {
            auto* heading = new QTreeWidgetItem(_lines, {localized(group.title)});
            QFont font = heading->font(0);
            font.setBold(true);
            heading->setFont(0, font);
            heading->setFlags(Qt::ItemIsEnabled);
            heading->setFirstColumnSpanned(true);
            heading->setExpanded(true);
            for (const HelpLine& line : group.lines)
                new QTreeWidgetItem(heading, {localized(line.text), line.keys.join(QStringLiteral("     "))});
        }
        for (const int column : {0, 1})
            _lines->resizeColumnToContents(column);
        // The gap between what and how.
        _lines->setColumnWidth(0, _lines->columnWidth(0) + fontMetrics().averageCharWidth() * 4);
        _lineWidth = _lines->columnWidth(0) + _lines->columnWidth(1);
        _lines->header()->setStretchLastSection(true);
    }

    /// A line stays that holds every word, in itself or in its heading.
    void leave(const QString& text) {
        const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
        bool isEmpty = true;
        for (int i = 0; i < _lines->topLevelItemCount(); ++i) {
            QTreeWidgetItem* heading = _lines->topLevelItem(i);
            bool isGroupEmpty = true;
            for (int j = 0; j < heading->childCount(); ++j) {
                QTreeWidgetItem* line = heading->child(j);
                const QString held = heading->text(0) + u'\n' + line->text(0) + u'\n' + line->text(1);
                const bool stays = std::all_of(words.begin(), words.end(), [&](const QString& word) {
                    return held.contains(word, Qt::CaseInsensitive);
                });
                line->setHidden(!stays);
                isGroupEmpty = isGroupEmpty && !stays;
            }
            heading->setHidden(isGroupEmpty);
            isEmpty = isEmpty && isGroupEmpty;
        }
        _nothing->setVisible(isEmpty);
        _lines->scrollToTop();
    }

    /// The keys that move through the lines act while one types, too.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown) {
                QCoreApplication::sendEvent(_lines, event);
                return true;
            }
        }
        return QDialog::eventFilter(watched, event);
    }

    QLineEdit* _filter = nullptr;
    QTreeWidget* _lines = nullptr;
    QLabel* _nothing = nullptr;
    /// Of the longest line, in both columns.
    int _lineWidth = 0;
};

} // namespace

void runHelpPanel(std::span<const Command> commands, QWindow* window) {
    Panel panel(commands);
    panel.winId();
    if (window) {
        panel.windowHandle()->setTransientParent(window);
        panel.resize(panel.fittingSize(window->size() * 9 / 10));
    }
    QMetaObject::invokeMethod(
        &panel, [&panel] { panel.activateWindow(); }, Qt::QueuedConnection);
    panel.exec();
}
