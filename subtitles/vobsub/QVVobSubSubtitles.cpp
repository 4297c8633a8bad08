// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/QVVobSubSubtitles.h"

#include "platform/base/LanguageNames.h"
#include "platform/base/PathNames.h"
#include "subtitles/input/LineReader.h"
#include "subtitles/vobsub/IndexParser.h"
#include "subtitles/vobsub/SubFileSearch.h"

QVVobSubSubtitles::QVVobSubSubtitles(const Environment& environment, const QString& path, SubtitleOwner& owner,
                                     std::shared_ptr<const QVVobSubInfo> info, std::uint32_t idx)
    : QVSubtitles(environment.settings, path, owner, typeVobSub, static_cast<float>(owner.timeScale()) / 1000.0F,
                  Loading::onWorker)
    , _loop(environment.loop)
    , _subInfo(std::move(info))
    , _idx(idx)
    , _worker(environment.loop) {}

QVVobSubSubtitles::~QVVobSubSubtitles() {
    // Before any part of the track goes.
    _worker.stop();
}

void QVVobSubSubtitles::unload() {
    _worker.stop();
    QVSubtitles::unload();
}

bool QVVobSubSubtitles::isFormatValid(const QString& path, std::string_view text) {
    const auto line = LineReader(text).next();
    if (!line || !IndexParser::headerVersion(*line))
        return false;
    const QString base = platform::pathWithoutExtension(path);
    return !SubFileSearch::fileBeside(base, QStringLiteral("sub")).isEmpty() ||
           !SubFileSearch::archiveBeside(base).isEmpty();
}

QStringList QVVobSubSubtitles::extensionsList() {
    return {QStringLiteral("idx")};
}

std::vector<std::shared_ptr<QVSubtitles>>
QVVobSubSubtitles::subtitlesWithFilePath(const Environment& environment, const QString& path, SubtitleOwner& owner) {
    std::vector<std::shared_ptr<QVSubtitles>> tracks;
    const auto info = QVVobSubInfo::infoWithFile(path);
    const std::size_t count = info ? info->streams().size() : 0;
    for (std::uint32_t idx = 0; idx < count; ++idx)
        tracks.push_back(std::make_shared<QVVobSubSubtitles>(environment, path, owner, info, idx));
    return tracks;
}

std::optional<ImageAppearance> QVVobSubSubtitles::appearance() const {
    const VobSubIndex& index = _subInfo->index();
    return ImageAppearance{index._alpha, index._fadeIn, index._fadeOut};
}

float QVVobSubSubtitles::aspectRatio() const {
    return static_cast<float>(size().width()) / static_cast<float>(size().height());
}

QString QVVobSubSubtitles::language() const {
    const QString tag = platform::languageTagOf(streamInfo()._languageID);
    return tag.isEmpty() ? QVSubtitles::language() : tag;
}

QString QVVobSubSubtitles::title() const {
    return QStringLiteral("%1, %2").arg(streamInfo()._languageName, QVSubtitles::title());
}
