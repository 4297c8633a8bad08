// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/movie/MovieToolkit.h"
#include "platform/movie/mpv/MovieOpener.h"
#include "platform/movie/mpv/MpvPlayer.h"

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <utility>

namespace platform {

/// The movie toolkit on libmpv and libavformat.
class MpvToolkit final : public MovieToolkit {
public:
    MpvToolkit();
    ~MpvToolkit() override;

    /// Starts to load the libraries on a thread and, with a URL, to open it and decode its first picture: what the
    /// first opening and load will ask for. Needs no application object yet; call it as early as possible.
    void prepare(const QUrl& url);

    /// Whether the addresses of pages are opened, too (VideoPage); asked on the main thread at each opening. They are
    /// not at first.
    void setOpensPages(std::function<bool()> opensPages) { _opensPages = std::move(opensPages); }

    /// enter() needs the application object: the player's core is made on a thread from here on. Before it and after
    /// exit() the player takes what it is asked, and plays nothing.
    void enter() override;
    void exit() override;
    std::unique_ptr<MovieOpening> openAsync(const QUrl& url, std::function<void(OpenedMovie)> completion) override;
    std::unique_ptr<MovieOpening> coverAsync(const QUrl& url, std::function<void(QImage)> completion) override;
    std::unique_ptr<MovieOpening>
    subtitleEndsAsync(const QUrl& url, int track, std::function<void(std::optional<SubtitleEnds>)> completion) override;
    std::unique_ptr<MovieOpening> blackBarsAsync(const QUrl& url, double duration,
                                                 std::function<void(PictureShape::Crop)> completion) override;
    std::unique_ptr<MovieOpening> keyframeAsync(const QUrl& url, double seconds, const QSize& bounds,
                                                std::function<void(QImage)> completion) override;
    FetchFile fileFetcher() const override;
    ReadSubtitlePackets subtitlePacketReader() const override;
    MoviePlayer& player() override;

private:
    class PreparedOpening;
    void makeCore();

    const std::shared_ptr<std::atomic<bool>> _cancelled = std::make_shared<std::atomic<bool>>(false);
    bool _entered = false;
    std::function<bool()> _opensPages;
    QUrl _preparedUrl; // until it is opened
    std::shared_ptr<Delivery<OpenedMovie>> _prepared;
    PreparedFrame _firstFrame;
    std::thread _coreMaker;
    MovieOpener _opener;
    MpvPlayer _player;
};

} // namespace platform
