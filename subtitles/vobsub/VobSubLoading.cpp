// SPDX-License-Identifier: GPL-3.0-or-later
// How the worker of a VobSub track makes its cues.
#include "platform/base/PathNames.h"
#include "platform/base/RunLoop.h"
#include "settings/Tracing.h"
#include "subtitles/CueTiming.h"
#include "subtitles/vobsub/DataFile.h"
#include "subtitles/vobsub/PackReader.h"
#include "subtitles/vobsub/QVVobSubPacket.h"
#include "subtitles/vobsub/QVVobSubSubtitles.h"
#include "subtitles/vobsub/VobSubPlacement.h"

#include <algorithm>
#include <limits>
#include <new>

namespace {

/// Of the pictures of a track. A film has about six MiB; a file with more than this is not one of a film.
constexpr std::size_t maximumMemory = std::size_t{256} * 1024 * 1024;
/// Of a cue, beside its picture.
constexpr std::size_t cueMemory = sizeof(QVSubtitle) + 64;

/// Milliseconds as far as a cue can say them.
std::int32_t milliseconds(std::int64_t value) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

/// How long a picture stands unless another one follows. Strictly one without a stop goes at once when none does.
std::int32_t displayTime(const QVVobSubPacket& packet, ReadingMode mode) {
    const bool isGuessed = packet.displayTime() == 0 && mode == ReadingMode::repairing;
    return isGuessed ? CueTiming::guessedMilliseconds : packet.displayTime();
}

} // namespace

void QVVobSubSubtitles::_preload() {
    _worker.start([this, subFile = _subInfo->subFile().claim()] {
        try {
            load(*subFile);
        } catch (const std::bad_alloc&) {
            logMemoryFull();
            finishLoading();
        }
    });
}

void QVVobSubSubtitles::load(const SubFile::Claim& subFile) {
    // For messages only: the clock is asked when somebody reads them.
    const auto messageTime = [this] { return gTracingEnabled ? _loop.now() : 0; };
    const double begin = messageTime();
    const VobSubIndex& index = _subInfo->index();
    const QString subPath = subFile.path(_worker.stopToken());
    // It was waiting for an archive to be taken apart.
    if (subPath.isEmpty() && _worker.isAborted())
        return;
    const auto file = DataFile::open(subPath);
    if (!file) {
        logAlways("ERROR: %@: Unable to open subtitles file \"%@\" for reading.", className(),
                  platform::lastPathComponent(subPath));
        trace("%@: Preload Time: %@", className(), QString::asprintf("%6.5f", messageTime() - begin));
        reset();
        return;
    }
    trace("%@: Begin parsing subtitles file \"%@\"%@.", className(), platform::lastPathComponent(path()), " threaded");

    const std::atomic<bool>& isAborted = _worker.isAborted();
    PackReader reader(*file, streamInfo()._index, isAborted);
    std::size_t memory = 0;
    // The cue before, which the next one ends where it has no stop of its own, or a later one.
    std::shared_ptr<QVSubtitle> previous;
    bool previousHasNoStop = false;
    const auto endPrevious = [&](std::int32_t start) {
        if (!previous || (mode() == ReadingMode::repairing && start < previous->start()))
            return;
        if (previousHasNoStop || previous->end() > start)
            previous->setEnd(start);
        previousHasNoStop = false;
    };
    const auto& positions = streamInfo()._subPos;
    for (std::size_t at = 0; at < positions.size(); ++at) {
        const QVVobSubPos& pos = positions[at];
        auto packet = QVVobSubPacket::packetWithFile(reader, pos);
        if (isAborted)
            break;
        const std::int32_t start = ajustToMovieTimeScale(milliseconds(pos._timestamp));
        if (!packet && mode() == ReadingMode::repairing) {
            noteLosses(1);
            endPrevious(start);
            continue;
        }
        if (!packet) {
            noteLosses(positions.size() - at);
            break;
        }
        const std::int32_t end = ajustToMovieTimeScale(milliseconds(pos._timestamp + displayTime(*packet, mode())));
        const auto image = packet->decodeWithInfo(index, mode());
        memory += cueMemory + (image ? image->memory() : 0);
        if (memory > maximumMemory) {
            logAlways("WARNING: %@: \"%@\" is too large, its end is left out.", className(),
                      platform::lastPathComponent(file->path()));
            break;
        }
        auto subtitle = std::make_shared<QVSubtitle>(image, start, end);
        endPrevious(start);
        previousHasNoStop = packet->displayTime() == 0;
        subtitle->setRect(VobSubPlacement::place(packet->rect(), index));
        subtitle->setForced(packet->forced());
        previous = subtitle;
        appendSubtitle(std::move(subtitle));
        _worker.report();
        if (isAborted)
            break;
    }
    finishLoading();
    trace("%@: Preload Time: %@", className(), QString::asprintf("%6.5f", messageTime() - begin));
}
