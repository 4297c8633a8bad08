// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Inspection.h"

#include "app/OpeningFiles.h"
#include "platform/movie/MovieToolkit.h"
#include "playback/QVMovie.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

QJsonArray describeTracks(const QVMovie& movie) {
    QJsonArray tracks;
    for (const std::shared_ptr<QVSubtitles>& track : movie.subtitles()) {
        tracks.append(QJsonObject{{QStringLiteral("path"), track->path()},
                                  {QStringLiteral("title"), track->title()},
                                  {QStringLiteral("streamIndex"), static_cast<qint64>(track->streamIndex())}});
    }
    return tracks;
}

QJsonObject describeMovie(const QString& path, QVMovie& movie) {
    const QSizeF size = movie.naturalBounds().size();
    const float rate = movie.frameRate();
    return {{QStringLiteral("path"), path},
            {QStringLiteral("timeScale"), movie.timeScale()},
            {QStringLiteral("duration"), movie.duration()},
            {QStringLiteral("durationInSeconds"), movie.durationInSeconds()},
            {QStringLiteral("frameCount"), static_cast<qint64>(movie.frameCount())},
            // JSON has no infinity: a movie of less than a second has no rate of whole seconds.
            {QStringLiteral("frameRate"), std::isfinite(rate) ? QJsonValue(static_cast<double>(rate)) : QJsonValue()},
            {QStringLiteral("naturalBounds"), QJsonArray{0, 0, size.width(), size.height()}},
            {QStringLiteral("subtitles"), describeTracks(movie)}};
}

} // namespace

InspectionResult inspectFiles(const QStringList& pathsOrUrls, platform::MovieToolkit& toolkit) {
    InspectionResult result;
    QJsonArray objects;
    for (const QString& name : pathsOrUrls) {
        const QUrl url = isURLString(name) ? QUrl(name) : QUrl::fromLocalFile(name);
        if (const std::shared_ptr<QVMovie> movie = QVMovie::movieWithURL(url)) {
            objects.append(describeMovie(name, *movie));
        } else {
            result.errors.append(
                QStringLiteral("%1: cannot be opened (error %2)").arg(name).arg(toolkit.stickyError()));
        }
    }
    result.json = QJsonDocument(objects).toJson(QJsonDocument::Compact) + '\n';
    return result;
}
