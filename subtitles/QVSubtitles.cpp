// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/QVSubtitles.h"

namespace {
SubtitleRegistry* sShared = nullptr;
}

SubtitleRegistry& SubtitleRegistry::shared() {
    static SubtitleRegistry registry;
    return sShared ? *sShared : registry;
}

void SubtitleRegistry::setShared(SubtitleRegistry* registry) {
    sShared = registry;
}

QStringList SubtitleRegistry::subtitleUnfilteredFileTypes() const {
    return {};
}

std::vector<std::shared_ptr<QVSubtitles>> SubtitleRegistry::subtitlesWithFilePath(const QString&, SubtitleOwner&) {
    return {};
}
