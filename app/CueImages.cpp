// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CueImages.h"

#include "subtitles/QVSubtitles.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>

CueImages::CueImages(const QString& folder)
    : _folder(folder) {
    if (!folder.isEmpty() && !QDir().mkpath(folder))
        _error = QStringLiteral("%1: the folder cannot be made").arg(folder);
}

/// The name of the subtitle file, made different from those of others in other folders.
QString CueImages::prefixFor(const QString& path) {
    constexpr qsizetype maximumNameLength = 60; // there is a limit to names of files, in bytes
    QString& prefix = _prefixes[path];
    if (prefix.isEmpty()) {
        const QString name = QFileInfo(path).completeBaseName().left(maximumNameLength);
        prefix = name;
        for (int number = 2; _taken.contains(prefix); ++number)
            prefix = QStringLiteral("%1-%2").arg(name).arg(number);
        _taken.insert(prefix);
    }
    return prefix;
}

QString CueImages::write(const QVSubtitles& track, std::size_t number, const QVSubtitle& cue) {
    if (_folder.isEmpty() || !_error.isEmpty() || !cue.image())
        return {};
    const QString name =
        prefixFor(track.path()) + QStringLiteral("-%1-%2.png").arg(track.streamIndex()).arg(number, 5, 10, QChar(u'0'));
    QImageWriter writer(QDir(_folder).filePath(name), "png");
    if (!writer.write(cue.image()->expanded().convertToFormat(QImage::Format_ARGB32))) {
        _error = QStringLiteral("%1: cannot be written (%2)").arg(writer.fileName(), writer.errorString());
        return {};
    }
    return name;
}
