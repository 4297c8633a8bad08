// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/PlaylistSaving.h"

#include "platform/base/Localization.h"
#include "platform/base/PathNames.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "playback/QVMovie.h"
#include "playlist/QVPlaylistController.h"
#include "playlist/files/M3uWriter.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <memory>
#include <utility>
#include <vector>

namespace {

constexpr const char* className = "QVAppController";

QString localized(const char* key) {
    return platform::localizedString(QString::fromUtf8(key));
}

/// In the user's language where it is one that users meet.
QString causeOf(int code, const QString& otherwise) {
    switch (code) {
    case EACCES:
    case EPERM:
        return localized("SaveErrorPermission");
    case EROFS:
        return localized("SaveErrorReadOnly");
    case ENOSPC:
    case EDQUOT:
        return localized("SaveErrorFull");
    case ENOENT:
    case ENOTDIR:
        return localized("SaveErrorFolder");
    default:
        return otherwise;
    }
}

/// Nothing, or why it could not be written.
QString write(const QString& path, const QByteArray& bytes) {
    if (QFileInfo(path).isDir())
        return localized("SaveErrorIsFolder");
    QSaveFile file(path);
    errno = 0;
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    const int code = errno;
    return isWritten ? QString() : causeOf(code, file.errorString());
}

} // namespace

PlaylistSaving::PlaylistSaving(const Environment& environment, platform::Desktop& desktop,
                               const QVPlaylistController& playlist)
    : _environment(environment)
    , _desktop(desktop)
    , _playlist(playlist) {}

void PlaylistSaving::savePlaylist() {
    if (_playlist.count() == 0)
        return;
    trace("%@: Launching Save Playlist panel ...", className);
    QString folder = _environment.settings.stringForKey(kNSNavLastRootDirectory);
    if (folder.startsWith(u'~'))
        folder.replace(0, 1, QDir::homePath());
    const QString suffix = QStringLiteral("m3u8");
    const platform::FileChoice choice = _desktop.runOpenPanel({.kind = platform::FileQuestion::Kind::newFile,
                                                               .title = localized("Save Playlist"),
                                                               .accept = localized("Save"),
                                                               .cancel = localized("Cancel"),
                                                               .extensions = {suffix},
                                                               .nameOfTypes = localized("Playlist File"),
                                                               .nameOfAllFiles = localized("All Files"),
                                                               .folder = folder,
                                                               .option = {},
                                                               .name = localized("Playlist File") + u'.' + suffix});
    if (choice.chosen.isEmpty())
        return;
    QString path = choice.chosen.front();
    if (platform::pathExtension(path).isEmpty())
        path += u'.' + suffix;
    std::vector<listFile::WrittenEntry> entries;
    entries.reserve(_playlist.count());
    for (std::uint32_t position = 0; position < _playlist.count(); ++position) {
        const std::shared_ptr<QVMovie> movie = _playlist.movieAtIndex(position);
        entries.push_back({movie->url(), movie->displayName(), movie->knownSeconds()});
    }
    const QUrl url = QUrl::fromLocalFile(QDir(path).absolutePath());
    if (const QString cause = write(path, listFile::m3uOf(entries, url)); !cause.isEmpty())
        _desktop.runAlert(
            {platform::localizedFormat(QStringLiteral("SaveErrorMessage"), {platform::lastPathComponent(path)}),
             cause + QStringLiteral("\n\n") + path, localized("OK"), QString(), QString()});
}
