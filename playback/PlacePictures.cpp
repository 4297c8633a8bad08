// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/PlacePictures.h"

#include "platform/movie/MovieToolkit.h"
#include "playback/QVMovie.h"

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// A movie is looked at in so many places: a bar hardly has more points, and one that was passed is found again.
constexpr std::int32_t places = 1000;
/// Some ten megabytes of them on the largest screens.
constexpr std::size_t maximumKept = 40;

QImage quarterTurned(const QImage& picture, int turns) {
    return turns % 4 == 0 ? picture : picture.transformed(QTransform().rotate(90.0 * turns));
}

/// A stored picture as the movie is shown; its aspect is left to whoever draws it.
QImage shown(const QImage& stored, int quarterTurns, const platform::PictureShape& shape) {
    const QImage upright = quarterTurned(stored, quarterTurns);
    const auto pixels = [](double share, int of) { return static_cast<int>(std::lround(share * of)); };
    const QRect left = upright.rect().adjusted(
        pixels(shape.crop.left, upright.width()), pixels(shape.crop.top, upright.height()),
        -pixels(shape.crop.right, upright.width()), -pixels(shape.crop.bottom, upright.height()));
    const QImage turned = quarterTurned(upright.copy(left), shape.quarterTurns);
    return shape.mirrored ? turned.mirrored(true, false) : turned;
}

} // namespace

PlacePictures::PlacePictures(platform::MovieToolkit& toolkit, std::function<void()> made)
    : _toolkit(toolkit)
    , _made(std::move(made)) {}

PlacePictures::~PlacePictures() = default;

bool PlacePictures::hasPictures(const QVMovie& movie) {
    return movie.info().hasVideo && movie.duration() > 0 && movie.info().source().isLocalFile();
}

void PlacePictures::ask(const std::shared_ptr<QVMovie>& movie, double share, const QSize& bounds) {
    if (movie != _movie.lock() || bounds != _bounds) {
        _decoding.reset();
        _kept.clear();
        _movie = movie;
        _bounds = bounds;
    }
    _newest = static_cast<std::int32_t>(std::lround(std::clamp(share, 0.0, 1.0) * places));
    const auto found = std::ranges::find(_kept, *_newest, &Kept::place);
    if (found != _kept.end())
        _kept.splice(_kept.begin(), _kept, found);
    else if (!_decoding)
        decodeNewest();
}

void PlacePictures::end() {
    _newest.reset();
    _decoding.reset();
}

const PlacePictures::Kept* PlacePictures::kept(std::int32_t place) const {
    const auto found = std::ranges::find(_kept, place, &Kept::place);
    return found == _kept.end() ? nullptr : &*found;
}

QImage PlacePictures::current() const {
    const auto movie = _movie.lock();
    const Kept* const picture = _newest ? kept(*_newest) : nullptr;
    if (!movie || !picture || picture->picture.isNull())
        return {};
    return shown(picture->picture, movie->info().quarterTurns, movie->shape());
}

void PlacePictures::decodeNewest() {
    const auto movie = _movie.lock();
    if (!movie || !_newest || kept(*_newest))
        return;
    const double seconds = static_cast<double>(*_newest) / places * movie->duration() / movie->timeScale();
    _decoding = _toolkit.keyframeAsync(movie->info().source(), seconds, _bounds,
                                       [this, place = *_newest](const QImage& picture) {
                                           // Moved out first: the opening must outlive its own completion.
                                           const auto done = std::move(_decoding);
                                           _kept.push_front({place, picture});
                                           if (_kept.size() > maximumKept)
                                               _kept.pop_back();
                                           decodeNewest();
                                           _made();
                                       });
}
