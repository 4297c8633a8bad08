// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "subtitles/LoadingWorker.h"
#include "subtitles/QVSubtitles.h"
#include "subtitles/vobsub/QVVobSubInfo.h"

#include <QSizeF>
#include <QStringList>

#include <string_view>
#include <vector>

/// Bitmap subtitles from a DVD: one language of a VobSub pair, an index (".idx") with its data file (".sub"). Loaded by
/// a worker, since a film has more than a thousand pictures, and its data file may have to come out of an archive
/// first; cues appear while it runs. Main thread.
class QVVobSubSubtitles final : public QVSubtitles {
public:
    /// `idx` is the stream's position among those of the index.
    QVVobSubSubtitles(const Environment& environment, const QString& path, SubtitleOwner& owner,
                      std::shared_ptr<const QVVobSubInfo> info, std::uint32_t idx);
    ~QVVobSubSubtitles() override;

    /// Whether a file that begins with this text is an index that has a data file, or an archive, beside it.
    static bool isFormatValid(const QString& path, std::string_view text);
    static QStringList extensionsList();
    /// A track for each stream of an index; none when it cannot be read.
    static std::vector<std::shared_ptr<QVSubtitles>> subtitlesWithFilePath(const Environment& environment,
                                                                           const QString& path, SubtitleOwner& owner);

    const std::shared_ptr<const QVVobSubInfo>& info() const { return _subInfo; }
    const QVVobSubStreamInfo& streamInfo() const { return _subInfo->streams()[_idx]; }
    /// Of the subpicture frame, in pixels.
    QSizeF size() const { return _subInfo->index()._size; }
    /// Width by height; not finite for a frame without height.
    float aspectRatio() const;

    void unload() override;
    bool isLoading() const override { return _worker.isRunning(); }
    void waitForLoading() override { _worker.wait(); }
    void setLoadingObserver(std::function<void()> observer) override { _worker.setObserver(std::move(observer)); }
    /// Pictures have no texts.
    void setEncoding(std::uint32_t) override {}

    QString title() const override;
    QString language() const override;
    std::uint32_t streamIndex() const override { return _idx; }
    bool isTextBased() const override { return false; }
    bool isImageBased() const override { return true; }
    std::optional<ImageAppearance> appearance() const override;
    bool onlyForced() const override { return _subInfo->index()._onlyForced; }

protected:
    void _preload() override;
    const char* className() const override { return "QVVobSubSubtitles"; }

private:
    void load(const SubFile::Claim& subFile);

    platform::RunLoop& _loop;
    std::shared_ptr<const QVVobSubInfo> _subInfo;
    std::uint32_t _idx;
    LoadingWorker _worker;
};
