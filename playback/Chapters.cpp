// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/Chapters.h"

#include "platform/base/Localization.h"

#include <algorithm>

namespace {
/// Who goes back sooner than this after a chapter's beginning means the one before. Seconds.
constexpr std::int32_t backAgain = 3;
} // namespace

std::int32_t Chapters::positionAt(std::span<const platform::Chapter> chapters, std::int32_t time) {
    const auto next = std::ranges::upper_bound(chapters, time, {}, &platform::Chapter::start);
    return static_cast<std::int32_t>(next - chapters.begin()) - 1;
}

std::optional<std::int32_t> Chapters::stepped(std::span<const platform::Chapter> chapters, std::int32_t time,
                                              std::int32_t timeScale, std::int32_t direction) {
    std::int32_t position = positionAt(chapters, time);
    if (direction > 0) {
        ++position;
    } else if (position >= 0) {
        const std::int64_t passed = std::int64_t{time} - chapters[static_cast<std::size_t>(position)].start;
        if (passed <= std::int64_t{backAgain} * timeScale && position > 0)
            --position;
    }
    if (position < 0 || position >= static_cast<std::int32_t>(chapters.size()))
        return std::nullopt;
    return position;
}

QString Chapters::text(std::span<const platform::Chapter> chapters, std::int32_t position) {
    if (position < 0 || position >= static_cast<std::int32_t>(chapters.size()))
        return {};
    QStringList parts{QString::number(position + 1), QString::number(chapters.size())};
    const QString& title = chapters[static_cast<std::size_t>(position)].title;
    if (title.isEmpty())
        return platform::localizedFormat(QStringLiteral("Chapter %d of %d"), parts);
    return platform::localizedFormat(QStringLiteral("Chapter %d of %d: %@"), parts << title);
}

QString Chapters::name(std::span<const platform::Chapter> chapters, std::int32_t position) {
    if (position < 0 || position >= static_cast<std::int32_t>(chapters.size()))
        return {};
    const QString& title = chapters[static_cast<std::size_t>(position)].title;
    return title.isEmpty() ? text(chapters, position) : title;
}
