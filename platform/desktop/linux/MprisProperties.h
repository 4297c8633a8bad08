// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/MediaControls.h"

#include <QDBusObjectPath>
#include <QString>
#include <QStringList>
#include <QVariantMap>

/// How a player is put on the bus: the names and values of the interface MPRIS 2.2
/// (https://specifications.freedesktop.org/mpris-spec/2.2/). Pure functions.
namespace platform::mpris {

inline const QString objectPath = QStringLiteral("/org/mpris/MediaPlayer2");
inline const QString rootInterface = QStringLiteral("org.mpris.MediaPlayer2");
inline const QString playerInterface = QStringLiteral("org.mpris.MediaPlayer2.Player");
inline const QString trackListInterface = QStringLiteral("org.mpris.MediaPlayer2.TrackList");
inline const QString noTrack = QStringLiteral("/org/mpris/MediaPlayer2/TrackList/NoTrack");

/// What stays the same.
struct Identity {
    QString name;
    /// Of the program's desktop entry, without its ending.
    QString desktopEntry;
    QStringList uriSchemes;
    QStringList mimeTypes;
};

/// The object path of a track, and the number of one; 0 for any other path.
QDBusObjectPath pathOf(std::uint64_t number);
std::uint64_t numberOf(const QDBusObjectPath& path);

QString textOf(MediaState::Playback playback);
QString textOf(MediaState::Looping looping);

QVariantMap metadataOf(const MediaTrack& track);
/// Every property of an interface but the position and the list of tracks, which are asked for by themselves.
QVariantMap rootProperties(const Identity& identity);
QVariantMap playerProperties(const MediaState& state);

/// The three interfaces in D-Bus's introspection format. Qt adds those of every object.
QString introspection();

/// How one list of tracks became another one: in few steps, or altogether.
struct ListChange {
    bool isReplaced = false;
    std::vector<std::uint64_t> removed;
    struct Added {
        std::uint64_t number;
        /// 0 for the beginning.
        std::uint64_t after;
    };
    std::vector<Added> added;
};
ListChange changeOf(const std::vector<std::uint64_t>& before, const std::vector<std::uint64_t>& after);

} // namespace platform::mpris
