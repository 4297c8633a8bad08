// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/MovieFinder.h"
#include "context/Environment.h"
#include "platform/base/RunLoop.h"
#include "playback/StandingMessage.h"
#include "playlist/QVPlaylistController.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace platform {
class Desktop;
} // namespace platform

class FeedbackDisplay;
class SubtitleTaker;

/// Option held appends, by the masks of platform::modifier.
Adding addingFor(std::uint32_t modifiers);

/// Takes what the user hands over, and gives it to the playlist as URLs: files opened with the application, which come
/// one by one and are collected in a batch, those chosen in panels (OpenPanels), and those dragged in (Drops). Main
/// thread.
class FileIntake final {
public:
    /// Begins to add movies, which are to be played.
    using Sink = std::function<std::unique_ptr<MoviesInParts>(Adding adding)>;

    /// `means` says which file types are taken. The feedback is not used before the first files are taken.
    FileIntake(const Environment& environment, platform::Desktop& desktop, FeedbackDisplay& feedback,
               MovieFinder::Means means, Sink sink);
    FileIntake(const FileIntake&) = delete;
    FileIntake& operator=(const FileIntake&) = delete;
    ~FileIntake();

    /// Who takes what are subtitles; null for nobody. It outlives the intake, or is taken back.
    void setSubtitleTaker(SubtitleTaker* taker) { _subtitleTaker = taker; }
    /// Whether what is handed over would be added to the movie that is shown.
    bool wouldAddToMovie(const QStringList& paths) const;

    /// Adds a path or URL to the batch, and opens one when there is none.
    void openFile(const QString& pathOrUrl);
    /// A batch is closed a pass of the run loop after it was opened; during the launch, by finishLaunching().
    void startAddingFiles();
    void finishAddingFiles();
    bool isEmpty() const { return _added_files.isEmpty(); }
    /// The movies of the launch are opened here.
    void finishLaunching();
    bool isLaunching() const { return _is_launching; }
    /// Takes nothing from here on, also not what a panel that is up is answered: the program ends.
    void end();
    /// Ends the searches that are under way, through folders, lists and networks: what they found stays. False when
    /// there is none.
    bool endSearches();

    /// Looks for the movies among paths and URLs, folders, lists and many files beside the player, and gives them to
    /// the playlist as they are found. Whatever replaces the list ends the searches that are under way.
    void take(const QStringList& pathsOrUrls, Adding adding);
    /// Has it said that nothing of what came is a movie.
    void takeNone(const QList<OpeningFailure>& failures, Adding adding);

private:
    struct Search;
    QStringList subtitlesAmong(const QStringList& pathsOrUrls) const;
    QStringList withoutSubtitles(const QStringList& pathsOrUrls, Adding adding);
    void search(const QStringList& pathsOrUrls, Adding adding);
    void takeFound(const std::shared_ptr<Search>& search);
    void awaitMore(const std::shared_ptr<Search>& search, double delay);
    void searchEnded(const std::shared_ptr<Search>& search);
    void sayHowMany();

    Environment _environment;
    platform::Desktop& _desktop;
    const std::shared_ptr<const MovieFinder::Means> _means;
    Sink _sink;
    SubtitleTaker* _subtitleTaker = nullptr;
    bool _is_adding_files = false;
    bool _is_should_replace = true;
    bool _is_launching = true;
    bool _has_ended = false;
    QStringList _added_files;
    std::unique_ptr<platform::Timer> _batchTimer;
    std::vector<std::shared_ptr<Search>> _searches;
    StandingMessage _searchMessage;
};
