// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FileIntake.h"

#include "control/ModifierFlags.h"
#include "platform/base/Background.h"
#include "platform/base/Delivery.h"
#include "platform/base/Localization.h"
#include "platform/base/PathNames.h"
#include "platform/desktop/Desktop.h"
#include "platform/window/Events.h"
#include "settings/Tracing.h"

#include <QFileInfo>

#include <algorithm>
#include <atomic>
#include <utility>

namespace {

/// So many are looked at at once; more are work for a thread.
constexpr qsizetype fewFiles = 20;

} // namespace

Adding addingFor(std::uint32_t modifiers) {
    return modifiers & platform::modifier::option ? Adding::append : Adding::replace;
}

/// A thread walks the folders; where it hangs it is left behind.
struct FileIntake::Search {
    Adding adding;
    const std::shared_ptr<std::atomic<bool>> cancelled = std::make_shared<std::atomic<bool>>(false);
    const std::shared_ptr<platform::Delivery<FoundMovies>> answer = std::make_shared<platform::Delivery<FoundMovies>>();

    void giveUp() const {
        *cancelled = true;
        answer->abandon();
    }
};

FileIntake::FileIntake(const Environment& environment, platform::Desktop& desktop, FeedbackDisplay& feedback,
                       QStringList types, Sink sink)
    : _environment(environment)
    , _desktop(desktop)
    , _types(std::move(types))
    , _sink(std::move(sink))
    , _searchMessage(environment, feedback) {}

FileIntake::~FileIntake() {
    for (const auto& search : _searches)
        search->giveUp();
}

void FileIntake::take(const QStringList& pathsOrUrls, Adding adding) {
    if (adding == Adding::replace) {
        // What is looked for would take the place of what is handed over now.
        for (const auto& search : std::exchange(_searches, {}))
            search->giveUp();
        _searchMessage.end();
    }
    const auto isFolder = [](const QString& text) { return !isURLString(text) && QFileInfo(text).isDir(); };
    if (pathsOrUrls.size() > fewFiles || std::ranges::any_of(pathsOrUrls, isFolder))
        search(pathsOrUrls, adding);
    else
        give(findMovies(pathsOrUrls, _types), adding);
}

void FileIntake::search(const QStringList& pathsOrUrls, Adding adding) {
    const auto search = std::make_shared<Search>();
    search->adding = adding;
    search->answer->receive([this, weak = std::weak_ptr(search)](const FoundMovies& found) {
        if (const auto ended = weak.lock())
            searchEnded(ended, found);
    });
    _searches.push_back(search);
    _searchMessage.show(platform::localizedFormat(QStringLiteral("Looking for Movies: %@"),
                                                  {platform::lastPathComponent(pathsOrUrls.front())}));
    platform::background::run([answer = search->answer, cancelled = search->cancelled, pathsOrUrls, types = _types] {
        answer->deliver(findMovies(pathsOrUrls, types, *cancelled));
    });
}

void FileIntake::searchEnded(const std::shared_ptr<Search>& search, const FoundMovies& found) {
    std::erase(_searches, search);
    if (_searches.empty())
        _searchMessage.end();
    // One that was ended at once found nothing to speak of.
    if (!*search->cancelled || !found.urls.isEmpty())
        give(found, search->adding);
}

bool FileIntake::endSearches() {
    bool ended = false;
    for (const auto& search : _searches)
        ended = !search->cancelled->exchange(true) || ended;
    return ended;
}

void FileIntake::openFile(const QString& pathOrUrl) {
    if (!_is_adding_files)
        startAddingFiles();
    _added_files.append(pathOrUrl);
}

void FileIntake::startAddingFiles() {
    const TraceScope scope("-[QVAppController startAddingFiles]");
    _is_adding_files = true;
    _is_should_replace = addingFor(QVGetModifierFlags(_desktop)) == Adding::replace;
    _added_files.reserve(25);
    // The files of one hand-over arrive one by one; the batch is closed when all have. At launch finishLaunching does
    // it.
    if (!_is_launching)
        _batchTimer = _environment.loop.schedule(0, false, [this] { finishAddingFiles(); });
}

void FileIntake::finishAddingFiles() {
    const TraceScope scope("-[QVAppController finishAddingFiles]");
    const bool collecting = std::exchange(_is_adding_files, false);
    const QStringList files = std::exchange(_added_files, {});
    if (!collecting || files.isEmpty())
        return;
    take(files, _is_should_replace ? Adding::replace : Adding::append);
}

void FileIntake::finishLaunching() {
    finishAddingFiles();
    _is_launching = false;
    // Files may have arrived while those movies were opened.
    finishAddingFiles();
}

void FileIntake::end() {
    _has_ended = true;
}

void FileIntake::give(const FoundMovies& movies, Adding adding) {
    if (!_has_ended)
        _sink(movies, adding);
}
