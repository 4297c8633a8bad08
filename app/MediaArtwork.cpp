// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/MediaArtwork.h"

#include "platform/base/Background.h"
#include "platform/base/Delivery.h"
#include "platform/base/PrivateFolder.h"
#include "platform/movie/MovieToolkit.h"
#include "playback/QVMovie.h"

#include <utility>

namespace {

/// Into the movie, as a share of it: its beginning is often dark.
constexpr double placeOfStill = 0.1;

} // namespace

MediaArtwork::MediaArtwork(const Environment& environment, platform::MovieToolkit& toolkit, std::function<void()> found)
    : _environment(environment)
    , _toolkit(toolkit)
    , _found(std::move(found)) {}

MediaArtwork::~MediaArtwork() {
    forget();
}

void MediaArtwork::forget() {
    _timer.reset();
    _opening.reset();
    if (_written)
        std::exchange(_written, nullptr)->abandon();
    _url.clear();
}

void MediaArtwork::follow(const std::shared_ptr<QVMovie>& movie) {
    if (movie == _movie.lock())
        return;
    _movie = movie;
    forget();
    // One from a network would be fetched a second time.
    if (movie && movie->url().isLocalFile())
        _timer = _environment.loop.schedule(delay, false, [this] { ask(_movie); });
}

void MediaArtwork::ask(const std::weak_ptr<QVMovie>& wanted) {
    const auto movie = wanted.lock();
    if (!movie)
        return;
    _opening = _toolkit.coverAsync(movie->url(), [this, wanted](const QImage& cover) {
        // The opening that calls is kept until it has.
        const auto done = std::move(_opening);
        const auto shown = wanted.lock();
        if (!cover.isNull())
            write(cover);
        else if (shown && shown->info().hasVideo)
            _opening = _toolkit.keyframeAsync(shown->url(), placeOfStill * shown->duration() / shown->timeScale(),
                                              QSize(side, side), [this](const QImage& still) {
                                                  const auto asked = std::move(_opening);
                                                  if (!still.isNull())
                                                      write(still);
                                              });
    });
}

void MediaArtwork::write(const QImage& picture) {
    _written = std::make_shared<Written>();
    if (!_folder)
        _folder = platform::PrivateSubfolder::make();
    if (!_folder)
        return;
    // A name of its own each time: who shows it keeps pictures by their names.
    const QString name = QStringLiteral("%1/%2.png").arg(_folder->path()).arg(++_count);
    const QString before = QStringLiteral("%1/%2.png").arg(_folder->path()).arg(_count - 1);
    platform::background::run([picture, name, before, folder = _folder, written = _written] {
        platform::removeTree(before);
        const QImage small =
            picture.scaled(picture.size().boundedTo(QSize(side, side)), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        written->deliver(small.save(name, "PNG") ? name : QString());
    });
    _written->receive([this](const QString& path) {
        if (path.isEmpty())
            return;
        _url = QUrl::fromLocalFile(path);
        _found();
    });
}
