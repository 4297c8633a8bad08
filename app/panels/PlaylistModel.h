// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"

#include <QAbstractListModel>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <vector>

class QVMovie;
class QVPlaylistController;

/// The playlist's entries, or those whose names hold a text, as rows of a view. Follows the list. Main thread.
class PlaylistModel final : public QAbstractListModel {
public:
    PlaylistModel(const Environment& environment, QVPlaylistController& playlist);

    /// Without regard to case; an empty text lets all through.
    void setFilter(const QString& text);
    /// The position in the list that a row shows.
    std::uint32_t positionOf(int row) const { return _positions[static_cast<std::size_t>(row)]; }
    /// The row that shows a position, or -1.
    int rowOf(std::uint32_t position) const;
    /// The movie that a row shows; also while the model is being reset, when the list has changed already.
    std::shared_ptr<QVMovie> movieOf(int row) const;
    /// Moves the entries of these rows above the row before them (-1), or below the row after them (+1).
    void shift(std::vector<int> rows, int direction);
    /// Removes the entries of these rows, but not the one that plays; false when none went.
    bool remove(const std::vector<int>& rows);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

private:
    void listChanged();
    void currentChanged();
    void choose();
    std::vector<std::uint32_t> positionsOf(const std::vector<int>& rows) const;

    QVPlaylistController& _playlist;
    std::vector<std::shared_ptr<QVMovie>> _movies; // by position, as the names
    QStringList _names;
    QString _filter;
    std::vector<std::uint32_t> _positions; // by row
    platform::Subscription _listChanged;
    platform::Subscription _movieChanged;
};
