// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/TrackNames.h"

#include "platform/base/LanguageNames.h"
#include "platform/base/Localization.h"

#include <QStringList>

#include <utility>

using platform::MovieTrack;

namespace {

constexpr qsizetype maximumTitle = 60;

/// As the user's language names it; what is no language as the file has it.
QString languageName(const MovieTrack& track) {
    const QString tag = TrackNames::languageOf(track);
    return tag.isEmpty() ? track.language : platform::localizedNameForLanguageID(tag);
}

QString shortened(const QString& title) {
    if (title.size() <= maximumTitle)
        return title;
    const qsizetype length = maximumTitle - (title[maximumTitle - 1].isHighSurrogate() ? 2 : 1);
    return title.left(length) + QChar(0x2026);
}

QString channelsName(int channels) {
    switch (channels) {
    case 0:
        return {};
    case 1:
        return platform::localizedString(QStringLiteral("Mono"));
    case 2:
        return platform::localizedString(QStringLiteral("Stereo"));
    case 6:
        return QStringLiteral("5.1");
    case 7:
        return QStringLiteral("6.1");
    case 8:
        return QStringLiteral("7.1");
    default:
        return platform::localizedFormat(QStringLiteral("%d channels"), {QString::number(channels)});
    }
}

/// As it is written on the covers of films.
QString codecName(const QString& codec) {
    static constexpr std::pair<const char*, const char*> names[] = {
        {"ac3", "AC-3"}, {"eac3", "E-AC-3"}, {"truehd", "TrueHD"}, {"opus", "Opus"}, {"vorbis", "Vorbis"}};
    for (const auto& [name, shown] : names)
        if (codec == QLatin1String(name))
            return QString::fromLatin1(shown);
    return codec.startsWith(QStringLiteral("pcm_")) ? QStringLiteral("PCM") : codec.toUpper();
}

} // namespace

namespace TrackNames {

QString languageOf(const MovieTrack& track) {
    return track.language.isEmpty() ? QString() : platform::languageTagOf(track.language);
}

QString nameOf(const MovieTrack& track) {
    QStringList parts;
    const QString language = languageName(track);
    if (!language.isEmpty())
        parts << language;
    if (!track.title.isEmpty() && track.title.compare(language, Qt::CaseInsensitive) != 0)
        parts << shortened(track.title);
    if (parts.isEmpty())
        parts << platform::localizedFormat(QStringLiteral("Track %d"), {QString::number(track.id)});
    if (track.kind == MovieTrack::Kind::audio)
        parts << channelsName(track.channels) << codecName(track.codec);
    if (track.isForced)
        parts << platform::localizedString(QStringLiteral("forced"));
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

} // namespace TrackNames
