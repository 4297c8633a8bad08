// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/files/ListAddress.h"

#include "platform/base/PathNames.h"

#include <QDir>
#include <QUtf8StringView>

#include <algorithm>
#include <vector>

namespace listFile {

namespace {

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isWindowsPath(const QByteArray& path) {
    const bool isDrive = path.size() > 2 && isLetter(path[0]) && (path[1] == ':' || path[1] == '|') &&
                         (path[2] == '\\' || path[2] == '/');
    return isDrive || path.startsWith("\\\\");
}

/// A scheme of at least two letters, and two slashes.
bool isURL(const QByteArray& text) {
    const qsizetype colon = text.indexOf("://");
    return colon > 1 && isLetter(text[0]) && std::all_of(text.begin() + 1, text.begin() + colon, [](char c) {
               return isLetter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
           });
}

QUrl fileAt(const QByteArray& path) {
    if (!QUtf8StringView(path).isValidUtf8())
        return platform::urlOfNativePath(path);
    return QUrl::fromLocalFile(QDir::cleanPath(QString::fromUtf8(path)));
}

Address fileOfURL(const QUrl& url) {
    const QByteArray path = platform::nativePath(url);
    if (isWindowsPath(path.mid(1)))
        return {Address::Kind::windowsPath, {}};
    const bool isHere = url.host().isEmpty() || url.host() == QStringLiteral("localhost");
    if (!isHere || path.isEmpty() || path.contains('\0'))
        return {Address::Kind::unusable, {}};
    return {Address::Kind::file, fileAt(path)};
}

Address fileOfPath(const Entry& entry, const QUrl& list, const Exists& exists) {
    const QByteArray listPath = platform::nativePath(list);
    const QByteArray folder = listPath.left(listPath.lastIndexOf('/') + 1);
    const auto absolute = [&folder](const QByteArray& path) { return path.startsWith('/') ? path : folder + path; };
    const QByteArray text = entry.text.toUtf8();
    const QByteArray usual = QUtf8StringView(entry.address).isValidUtf8() ? entry.address : text;
    for (const QByteArray& form : {entry.address, text}) {
        for (const QByteArray& path :
             {form, QByteArray::fromPercentEncoding(form), QByteArray(form).replace('\\', '/')}) {
            if (!path.contains('\0') && exists(absolute(path)))
                return {Address::Kind::file, fileAt(absolute(path))};
        }
    }
    return {Address::Kind::file, fileAt(absolute(usual))};
}

} // namespace

Address addressOf(const Entry& entry, const QUrl& list, const Exists& exists) {
    if (entry.address.isEmpty() || static_cast<std::size_t>(entry.address.size()) > maximumAddress)
        return {};
    if (isWindowsPath(entry.address))
        return {Address::Kind::windowsPath, {}};
    const bool isLocalList = list.isLocalFile();
    if (isLocalList && !isURL(entry.address))
        return fileOfPath(entry, list, exists);
    QUrl url(entry.text, QUrl::TolerantMode);
    if (!isURL(entry.address))
        url = list.resolved(url);
    if (!url.isValid() || url.scheme().isEmpty())
        return {};
    if (!url.isLocalFile())
        return {Address::Kind::network, url};
    return isLocalList ? fileOfURL(url) : Address{Address::Kind::localOfNetwork, {}};
}

} // namespace listFile
