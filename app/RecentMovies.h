// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QUrl>

#include <cstdint>
#include <functional>

namespace platform {
class Menu;
} // namespace platform

class RememberedMovies;

/// The menu of the movies that were seen last. Main thread.
class RecentMovies {
public:
    /// `open` takes a path or an address, as it is handed over by the platform. Both outlive it.
    RecentMovies(RememberedMovies& movies, std::function<void(const QString&)> open);

    void fill(platform::Menu& menu);
    /// That of a position of the menu that was filled last. One that is gone is taken out of the menu, too; opening it
    /// says so.
    void open(std::int32_t position);
    bool isEmpty() const { return _shown.isEmpty(); }
    void clear();

private:
    RememberedMovies& _movies;
    std::function<void(const QString&)> _open;
    QList<QUrl> _shown;
};
