// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/MprisProperties.h"

#include <set>

namespace platform::mpris {

namespace {

constexpr double minimumRate = 0.25;
constexpr double maximumRate = 4;

const QString trackFolder = QStringLiteral("/org/lumaro/track/");

/// More than these are told of at once: a signal for each of thousands would cost everybody who listens.
constexpr std::size_t mostSteps = 16;

} // namespace

QDBusObjectPath pathOf(std::uint64_t number) {
    return QDBusObjectPath(number == 0 ? noTrack : trackFolder + QString::number(number));
}

std::uint64_t numberOf(const QDBusObjectPath& path) {
    return path.path().startsWith(trackFolder) ? path.path().mid(trackFolder.size()).toULongLong() : 0;
}

QString textOf(MediaState::Playback playback) {
    switch (playback) {
    case MediaState::Playback::playing:
        return QStringLiteral("Playing");
    case MediaState::Playback::paused:
        return QStringLiteral("Paused");
    case MediaState::Playback::stopped:
        break;
    }
    return QStringLiteral("Stopped");
}

QString textOf(MediaState::Looping looping) {
    switch (looping) {
    case MediaState::Looping::one:
        return QStringLiteral("Track");
    case MediaState::Looping::all:
        return QStringLiteral("Playlist");
    case MediaState::Looping::off:
        break;
    }
    return QStringLiteral("None");
}

QVariantMap metadataOf(const MediaTrack& track) {
    if (track.number == 0)
        return {};
    QVariantMap data{{QStringLiteral("mpris:trackid"), QVariant::fromValue(pathOf(track.number))},
                     {QStringLiteral("xesam:title"), track.title},
                     {QStringLiteral("xesam:url"), track.url}};
    if (track.length >= 0)
        data[QStringLiteral("mpris:length")] = static_cast<qlonglong>(track.length);
    if (!track.art.isEmpty())
        data[QStringLiteral("mpris:artUrl")] = track.art.toString(QUrl::FullyEncoded);
    if (!track.artist.isEmpty())
        data[QStringLiteral("xesam:artist")] = QStringList{track.artist};
    return data;
}

QVariantMap rootProperties(const Identity& identity) {
    return {{QStringLiteral("CanQuit"), true},
            {QStringLiteral("Fullscreen"), true},
            {QStringLiteral("CanSetFullscreen"), false},
            {QStringLiteral("CanRaise"), true},
            {QStringLiteral("HasTrackList"), true},
            {QStringLiteral("Identity"), identity.name},
            {QStringLiteral("DesktopEntry"), identity.desktopEntry},
            {QStringLiteral("SupportedUriSchemes"), identity.uriSchemes},
            {QStringLiteral("SupportedMimeTypes"), identity.mimeTypes}};
}

QVariantMap playerProperties(const MediaState& state) {
    return {{QStringLiteral("PlaybackStatus"), textOf(state.playback)},
            {QStringLiteral("LoopStatus"), textOf(state.looping)},
            {QStringLiteral("Rate"), state.rate},
            {QStringLiteral("Shuffle"), state.isShuffled},
            {QStringLiteral("Metadata"), metadataOf(state.track)},
            {QStringLiteral("Volume"), state.volume},
            {QStringLiteral("MinimumRate"), minimumRate},
            {QStringLiteral("MaximumRate"), maximumRate},
            {QStringLiteral("CanGoNext"), state.canGoNext},
            {QStringLiteral("CanGoPrevious"), state.canGoPrevious},
            {QStringLiteral("CanPlay"), state.canPlay},
            {QStringLiteral("CanPause"), state.canPlay},
            {QStringLiteral("CanSeek"), state.canSeek},
            {QStringLiteral("CanControl"), true}};
}

ListChange changeOf(const std::vector<std::uint64_t>& before, const std::vector<std::uint64_t>& after) {
    const std::set<std::uint64_t> old(before.begin(), before.end());
    const std::set<std::uint64_t> fresh(after.begin(), after.end());
    ListChange change;
    std::vector<std::uint64_t> keptBefore, keptAfter;
    for (const std::uint64_t number : before)
        (fresh.contains(number) ? keptBefore : change.removed).push_back(number);
    std::uint64_t last = 0;
    for (const std::uint64_t number : after) {
        if (old.contains(number))
            keptAfter.push_back(number);
        else
            change.added.push_back({number, last});
        last = number;
    }
    const bool isMoved = keptBefore != keptAfter;
    const bool isOther = keptBefore.empty() && before != after;
    if (isMoved || isOther || change.removed.size() + change.added.size() > mostSteps)
        return {true, {}, {}};
    return change;
}

QString introspection() {
    const auto element = [](const QString& name, const QString& content) {
        return QStringLiteral("  <interface name=\"%1\">\n%2  </interface>\n").arg(name, content);
    };
    // "r" and "w" as D-Bus has them; how a change is told where that is not by its value.
    const auto property = [](const char* name, const char* type, const char* access, const char* told = "true") {
        const QString line =
            QStringLiteral("    <property name=\"%1\" type=\"%2\" access=\"%3\">\n"
                           "      <annotation name=\"org.freedesktop.DBus.Property.EmitsChangedSignal\" "
                           "value=\"%4\"/>\n    </property>\n");
        return line.arg(QString::fromLatin1(name), QString::fromLatin1(type), QString::fromLatin1(access),
                        QString::fromLatin1(told));
    };
    // Arguments as "name:type", those that come out with a ">" before.
    const auto member = [](const char* kind, const char* name, const QStringList& arguments = {}) {
        QString text =
            QStringLiteral("    <%1 name=\"%2\">\n").arg(QString::fromLatin1(kind), QString::fromLatin1(name));
        for (const QString& argument : arguments) {
            const bool isOut = argument.startsWith(u'>');
            const QStringList parts = argument.mid(isOut ? 1 : 0).split(u':');
            const QString direction = qstrcmp(kind, "signal") == 0 ? QString()
                                      : isOut                      ? QStringLiteral(" direction=\"out\"")
                                                                   : QStringLiteral(" direction=\"in\"");
            text += QStringLiteral("      <arg name=\"%1\" type=\"%2\"%3/>\n").arg(parts[0], parts[1], direction);
        }
        return text + QStringLiteral("    </%1>\n").arg(QString::fromLatin1(kind));
    };
    const auto argument = [](const char* text) { return QString::fromLatin1(text); };
    const QString root = property("CanQuit", "b", "read") + property("Fullscreen", "b", "readwrite") +
                         property("CanSetFullscreen", "b", "read") + property("CanRaise", "b", "read") +
                         property("HasTrackList", "b", "read") + property("Identity", "s", "read") +
                         property("DesktopEntry", "s", "read") + property("SupportedUriSchemes", "as", "read") +
                         property("SupportedMimeTypes", "as", "read") + member("method", "Raise") +
                         member("method", "Quit");
    const QString player =
        property("PlaybackStatus", "s", "read") + property("LoopStatus", "s", "readwrite") +
        property("Rate", "d", "readwrite") + property("Shuffle", "b", "readwrite") +
        property("Metadata", "a{sv}", "read") + property("Volume", "d", "readwrite") +
        property("Position", "x", "read", "false") + property("MinimumRate", "d", "read") +
        property("MaximumRate", "d", "read") + property("CanGoNext", "b", "read") +
        property("CanGoPrevious", "b", "read") + property("CanPlay", "b", "read") + property("CanPause", "b", "read") +
        property("CanSeek", "b", "read") + property("CanControl", "b", "read", "false") + member("method", "Next") +
        member("method", "Previous") + member("method", "Pause") + member("method", "PlayPause") +
        member("method", "Stop") + member("method", "Play") + member("method", "Seek", {argument("Offset:x")}) +
        member("method", "SetPosition", {argument("TrackId:o"), argument("Position:x")}) +
        member("method", "OpenUri", {argument("Uri:s")}) + member("signal", "Seeked", {argument("Position:x")});
    const QString list =
        property("Tracks", "ao", "read", "invalidates") + property("CanEditTracks", "b", "read") +
        member("method", "GetTracksMetadata", {argument("TrackIds:ao"), argument(">Metadata:aa{sv}")}) +
        member("method", "AddTrack", {argument("Uri:s"), argument("AfterTrack:o"), argument("SetAsCurrent:b")}) +
        member("method", "RemoveTrack", {argument("TrackId:o")}) + member("method", "GoTo", {argument("TrackId:o")}) +
        member("signal", "TrackListReplaced", {argument("Tracks:ao"), argument("CurrentTrack:o")}) +
        member("signal", "TrackAdded", {argument("Metadata:a{sv}"), argument("AfterTrack:o")}) +
        member("signal", "TrackRemoved", {argument("TrackId:o")}) +
        member("signal", "TrackMetadataChanged", {argument("TrackId:o"), argument("Metadata:a{sv}")});
    return element(rootInterface, root) + element(playerInterface, player) + element(trackListInterface, list);
}

} // namespace platform::mpris
