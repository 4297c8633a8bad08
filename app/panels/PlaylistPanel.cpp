// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/PlaylistPanel.h"

#include "app/panels/PlaylistModel.h"
#include "platform/base/Localization.h"
#include "playback/QVMovie.h"
#include "playlist/QVPlaylistController.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace {

QString localized(const char* key) {
    return platform::localizedString(QString::fromUtf8(key));
}

/// Keys act whether the filter has the keyboard or the list.
class Panel final : public QDialog {
public:
    Panel(const Environment& environment, QVPlaylistController& playlist)
        : _playlist(playlist)
        , _model(environment, playlist) {
        setWindowTitle(localized("Playlist Panel"));
        auto* layout = new QVBoxLayout(this);
        _filter = new QLineEdit;
        _filter->setPlaceholderText(localized("Filter"));
        _filter->setClearButtonEnabled(true);
        layout->addWidget(_filter);
        _list = new QListView;
        _list->setModel(&_model);
        _list->setUniformItemSizes(true); // thousands are laid out at once
        _list->setTextElideMode(Qt::ElideMiddle);
        _list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        _list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        _list->setDragEnabled(true);
        _list->setAcceptDrops(true);
        _list->setDropIndicatorShown(true);
        _list->setDragDropMode(QAbstractItemView::DragDrop);
        _list->setDefaultDropAction(Qt::MoveAction);
        layout->addWidget(_list);
        _count = new QLabel;
        layout->addWidget(_count);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
        const auto addButton = [&](const char* key, std::function<void()> work) {
            QPushButton* button = buttons->addButton(localized(key), QDialogButtonBox::ActionRole);
            button->setAutoDefault(false);
            connect(button, &QPushButton::clicked, this, std::move(work));
        };
        addButton("Play Movie", [this] { play(); });
        addButton("Move Up", [this] { move(-1); });
        addButton("Move Down", [this] { move(1); });
        addButton("Remove from List", [this] { remove(); });
        buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        layout->addWidget(buttons);

        connect(_filter, &QLineEdit::textChanged, this, [this](const QString& text) { _model.setFilter(text); });
        connect(_list, &QListView::doubleClicked, this, [this] { play(); });
        connect(&_model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { keepSelection(); });
        connect(&_model, &QAbstractItemModel::modelReset, this, [this] { restoreSelection(); });
        _filter->installEventFilter(this);
        _list->installEventFilter(this);
        selectMovies({playlist.movie()}, playlist.movie());
        showCount();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress)
            return QDialog::eventFilter(watched, event);
        auto* key = static_cast<QKeyEvent*>(event);
        const bool isList = watched == _list;
        const bool alt = key->modifiers() == Qt::AltModifier;
        switch (key->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            play();
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
            if (alt) {
                move(key->key() == Qt::Key_Up ? -1 : 1);
                return true;
            }
            return !isList && handOn(*key);
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return !isList && handOn(*key);
        case Qt::Key_Delete:
            // In the filter it deletes what stands behind the cursor.
            if (!isList && _filter->cursorPosition() < _filter->text().size())
                return false;
            remove();
            return true;
        default:
            return QDialog::eventFilter(watched, event);
        }
    }

private:
    using Movies = std::vector<std::shared_ptr<QVMovie>>;

    bool handOn(QKeyEvent& key) {
        QCoreApplication::sendEvent(_list, &key);
        return true;
    }

    std::vector<int> selectedRows() const {
        std::vector<int> rows;
        for (const QModelIndex& index : _list->selectionModel()->selectedIndexes())
            rows.push_back(index.row());
        std::ranges::sort(rows);
        return rows;
    }

    void play() {
        if (const QModelIndex index = _list->currentIndex(); index.isValid())
            _playlist.play(_model.positionOf(index.row()));
    }

    void move(int direction) { _model.shift(selectedRows(), direction); }

    void remove() {
        const std::vector<int> rows = selectedRows();
        if (rows.empty() || !_model.remove(rows))
            return;
        // Where the removed ones stood, so that the next can go.
        if (_model.rowCount() > 0)
            _list->setCurrentIndex(_model.index(std::min(rows.front(), _model.rowCount() - 1)));
    }

    void keepSelection() {
        _kept.clear();
        for (const int row : selectedRows())
            _kept.push_back(_model.movieOf(row));
    }

    void restoreSelection() {
        selectMovies(_kept, _kept.empty() ? nullptr : _kept.front());
        showCount();
    }

    void selectMovies(const Movies& movies, const std::shared_ptr<QVMovie>& first) {
        QItemSelection selection;
        QModelIndex current;
        for (const auto& movie : movies) {
            const int row = movie ? _model.rowOf(_playlist.indexOfMovie(*movie)) : -1;
            if (row < 0)
                continue;
            const QModelIndex index = _model.index(row);
            selection.select(index, index);
            if (movie == first)
                current = index;
        }
        if (!current.isValid() && _model.rowCount() > 0)
            current = _model.index(0);
        if (selection.isEmpty())
            selection.select(current, current);
        _list->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        _list->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
        _list->scrollTo(current, QAbstractItemView::EnsureVisible);
    }

    void showCount() {
        _count->setText(
            platform::localizedFormat(QStringLiteral("PlaylistCountMessage"),
                                      {QString::number(_model.rowCount()), QString::number(_playlist.count())}));
    }

    QVPlaylistController& _playlist;
    PlaylistModel _model;
    QLineEdit* _filter = nullptr;
    QListView* _list = nullptr;
    QLabel* _count = nullptr;
    Movies _kept;
};

} // namespace

void runPlaylistPanel(const Environment& environment, QVPlaylistController& playlist, QWindow* window) {
    Panel panel(environment, playlist);
    panel.winId();
    if (window) {
        panel.windowHandle()->setTransientParent(window);
        panel.resize(window->size() / 2);
    }
    QMetaObject::invokeMethod(
        &panel, [&panel] { panel.activateWindow(); }, Qt::QueuedConnection);
    panel.exec();
}
