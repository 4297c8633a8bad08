// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/SubtitleRegistry.h"

#include "platform/base/PathNames.h"
#include "subtitles/text/QVMicroDVDSubtitles.h"
#include "subtitles/text/QVSubRipSubtitles.h"
#include "subtitles/text/QVTMPlayerSubtitles.h"
#include "subtitles/text/SubtitleText.h"
#include "subtitles/vobsub/QVVobSubSubtitles.h"

#include <QHash>

namespace {

using Tracks = std::vector<std::shared_ptr<QVSubtitles>>;

struct Reader {
    std::int32_t type;
    const char* name;
    QStringList (*extensionsList)();
    bool (*isFormatValid)(const QString& path, std::string_view beginning);
    Tracks (*tracks)(const QString& path, SubtitleOwner& owner);
};

template <class Track>
Tracks oneTrack(const QString& path, SubtitleOwner& owner) {
    return {QVSubtitles::makeTrack<Track>(path, owner)};
}

template <class Track>
Reader textReader(std::int32_t type, const char* name) {
    const auto isFormatValid = [](const QString&, std::string_view beginning) {
        return Track::isFormatValid(beginning);
    };
    return {type, name, &Track::extensionsList, isFormatValid, &oneTrack<Track>};
}

/// In the order of their types.
const std::vector<Reader>& clusterList() {
    static const std::vector<Reader> readers{
        textReader<QVSubRipSubtitles>(QVSubtitles::typeSubRip, "QVSubRipSubtitles"),
        textReader<QVMicroDVDSubtitles>(QVSubtitles::typeMicroDVD, "QVMicroDVDSubtitles"),
        {QVSubtitles::typeVobSub, "QVVobSubSubtitles", &QVVobSubSubtitles::extensionsList,
         &QVVobSubSubtitles::isFormatValid, &QVVobSubSubtitles::subtitlesWithFilePath},
        textReader<QVTMPlayerSubtitles>(QVSubtitles::typeTMPlayer, "QVTMPlayerSubtitles"),
    };
    return readers;
}

/// An extension that several readers claim belongs to the last of them.
const QHash<QString, const Reader*>& extensionsMap() {
    static const QHash<QString, const Reader*> map = [] {
        QHash<QString, const Reader*> readers;
        for (const Reader& reader : clusterList()) {
            for (const QString& extension : reader.extensionsList())
                readers.insert(extension, &reader);
        }
        return readers;
    }();
    return map;
}

SubtitleRegistry* sShared = nullptr;

} // namespace

SubtitleRegistry& SubtitleRegistry::shared() {
    static SubtitleRegistry registry;
    return sShared ? *sShared : registry;
}

void SubtitleRegistry::setShared(SubtitleRegistry* registry) {
    sShared = registry;
}

QStringList SubtitleRegistry::subtitleUnfilteredFileTypes() const {
    return extensionsMap().keys();
}

Tracks SubtitleRegistry::subtitlesWithFilePath(const QString& path, SubtitleOwner& owner) {
    const SubtitleText beginning = SubtitleText::beginningOfFile(path);
    if (beginning.bytes.isEmpty())
        return {};
    const Reader* const own = extensionsMap().value(platform::pathExtension(path));
    if (own && own->isFormatValid(path, beginning.view()))
        return own->tracks(path, owner);
    for (const Reader& reader : clusterList()) {
        if (&reader != own && reader.isFormatValid(path, beginning.view()))
            return reader.tracks(path, owner);
    }
    return {};
}

std::int32_t SubtitleRegistry::typeForExtension(const QString& extension) {
    const Reader* const reader = extensionsMap().value(extension);
    return reader ? reader->type : QVSubtitles::typeNone;
}

const char* SubtitleRegistry::classForType(std::int32_t type) {
    for (const Reader& reader : clusterList()) {
        if (reader.type == type)
            return reader.name;
    }
    return nullptr;
}
