// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/PlaylistModel.h"

#include "context/Notifications.h"
#include "playback/QVMovie.h"
#include "playlist/OpeningReport.h"
#include "playlist/QVPlaylistController.h"

#include <QDataStream>
#include <QFont>
#include <QIODevice>
#include <QMimeData>

#include <algorithm>
#include <iterator>
#include <memory>

namespace {

/// Positions of entries, in this process.
const QString rowsType = QStringLiteral("application/x-lumaro-playlist-rows");

} // namespace

PlaylistModel::PlaylistModel(const Environment& environment, QVPlaylistController& playlist)
    : _playlist(playlist) {
    listChanged();
    _listChanged =
        environment.notifications.observe<QVPlaylistChangedNotification>([this](const auto&) { listChanged(); });
    _movieChanged = environment.notifications.observe<QVPlaylistMovieChangedNotification>(
        [this](const auto&) { currentChanged(); });
}

void PlaylistModel::listChanged() {
    beginResetModel();
    _movies.clear();
    _names.clear();
    _names.reserve(static_cast<qsizetype>(_playlist.count()));
    for (std::uint32_t position = 0; position < _playlist.count(); ++position) {
        _movies.push_back(_playlist.movieAtIndex(position));
        _names.append(_movies.back()->displayName());
    }
    choose();
    endResetModel();
}

void PlaylistModel::currentChanged() {
    if (rowCount() > 0)
        emit dataChanged(index(0), index(rowCount() - 1), {Qt::FontRole});
}

void PlaylistModel::setFilter(const QString& text) {
    beginResetModel();
    _filter = text;
    choose();
    endResetModel();
}

void PlaylistModel::choose() {
    _positions.clear();
    for (qsizetype position = 0; position < _names.size(); ++position) {
        if (_names[position].contains(_filter, Qt::CaseInsensitive))
            _positions.push_back(static_cast<std::uint32_t>(position));
    }
}

int PlaylistModel::rowOf(std::uint32_t position) const {
    const auto row = std::ranges::lower_bound(_positions, position);
    return row != _positions.end() && *row == position ? static_cast<int>(row - _positions.begin()) : -1;
}

std::shared_ptr<QVMovie> PlaylistModel::movieOf(int row) const {
    return _movies[positionOf(row)];
}

void PlaylistModel::shift(std::vector<int> rows, int direction) {
    if (rows.empty())
        return;
    std::ranges::sort(rows);
    // Past what the filter hides, too.
    const int passed = direction < 0 ? rows.front() - 1 : rows.back() + 1;
    if (passed < 0 || passed >= rowCount())
        return;
    _playlist.moveEntries(positionsOf(rows), direction < 0 ? positionOf(passed) : positionOf(passed) + 1);
}

bool PlaylistModel::remove(const std::vector<int>& rows) {
    return _playlist.removeEntries(positionsOf(rows));
}

std::vector<std::uint32_t> PlaylistModel::positionsOf(const std::vector<int>& rows) const {
    std::vector<std::uint32_t> positions;
    std::ranges::transform(rows, std::back_inserter(positions), [this](int row) { return positionOf(row); });
    return positions;
}

int PlaylistModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(_positions.size());
}

QVariant PlaylistModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const std::uint32_t position = positionOf(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return QStringLiteral("%1   %2").arg(position + 1).arg(_names[static_cast<qsizetype>(position)]);
    case Qt::ToolTipRole:
        return OpeningReport::place(_movies[position]->url());
    case Qt::FontRole: {
        QFont font;
        font.setBold(position == _playlist.index());
        return font;
    }
    default:
        return {};
    }
}

Qt::ItemFlags PlaylistModel::flags(const QModelIndex& index) const {
    // Between the rows is where others are dropped.
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren
                           : Qt::ItemIsDropEnabled;
}

QStringList PlaylistModel::mimeTypes() const {
    return {rowsType};
}

QMimeData* PlaylistModel::mimeData(const QModelIndexList& indexes) const {
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const QModelIndex& index : indexes)
        stream << quint32{positionOf(index.row())};
    auto data = std::make_unique<QMimeData>();
    data->setData(rowsType, bytes);
    return data.release();
}

bool PlaylistModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int, const QModelIndex&) {
    if (action != Qt::MoveAction || !data->hasFormat(rowsType))
        return false;
    std::vector<std::uint32_t> positions;
    QDataStream stream(data->data(rowsType));
    while (!stream.atEnd()) {
        quint32 position = 0;
        stream >> position;
        positions.push_back(position);
    }
    // Before the entry of this row; below the last one, at the end.
    _playlist.moveEntries(positions, row >= 0 && row < rowCount() ? positionOf(row) : _playlist.count());
    // The list itself has moved them: the view is not to remove what it dragged.
    return false;
}
