// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MpvToolkit.h"

#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/MovieProbe.h"
#include "platform/movie/mpv/MpvCore.h"

#include <QEventLoop>

#include <clocale>
#include <utility>

namespace platform {

namespace {
/// How long a network address may take to answer, seconds.
constexpr double networkTimeout = 10.0;
/// Local files answer at once; this only guards against a file system that hangs.
constexpr double localTimeout = 60.0;
} // namespace

MpvToolkit::MpvToolkit() = default;

MpvToolkit::~MpvToolkit() {
    exit();
}

void MpvToolkit::prepare(const QUrl& url) {
    std::promise<OpenedMovie> probed;
    _prepared = probed.get_future();
    _preparedUrl = url.isLocalFile() ? url : QUrl();
    _firstFrame = {_preparedUrl, std::make_shared<Delivery<std::shared_ptr<const FirstFrame>>>()};
    _preparer =
        std::thread([this, url = _preparedUrl, probed = std::move(probed), decoded = _firstFrame.frame]() mutable {
            AvLibrary::get();
            probed.set_value(url.isEmpty() ? OpenedMovie{} : probeMovie(url, localTimeout, _cancelled));
            decoded->deliver(url.isEmpty() ? nullptr : FirstFrame::decode(url, _cancelled));
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
        if (!_coreMaker.joinable() && !_cancelled)
            _coreMaker = std::thread([this] { _player.deliverCore(MpvCore::create()); });
    });
}

void MpvToolkit::exit() {
    _cancelled = true;
    _opener.cancelAll();
    if (_preparer.joinable())
        _preparer.join();
    if (_coreMaker.joinable())
        _coreMaker.join();
    _player.dropCore();
}

MoviePlayer& MpvToolkit::player() {
    return _player;
}

std::optional<MovieInfo> MpvToolkit::open(const QUrl& url) {
    OpenedMovie opened;
    if (_prepared.valid() && !url.isEmpty() && url == _preparedUrl)
        opened = _prepared.get();
    else if (isNetworkURL(url))
        opened = openWhileRunning(url);
    else
        opened = probeMovie(url, localTimeout, _cancelled);
    if (opened.error != movieError::none)
        _stickyError = opened.error;
    return std::move(opened.info);
}

std::unique_ptr<MovieOpening> MpvToolkit::openAsync(const QUrl& url, std::function<void(OpenedMovie)> completion) {
    const double timeout = isNetworkURL(url) ? networkTimeout : localTimeout;
    return _opener.open(
        [url, timeout](const std::atomic<bool>& cancelled) { return probeMovie(url, timeout, cancelled); },
        std::move(completion));
}

OpenedMovie MpvToolkit::openWhileRunning(const QUrl& url) {
    QEventLoop loop;
    // Where the application ends meanwhile, the loop does so without an answer, and nothing is opened any more.
    OpenedMovie answer{std::nullopt, movieError::timedOut};
    bool answered = false;
    const auto opening = openAsync(url, [&](OpenedMovie opened) {
        answer = std::move(opened);
        answered = true;
        loop.quit();
    });
    loop.exec();
    if (!answered)
        _cancelled = true;
    return answer;
}

} // namespace platform
