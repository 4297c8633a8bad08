// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AddedSubtitles.h"

#include "context/FeedbackDisplay.h"
#include "platform/base/Localization.h"
#include "platform/base/PathNames.h"
#include "platform/desktop/Desktop.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"
#include "subtitles/QVSubtitlesController.h"

#include <QFileInfo>

#include <algorithm>
#include <utility>

using platform::localizedString;

namespace {

/// Of a path, or the URL of one that is no text.
QUrl urlOfFile(const QString& text) {
    return platform::urlOfNativePath(platform::bytesOfPath(platform::pathFromStored(text)));
}

} // namespace

AddedSubtitles::AddedSubtitles(const Environment& environment, const Collaborators& collaborators,
                               QStringList movieTypes, QStringList subtitleTypes)
    : _environment(environment)
    , _with(collaborators)
    , _movieTypes(std::move(movieTypes))
    , _subtitleTypes(std::move(subtitleTypes)) {
    _onMovie = environment.notifications.observe<QVPlaylistMovieChangedNotification>(
        [this](const auto& notification) { movieChanged(notification); });
}

bool AddedSubtitles::isCalledSubtitles(const QString& path) const {
    const QString extension = platform::pathExtension(path).toLower();
    return extension != QStringLiteral("txt") && !_movieTypes.contains(extension) && _subtitleTypes.contains(extension);
}

bool AddedSubtitles::hasMovie() const {
    return _with.view.movie() != nullptr;
}

void AddedSubtitles::ask() {
    const std::shared_ptr<QVMovie> movie = _with.view.movie();
    if (!movie)
        return;
    QStringList extensions = _subtitleTypes;
    extensions.sort();
    const platform::FileQuestion question{
        .kind = platform::FileQuestion::Kind::files,
        .title = localizedString(QStringLiteral("Add Subtitles")),
        .accept = localizedString(QStringLiteral("Add")),
        .cancel = localizedString(QStringLiteral("Cancel")),
        .extensions = extensions,
        .nameOfTypes = localizedString(QStringLiteral("Subtitles")),
        .nameOfAllFiles = localizedString(QStringLiteral("All Files")),
        .folder = movie->url().isLocalFile() ? QFileInfo(movie->url().toLocalFile()).absolutePath() : QString(),
        .option = {}};
    const platform::FileChoice choice = _with.desktop.runOpenPanel(question);
    if (!choice.chosen.isEmpty())
        add(choice.chosen);
}

void AddedSubtitles::add(const QStringList& handedOver) {
    QStringList paths;
    for (const QString& one : handedOver)
        paths.append(platform::pathFromStored(one));
    // Only then are they read, here.
    _files.look(paths, [this, paths, movie = std::weak_ptr(_with.view.movie())](const QStringList& readable) {
        if (const auto shown = _with.view.movie(); shown && shown == movie.lock())
            addReadable(paths, readable);
    });
}

void AddedSubtitles::addReadable(const QStringList& paths, const QStringList& readable) {
    QStringList added, failed;
    // The first one is shown.
    for (auto path = paths.rbegin(); path != paths.rend(); ++path)
        (readable.contains(*path) && _with.subtitles.addFile(*path) ? added : failed).prepend(*path);
    // The data of an index is no file of its own.
    const auto belongs = [&added](const QString& path) {
        return std::ranges::any_of(added, [&path](const QString& other) {
            return platform::pathWithoutExtension(other) == platform::pathWithoutExtension(path);
        });
    };
    failed.removeIf(belongs);
    if (failed.isEmpty())
        _with.feedback.postFeedback(_with.subtitles.currentInfoAsString());
    else
        _with.feedback.postFeedback(platform::localizedFormat(QStringLiteral("NoSubtitlesInFile"),
                                                              {platform::lastPathComponent(failed.front())}));
}

void AddedSubtitles::holdFor(const QStringList& paths, const QString& movie) {
    _held = paths;
    _heldFor = movie;
}

void AddedSubtitles::movieChanged(const QVPlaylistMovieChangedNotification& notification) {
    if (_held.isEmpty() || !notification.movie)
        return;
    const QUrl url = notification.movie->url();
    const bool isSame = url.toString() == _heldFor || url == urlOfFile(_heldFor);
    if (isSame)
        add(std::exchange(_held, {}));
}
