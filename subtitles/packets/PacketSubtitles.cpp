// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/packets/PacketSubtitles.h"

#include "platform/base/PathNames.h"
#include "platform/base/RegularFile.h"
#include "settings/Tracing.h"
#include "subtitles/input/SubtitleText.h"
#include "subtitles/packets/PacketText.h"
#include "subtitles/packets/TimedText.h"

#include <new>
#include <utility>

namespace {

/// What is larger, or has more cues, is no text that somebody wrote. Fonts may be in a file.
constexpr qsizetype maximumFileSize = 64 * 1024 * 1024;
constexpr qsizetype maximumLine = 1024 * 1024;
constexpr std::size_t maximumCues = 500'000;
/// Characters of all cues.
constexpr qsizetype maximumText = 64 * 1024 * 1024;

/// Frames a second that libavformat takes a file for that is timed in them.
constexpr double assumedFrameRate = 25;

/// The bytes of a C string, with the line ends that every reader knows.
QByteArray plainText(const QByteArray& utf8) {
    QByteArray text;
    text.reserve(utf8.size());
    for (qsizetype at = 0; at < utf8.size(); ++at) {
        const char byte = utf8[at];
        if (byte != '\r')
            text += byte == '\0' ? ' ' : byte;
        else if (at + 1 == utf8.size() || utf8[at + 1] != '\n')
            text += '\n';
    }
    return text;
}

QString placed(const TimedCue& cue) {
    return cue.place == 0 ? cue.text : QStringLiteral("{\\an%1}").arg(cue.place) + cue.text;
}

} // namespace

PacketSubtitles::PacketSubtitles(const Environment& environment, platform::ReadSubtitlePackets readPackets,
                                 const QString& path, SubtitleOwner& owner, PacketFormat format)
    : QVSubtitles(environment.settings, path, owner, typePacket, static_cast<float>(owner.timeScale()) / 1000.0F,
                  Loading::onWorker)
    , _readPackets(std::move(readPackets))
    , _format(format)
    , _worker(environment.loop) {}

PacketSubtitles::~PacketSubtitles() {
    // Before any part of the track goes.
    _worker.stop();
}

QStringList PacketSubtitles::extensionsList() {
    QStringList extensions;
    for (const PacketFormatFacts& facts : packetFormats())
        extensions += QString(facts.extensions).split(u' ', Qt::SkipEmptyParts);
    return extensions;
}

std::vector<std::shared_ptr<QVSubtitles>>
PacketSubtitles::subtitlesWithFilePath(const Environment& environment, const platform::ReadSubtitlePackets& readPackets,
                                       const QString& path, SubtitleOwner& owner) {
    const SubtitleText beginning = SubtitleText::beginningOfFile(path);
    const auto format = packetFormatOf(beginning.view());
    if (!format)
        return {};
    return {std::make_shared<PacketSubtitles>(environment, readPackets, path, owner, *format)};
}

void PacketSubtitles::setLoadingObserver(std::function<void()> observer) {
    if (!observer) {
        _worker.setObserver(nullptr);
        return;
    }
    _worker.setObserver([this, observer = std::move(observer)] {
        followDrawing();
        observer();
    });
}

void PacketSubtitles::setShown(bool isShown) {
    const bool wasShown = std::exchange(_isShown, isShown);
    if (isShown)
        followDrawing();
    else if (wasShown && _isOfDesign)
        owner().endDrawing(path());
}

void PacketSubtitles::setShift(const CueShift& shift) {
    QVSubtitles::setShift(shift);
    followDrawing();
}

void PacketSubtitles::followDrawing() {
    if (_isShown && _isOfDesign)
        owner().drawFile(path(), shift());
}

std::shared_ptr<QVSubtitle> PacketSubtitles::subtitleForTime(std::int32_t movieTime) {
    return _isShown && _isOfDesign ? nullptr : QVSubtitles::subtitleForTime(movieTime);
}

void PacketSubtitles::unload() {
    _worker.stop();
    QVSubtitles::unload();
}

void PacketSubtitles::setEncoding(std::uint32_t encoding) {
    if (encoding == this->encoding() || !isLoaded())
        return;
    _worker.stop();
    start(encoding);
}

void PacketSubtitles::_preload() {
    start(encoding());
}

void PacketSubtitles::start(std::uint32_t encoding) {
    // The movie is asked here, on its own thread.
    const double factor = isFrameBased() ? assumedFrameRate / actualFrameRate(frameRateChoice()) : 1;
    _worker.start([this, encoding, factor] {
        try {
            load(encoding, factor);
        } catch (const std::bad_alloc&) {
            logMemoryFull();
            finishLoading();
        }
    });
}

void PacketSubtitles::load(std::uint32_t encoding, double factor) {
    const QString name = platform::lastPathComponent(path());
    std::optional<platform::TextFile> file = platform::readTextFile(path(), maximumFileSize, maximumLine);
    if (!file) {
        logAlways("ERROR: %@: Unable to open subtitles file \"%@\" for reading.", className(), name);
        reset();
        return;
    }
    trace("%@: Begin parsing subtitles file \"%@\"%@.", className(), name, " threaded");
    bool isCut = file->leftOut > 0 || file->bytes.size() == maximumFileSize;
    const SubtitleText text = SubtitleText::fromBytes(std::exchange(file->bytes, {}), encoding);
    std::size_t lost = 0;
    const QByteArray utf8 = preparedText(plainText(text.asUTF8(lost)), _format);
    std::vector<TimedCue> cues;
    qsizetype size = 0;
    bool isRead = true;
    if (const char* const demuxer = factsOf(_format).demuxer) {
        const SubStationStyles styles =
            _format == PacketFormat::subStation
                ? SubStationStyles({utf8.constData(), static_cast<std::size_t>(utf8.size())})
                : SubStationStyles();
        _isOfDesign = styles.areOfDesign();
        isRead = _readPackets(utf8, demuxer, _worker.isAborted(), [&](const platform::SubtitlePacket& packet) {
            TimedCue cue = cueOfPacket(packet, _format, styles);
            size += cue.text.size();
            if (!cue.text.isEmpty())
                cues.push_back(std::move(cue));
            isCut |= cues.size() >= maximumCues || size >= maximumText;
            return !isCut || (cues.size() < maximumCues && size < maximumText);
        });
    } else if (auto read = TimedText::read(utf8, maximumCues, _worker.isAborted())) {
        cues = *std::move(read);
        isCut |= cues.size() >= maximumCues;
    } else {
        isRead = false;
    }
    if (_worker.isAborted())
        return;
    if (!isRead)
        logAlways("ERROR: %@: \"%@\" cannot be read as %@.", className(), name, formatName());
    if (isCut)
        logAlways("WARNING: %@: \"%@\" is too large, its end is left out.", className(), name);

    const std::vector<TimedCue> shown = oneAtATime(std::move(cues), lost);
    CueList list;
    for (const TimedCue& cue : shown)
        list.append(std::make_shared<QVSubtitle>(placed(cue), nearestMovieTime(static_cast<double>(cue.start) * factor),
                                                 nearestMovieTime(static_cast<double>(cue.end) * factor)));
    setLoadedEncoding(text.encoding);
    forgetLosses();
    noteLosses(lost);
    setCues(std::move(list));
    finishLoading();
}
