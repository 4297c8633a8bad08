// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSize>

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <optional>

namespace platform {
class MovieOpening;
class MovieToolkit;
} // namespace platform

class QVMovie;

/// Small pictures of places in a movie, decoded beside the player, one after the other: of the places that are asked
/// for meanwhile only the newest one is decoded. Those that were made last are kept. Nothing is read before the first
/// one is asked for. Main thread.
class PlacePictures {
public:
    /// `made` is told, from the run loop, of each picture that was decoded; of whatever place it is, current() may be
    /// another one now.
    PlacePictures(platform::MovieToolkit& toolkit, std::function<void()> made);
    PlacePictures(const PlacePictures&) = delete;
    PlacePictures& operator=(const PlacePictures&) = delete;
    ~PlacePictures();

    /// The newest place: a share of the movie's duration. Its picture has at most `bounds` pixels. Pictures of another
    /// movie, or of other bounds, are forgotten.
    void ask(const std::shared_ptr<QVMovie>& movie, double share, const QSize& bounds);
    /// No place is wanted any more; what is being decoded is given up.
    void end();

    /// Whether the movie has such pictures: it has a picture and a duration, and is a file of this computer. Whoever
    /// plays from a network has no second connection to spare.
    static bool hasPictures(const QVMovie& movie);

    /// Of the newest place, upright and in the shape in which the movie is shown; a null one while it is not there, and
    /// where none could be decoded.
    QImage current() const;

private:
    struct Kept {
        std::int32_t place;
        QImage picture;
    };
    void decodeNewest();
    const Kept* kept(std::int32_t place) const;

    platform::MovieToolkit& _toolkit;
    std::function<void()> _made;
    std::weak_ptr<QVMovie> _movie;
    QSize _bounds;
    std::optional<std::int32_t> _newest; // one of the movie's so many places
    std::list<Kept> _kept;               // the one asked for last is the first
    std::unique_ptr<platform::MovieOpening> _decoding;
};
