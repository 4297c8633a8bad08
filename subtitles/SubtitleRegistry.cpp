// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/SubtitleRegistry.h"

#include "platform/base/PathNames.h"
#include "subtitles/input/SubtitleText.h"

#include <utility>

SubtitleRegistry::SubtitleRegistry(std::vector<SubtitleReader> readers)
    : _clusterList(std::move(readers)) {
    for (std::size_t position = 0; position < _clusterList.size(); ++position) {
        for (const QString& extension : _clusterList[position].extensions)
            _extensionsMap.insert(extension, position);
    }
}

SubtitleRegistry::~SubtitleRegistry() = default;

QStringList SubtitleRegistry::subtitleUnfilteredFileTypes() const {
    return _extensionsMap.keys();
}

std::vector<std::shared_ptr<QVSubtitles>> SubtitleRegistry::subtitlesWithFilePath(const QString& path,
                                                                                  SubtitleOwner& owner) {
    const SubtitleText beginning = SubtitleText::beginningOfFile(path);
    if (beginning.bytes.isEmpty())
        return {};
    const auto found = _extensionsMap.constFind(platform::pathExtension(path));
    const SubtitleReader* const own = found == _extensionsMap.constEnd() ? nullptr : &_clusterList[*found];
    if (own && own->isFormatValid(path, beginning.view()))
        return own->tracks(path, owner);
    for (const SubtitleReader& reader : _clusterList) {
        if (&reader != own && reader.isFormatValid(path, beginning.view()))
            return reader.tracks(path, owner);
    }
    return {};
}
