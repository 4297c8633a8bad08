// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/qt/OpenPanels.h"

#include "platform/desktop/qt/PanelPlacement.h"
#include "platform/window/qt/ForeignPanel.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QListView>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>
#include <QWindow>

#include <algorithm>

namespace platform {

namespace {

/// As the portals of the desktop know windows. Wayland's have no name that could be told.
QString nameOf(const QWindow* window) {
    return window && QGuiApplication::platformName() == QStringLiteral("xcb")
               ? QStringLiteral("x11:") + QString::number(window->winId(), 16)
               : QString();
}

QStringList nameFilters(const FileQuestion& question) {
    QStringList patterns;
    for (const QString& extension : question.extensions)
        patterns.append(QStringLiteral("*.") + extension);
    QStringList filters;
    if (!patterns.isEmpty())
        filters.append(question.nameOfTypes + QStringLiteral(" (") + patterns.join(u' ') + u')');
    filters.append(question.nameOfAllFiles + QStringLiteral(" (*)"));
    return filters;
}

void placeSidebar(QFileDialog& dialog) {
    QList<QUrl> places = dialog.sidebarUrls();
    for (const auto location : {QStandardPaths::MoviesLocation, QStandardPaths::DownloadLocation}) {
        const QUrl place = QUrl::fromLocalFile(QStandardPaths::writableLocation(location));
        if (QFileInfo(place.toLocalFile()).isDir() && !places.contains(place))
            places.append(place);
    }
    dialog.setSidebarUrls(places);
}

/// By itself it lets one folder be chosen.
void selectSeveral(QFileDialog& dialog) {
    if (auto* list = dialog.findChild<QListView*>(QStringLiteral("listView")))
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    if (auto* tree = dialog.findChild<QTreeView*>(QStringLiteral("treeView")))
        tree->setSelectionMode(QAbstractItemView::ExtendedSelection);
}

void showWholeColumns(QFileDialog& dialog) {
    if (auto* tree = dialog.findChild<QTreeView*>(QStringLiteral("treeView"))) {
        tree->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

} // namespace

std::optional<FileChoice> runForeignPanel(const ForeignFilePanel& ask, const FileQuestion& question, QWindow* above) {
    const ForeignPanel up;
    // Stands in for the panel: as long as it runs, nothing else of ours takes input.
    QDialog stand;
    stand.setAttribute(Qt::WA_DontShowOnScreen);
    stand.setWindowModality(Qt::ApplicationModal);
    std::optional<FileChoice> choice(std::in_place); // cancelled, when the loop ends without an answer
    const auto panel = ask(question, nameOf(above), [&](const std::optional<FileChoice>& answer) {
        choice = answer;
        stand.done(QDialog::Accepted);
    });
    stand.exec();
    return choice;
}

FileChoice runQtPanel(const FileQuestion& question, QWindow* above) {
    QFileDialog dialog(nullptr, question.title);
    dialog.setOption(QFileDialog::DontUseNativeDialog); // theirs have no place for the check box
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    const bool isForFolders = question.kind == FileQuestion::Kind::folders;
    const bool isNew = question.kind == FileQuestion::Kind::newFile;
    dialog.setAcceptMode(isNew ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(isForFolders ? QFileDialog::Directory
                       : isNew      ? QFileDialog::AnyFile
                                    : QFileDialog::ExistingFiles);
    dialog.setOption(QFileDialog::ShowDirsOnly, isForFolders);
    if (!isForFolders)
        dialog.setNameFilters(nameFilters(question));
    dialog.setLabelText(QFileDialog::Accept, question.accept);
    dialog.setLabelText(QFileDialog::Reject, question.cancel);
    if (!question.folder.isEmpty())
        dialog.setDirectory(question.folder);
    if (isNew && !question.extensions.isEmpty())
        dialog.setDefaultSuffix(question.extensions.front());
    if (isNew)
        dialog.selectFile(question.name);
    placeSidebar(dialog);
    if (isForFolders)
        selectSeveral(dialog);
    showWholeColumns(dialog);
    auto* option = new QCheckBox(question.option, &dialog);
    option->setHidden(question.option.isEmpty());
    option->setObjectName(QStringLiteral("option"));
    if (auto* layout = qobject_cast<QGridLayout*>(dialog.layout()))
        layout->addWidget(option, layout->rowCount(), 0, 1, layout->columnCount());
    if (above)
        dialog.resize(dialog.sizeHint().expandedTo(above->size() / 2));
    standAbove(dialog, above);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return {dialog.selectedFiles(), option->isChecked()};
}

} // namespace platform
