// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/files/M3uWriter.h"

#include "platform/base/PathNames.h"

#include <QUtf8StringView>

#include <algorithm>

namespace listFile {

namespace {

/// Whether a line of a list that consists of this path is read as the path.
bool isPlain(const QByteArray& path) {
    const bool hasControls = std::ranges::any_of(
        path, [](char c) { return static_cast<unsigned char>(c) < 0x20U || static_cast<unsigned char>(c) == 0x7FU; });
    const bool isDrive = path.size() > 1 && (path[1] == ':' || path[1] == '|');
    return !hasControls && QUtf8StringView(path).isValidUtf8() && !path.startsWith('#') && !path.startsWith("\\\\") &&
           path.trimmed().size() == path.size() && !isDrive && !path.contains("://");
}

QByteArray lineOf(const QUrl& url, const QByteArray& folder) {
    if (!url.isLocalFile())
        return url.toEncoded();
    const QByteArray path = platform::nativePath(url);
    if (path.startsWith(folder) && isPlain(path.mid(folder.size())))
        return path.mid(folder.size());
    return isPlain(path) ? path : "file://" + path.toPercentEncoding("/");
}

} // namespace

QByteArray m3uOf(const std::vector<WrittenEntry>& entries, const QUrl& list) {
    const QByteArray listPath = platform::nativePath(list);
    const QByteArray folder = listPath.left(listPath.lastIndexOf('/') + 1);
    QByteArray text = "#EXTM3U\n";
    for (const WrittenEntry& entry : entries) {
        const QByteArray title = entry.title.simplified().toUtf8();
        text += "#EXTINF:" + QByteArray::number(entry.seconds) + ',' + title + '\n';
        text += lineOf(entry.url, folder) + '\n';
    }
    return text;
}

} // namespace listFile
