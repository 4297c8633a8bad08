// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MpvToolkit.h"

#include "platform/base/Background.h"
#include "platform/base/Delivery.h"
#include "platform/movie/BlackBars.h"
#include "platform/movie/mpv/FileFetch.h"
#include "platform/movie/mpv/HardwareDecoding.h"
#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/MovieProbe.h"
#include "platform/movie/mpv/MpvCore.h"
#include "platform/movie/mpv/SubtitleDemuxer.h"
#include "platform/movie/mpv/SubtitleEndsProbe.h"
#include "platform/movie/mpv/VideoPage.h"
#include "platform/window/GraphicsDevice.h"

#include <clocale>
#include <utility>
#include <vector>

namespace platform {

namespace {
/// How long an opening may take in all, seconds. One of which nothing comes any more is given up before.
constexpr double openTimeout = 60.0;
} // namespace

MpvToolkit::MpvToolkit() = default;

MpvToolkit::~MpvToolkit() {
    exit();
}

void MpvToolkit::prepare(const QUrl& url) {
    _preparedUrl = url.isLocalFile() ? url : QUrl();
    _prepared = std::make_shared<Delivery<OpenedMovie>>();
    _firstFrame = {_preparedUrl, 0, std::make_shared<Delivery<std::shared_ptr<const FirstFrame>>>()};
    background::run([cancelled = _cancelled, url = _preparedUrl, probed = _prepared, decoded = _firstFrame.frame] {
        AvLibrary::get();
        probed->deliver(url.isEmpty() ? OpenedMovie{} : probeMovie(url, openTimeout, *cancelled));
        decoded->deliver(url.isEmpty() ? nullptr : FirstFrame::decode(url, *cancelled));
    });
}

void MpvToolkit::enter() {
    if (std::exchange(_entered, true))
        return;
    // The application object takes the user's locale over; libmpv asks for numbers with a point.
    setlocale(LC_NUMERIC, "C");
    _player.setPreparedFrame(std::move(_firstFrame));
    // Loading a library holds a lock that starting the window needs, too. So the core comes after the first picture
    // where one is on its way.
    _player.whenFirstFrameIsDone([this] {
        if (!_coreMaker.joinable())
            makeCore();
    });
    _player.setCoreMaker([this] { makeCore(); });
}

void MpvToolkit::makeCore() {
    if (*_cancelled)
        return;
    if (_coreMaker.joinable())
        _coreMaker.join(); // what it made has been handed over
    _coreMaker = std::thread([this] {
        _player.deliverCore(MpvCore::create(hasGraphicsDevice() ? GraphicsDevice::some : GraphicsDevice::none));
    });
}

void MpvToolkit::exit() {
    *_cancelled = true;
    if (_prepared)
        _prepared->abandon();
    _opener.cancelAll();
    if (_coreMaker.joinable())
        _coreMaker.join();
    _player.dropCore();
}

FetchFile MpvToolkit::fileFetcher() const {
    return &fetchFile;
}

ReadSubtitlePackets MpvToolkit::subtitlePacketReader() const {
    return &readSubtitlePackets;
}

MoviePlayer& MpvToolkit::player() {
    return _player;
}

/// The answer comes from the thread that prepares the first movie.
class MpvToolkit::PreparedOpening final : public MovieOpening {
public:
    PreparedOpening(std::shared_ptr<Delivery<OpenedMovie>> answer, std::function<void(OpenedMovie)> completion)
        : _answer(std::move(answer))
        , _completion(std::make_shared<std::function<void(OpenedMovie)>>(std::move(completion))) {
        // One that is there already comes from the run loop, too.
        RunLoop::main().post([answer = std::weak_ptr(_answer), completion = std::weak_ptr(_completion)] {
            if (const auto call = completion.lock()) {
                if (const auto held = answer.lock())
                    held->receive([call](OpenedMovie opened) { (*call)(std::move(opened)); });
            }
        });
    }
    ~PreparedOpening() override { _answer->abandon(); }

private:
    std::shared_ptr<Delivery<OpenedMovie>> _answer;
    std::shared_ptr<std::function<void(OpenedMovie)>> _completion;
};

std::unique_ptr<MovieOpening> MpvToolkit::openAsync(const QUrl& url, std::function<void(OpenedMovie)> completion) {
    if (!url.isEmpty() && url == _preparedUrl) {
        _preparedUrl.clear();
        return std::make_unique<PreparedOpening>(_prepared, std::move(completion));
    }
    return _opener.open(
        [url, opensPages = _opensPages && _opensPages()](const std::atomic<bool>& cancelled) {
            OpenedMovie opened = probeMovie(url, openTimeout, cancelled);
            if (!opensPages || cancelled || !mayBePage(url, opened))
                return opened;
            if (const auto stream = streamOfPage(url, cancelled)) {
                opened = probeMovie(*stream, openTimeout, cancelled);
                if (opened.info)
                    opened.info->stream = std::exchange(opened.info->url, url);
            }
            return opened;
        },
        std::move(completion));
}

std::unique_ptr<MovieOpening> MpvToolkit::coverAsync(const QUrl& url, std::function<void(QImage)> completion) {
    // Opened as a movie is, on a thread; what it gives goes its own way.
    const auto cover = std::make_shared<QImage>();
    return _opener.open(
        [url, cover](const std::atomic<bool>& cancelled) {
            if (const auto picture = FirstFrame::decode(url, cancelled, FirstFrame::PictureOf::cover))
                *cover = picture->image(QSize(maximumCoverSide, maximumCoverSide));
            return OpenedMovie{};
        },
        [cover, completion = std::move(completion)](const OpenedMovie&) { completion(*cover); });
}

std::unique_ptr<MovieOpening> MpvToolkit::keyframeAsync(const QUrl& url, double seconds, const QSize& bounds,
                                                        std::function<void(QImage)> completion) {
    const auto found = std::make_shared<QImage>();
    return _opener.open(
        [url, seconds, bounds, found](const std::atomic<bool>& cancelled) {
            using enum FirstFrame::PictureOf;
            if (const auto picture = FirstFrame::decode(url, cancelled, storedKeyframe, seconds))
                *found = picture->image(bounds);
            return OpenedMovie{};
        },
        [found, completion = std::move(completion)](const OpenedMovie&) { completion(*found); });
}

std::unique_ptr<MovieOpening>
MpvToolkit::subtitleEndsAsync(const QUrl& url, int track, std::function<void(std::optional<SubtitleEnds>)> completion) {
    const auto ends = std::make_shared<std::optional<SubtitleEnds>>();
    return _opener.open(
        [url, track, ends](const std::atomic<bool>& cancelled) {
            *ends = subtitleEnds(url, track, cancelled);
            return OpenedMovie{};
        },
        [ends, completion = std::move(completion)](const OpenedMovie&) { completion(*ends); });
}

std::unique_ptr<MovieOpening> MpvToolkit::blackBarsAsync(const QUrl& url, double duration,
                                                         std::function<void(PictureShape::Crop)> completion) {
    const auto crop = std::make_shared<PictureShape::Crop>();
    return _opener.open(
        [url, duration, crop](const std::atomic<bool>& cancelled) {
            constexpr int samples = 8; // neither the titles nor the credits
            constexpr QSize largest(4096, 4096);
            std::vector<QImage> pictures;
            for (int i = 1; i <= samples && !cancelled; ++i) {
                const double seconds = duration * i / (samples + 1);
                if (const auto picture = FirstFrame::decode(url, cancelled, FirstFrame::PictureOf::keyframe, seconds))
                    pictures.push_back(picture->image(largest));
            }
            *crop = blackBars(pictures);
            return OpenedMovie{};
        },
        [crop, completion = std::move(completion)](const OpenedMovie&) { completion(*crop); });
}

} // namespace platform
