// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/OpeningFiles.h"
#include "context/Environment.h"
#include "platform/base/RunLoop.h"
#include "playback/StandingMessage.h"
#include "playlist/QVPlaylistController.h"

#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace platform {
class Desktop;
} // namespace platform

class FeedbackDisplay;

/// Option held appends, by the masks of platform::modifier.
Adding addingFor(std::uint32_t modifiers);

/// Takes what the user hands over, and gives it to the playlist as URLs: files opened with the application, which come
/// one by one and are collected in a batch, those chosen in panels (OpenPanels), and those dragged in (Drops). Main
/// thread.
class FileIntake final {
public:
    /// Takes movies that are to be added and played.
    using Sink = std::function<void(const FoundMovies& movies, Adding adding)>;

    /// `types` are the file types that are taken (supportedFileTypes). The feedback is not used before the first files
    /// are taken.
    FileIntake(const Environment& environment, platform::Desktop& desktop, FeedbackDisplay& feedback, QStringList types,
               Sink sink);
    FileIntake(const FileIntake&) = delete;
    FileIntake& operator=(const FileIntake&) = delete;
    ~FileIntake();

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
    /// Ends the walks through folders that are under way: what they found is taken. False when there is none.
    bool endSearches();

    /// Looks for the movies among paths and URLs, folders beside the player, and gives them to the playlist. Whatever
    /// replaces the list ends the walks that are under way.
    void take(const QStringList& pathsOrUrls, Adding adding);
    /// Gives movies that need not be looked for.
    void give(const FoundMovies& movies, Adding adding);

private:
    struct Search;
    void search(const QStringList& pathsOrUrls, Adding adding);
    void searchEnded(const std::shared_ptr<Search>& search, const FoundMovies& found);

    Environment _environment;
    platform::Desktop& _desktop;
    QStringList _types;
    Sink _sink;
    bool _is_adding_files = false;
    bool _is_should_replace = true;
    bool _is_launching = true;
    bool _has_ended = false;
    QStringList _added_files;
    std::unique_ptr<platform::Timer> _batchTimer;
    std::vector<std::shared_ptr<Search>> _searches;
    StandingMessage _searchMessage;
};
