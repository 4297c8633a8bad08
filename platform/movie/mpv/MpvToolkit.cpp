// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/MpvToolkit.h"

#include "platform/movie/mpv/Libraries.h"
#include "platform/movie/mpv/MpvCore.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
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
    std::promise<ProbeResult> probed;
    std::promise<std::shared_ptr<const FirstPicture>> decoded;
    _prepared = probed.get_future();
    _preparedUrl = url.isLocalFile() ? url : QUrl();
    _firstPicture = {_preparedUrl, decoded.get_future()};
    _preparer =
        std::thread([this, url = _preparedUrl, probed = std::move(probed), decoded = std::move(decoded)]() mutable {
            AvLibrary::get();
            probed.set_value(url.isEmpty() ? ProbeResult{} : probeMovie(url, localTimeout, _cancelled));
            decoded.set_value(url.isEmpty() ? nullptr : FirstPicture::decode(url, _cancelled));
        });
}

void MpvToolkit::enter() {
    if (std::exchange(_entered, true))
        return;
    // The application object takes the user's locale over; libmpv asks for numbers with a point.
    setlocale(LC_NUMERIC, "C");
    _player.setPreparedPicture(std::move(_firstPicture));
    // Loading a library holds a lock that starting the window needs, too. So the core comes after the first picture
    // where one is on its way.
    _player.whenFirstPictureIsDone([this] {
        if (!_coreMaker.joinable() && !_cancelled)
            _coreMaker = std::thread([this] { _player.deliverCore(MpvCore::create()); });
    });
}

void MpvToolkit::exit() {
    _cancelled = true;
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
    ProbeResult result;
    if (_prepared.valid() && !url.isEmpty() && url == _preparedUrl)
        result = _prepared.get();
    else if (isNetworkURL(url))
        result = probeWhileRunning(url);
    else
        result = probeMovie(url, localTimeout, _cancelled);
    if (result.error != movieError::none)
        _stickyError = result.error;
    return std::move(result.info);
}

ProbeResult MpvToolkit::probeWhileRunning(const QUrl& url) {
    auto answer = std::async(std::launch::async, [this, url] { return probeMovie(url, networkTimeout, _cancelled); });
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (answer.wait_for(std::chrono::seconds(0)) == std::future_status::ready)
            loop.quit();
    });
    poll.start(5);
    loop.exec();
    // The application ends while the address has not answered: the probe gives up at once.
    if (answer.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        _cancelled = true;
    return answer.get();
}

} // namespace platform
