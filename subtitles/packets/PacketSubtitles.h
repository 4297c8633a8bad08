// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/movie/SubtitlePackets.h"
#include "subtitles/LoadingWorker.h"
#include "subtitles/QVSubtitles.h"
#include "subtitles/packets/PacketFormat.h"

/// A track of texts of one of the kinds in PacketFormat.h, most of which libavformat takes apart. Read on a thread, in
/// one piece: a large file holds nobody up. Main thread.
class PacketSubtitles final : public QVSubtitles {
public:
    PacketSubtitles(const Environment& environment, platform::ReadSubtitlePackets readPackets, const QString& path,
                    SubtitleOwner& owner, PacketFormat format);
    ~PacketSubtitles() override;

    /// Of all kinds.
    static QStringList extensionsList();
    /// The track of a file of one of the kinds; none for others.
    static std::vector<std::shared_ptr<QVSubtitles>>
    subtitlesWithFilePath(const Environment& environment, const platform::ReadSubtitlePackets& readPackets,
                          const QString& path, SubtitleOwner& owner);

    void unload() override;
    bool isLoading() const override { return _worker.isRunning(); }
    void waitForLoading() override { _worker.wait(); }
    void setLoadingObserver(std::function<void()> observer) override;
    /// Where the file is of its maker's design the player draws it, and no cue of it is due.
    void setShown(bool isShown) override;
    void setShift(const CueShift& shift) override;
    std::shared_ptr<QVSubtitle> subtitleForTime(std::int32_t movieTime) override;
    /// Reads the file again; the texts stay as they were until that has ended, and where the file is gone.
    void setEncoding(std::uint32_t encoding) override;
    bool isTextBased() const override { return true; }
    bool isImageBased() const override { return false; }
    bool isFrameBased() const override { return _format == PacketFormat::aqTitle; }
    QString formatName() const override { return factsOf(_format).title; }

protected:
    void _preload() override;
    const char* className() const override { return "PacketSubtitles"; }

private:
    void start(std::uint32_t encoding);
    void load(std::uint32_t encoding, double framesFactor);
    void followDrawing();

    platform::ReadSubtitlePackets _readPackets;
    PacketFormat _format;
    /// By the worker, before the cues are there.
    std::atomic<bool> _isOfDesign = false;
    bool _isShown = false;
    LoadingWorker _worker;
};
