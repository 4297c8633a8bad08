// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FileIntake.h"

#include "app/OpeningFiles.h"
#include "app/SubtitleTaker.h"
#include "control/ModifierFlags.h"
#include "platform/base/Background.h"
#include "platform/base/Delivery.h"
#include "platform/base/Localization.h"
#include "platform/base/PartDelivery.h"
#include "platform/base/PathNames.h"
#include "platform/base/RegularFile.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "platform/window/Events.h"
#include "playback/MovieOrdering.h"
#include "playlist/Arrangement.h"
#include "playlist/OpeningReport.h"
#include "playlist/files/ListFile.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <QLocale>

#include <algorithm>
#include <atomic>
#include <utility>

namespace {

/// So many are looked at at once; more are work for a thread.
constexpr qsizetype fewFiles = 20;
/// Seconds.
constexpr double partDelay = 0.1;
constexpr double shuffleDelay = 0.3;
/// So long the first look at what was handed over is waited for; seconds. A disk answers at once, or it hangs.
constexpr double lookTimeout = 0.3;

/// What a few files are.
struct Look {
    bool takesTime = false; // folders and lists: nothing was looked for in them
    QList<MovieSource> movies;
    QList<OpeningFailure> failures;
};

std::optional<platform::FileFacts> factsOf(const QString& text) {
    const QUrl url = isURLString(text) ? QUrl(text) : QUrl::fromLocalFile(text);
    return url.isLocalFile() ? platform::factsOfFile(platform::nativePath(url)) : std::nullopt;
}

bool isFolder(const QString& text) {
    const auto facts = factsOf(text);
    return facts && facts->isFolder;
}

Look lookAt(const MovieFinder::Means& means, const QStringList& pathsOrUrls) {
    Look look;
    look.takesTime = std::ranges::any_of(pathsOrUrls, [](const QString& text) {
        return listFile::isListName(isURLString(text) ? QUrl(text).path() : text) || isFolder(text);
    });
    if (look.takesTime)
        return look;
    const std::atomic<bool> cancelled = false;
    MovieFinder finder(means, cancelled, [&look](MovieSource movie) { look.movies.append(std::move(movie)); });
    look.failures = finder.find(pathsOrUrls);
    return look;
}

} // namespace

Adding addingFor(std::uint32_t modifiers) {
    return modifiers & platform::modifier::option ? Adding::append : Adding::replace;
}

/// A thread walks folders and reads lists; where it hangs it is left behind.
struct FileIntake::Search {
    using Delivery = platform::PartDelivery<MovieSource>;

    QString text; // of what was handed over
    std::unique_ptr<MoviesInParts> movies;
    qsizetype count = 0;
    const std::shared_ptr<std::atomic<bool>> cancelled = std::make_shared<std::atomic<bool>>(false);
    const std::shared_ptr<Delivery> found = std::make_shared<Delivery>();
    /// There when the last of the movies is.
    const std::shared_ptr<platform::Delivery<QList<OpeningFailure>>> failures =
        std::make_shared<platform::Delivery<QList<OpeningFailure>>>();
    std::unique_ptr<platform::Timer> pause;

    /// What was taken stays.
    void giveUp() {
        *cancelled = true;
        found->abandon();
        failures->abandon();
        pause.reset();
        movies.reset();
    }
    /// What came since. Whether those were the last.
    bool takeFound() {
        Delivery::Part part = found->take();
        QList<MovieSource> sources(part.values.begin(), part.values.end());
        count += sources.size();
        if (!sources.isEmpty())
            movies->add(sources);
        return part.isLast;
    }
};

FileIntake::FileIntake(const Environment& environment, platform::Desktop& desktop, FeedbackDisplay& feedback,
                       MovieFinder::Means means, Sink sink)
    : _environment(environment)
    , _desktop(desktop)
    , _means(std::make_shared<const MovieFinder::Means>(std::move(means)))
    , _sink(std::move(sink))
    , _searchMessage(environment, feedback) {}

FileIntake::~FileIntake() {
    for (const auto& search : _searches)
        search->giveUp();
}

bool FileIntake::wouldAddToMovie(const QStringList& paths) const {
    return _subtitleTaker && _subtitleTaker->hasMovie() && !paths.isEmpty() &&
           std::ranges::all_of(paths, [this](const QString& path) { return _subtitleTaker->isCalledSubtitles(path); });
}

/// Of a few that are called subtitles: the files. All of them where that is not known at once, for whoever takes them
/// has them looked at once more.
QStringList FileIntake::subtitlesAmong(const QStringList& pathsOrUrls) const {
    QStringList called;
    if (_subtitleTaker) {
        for (const QString& one : pathsOrUrls)
            if (!isURLString(platform::pathFromStored(one)) && _subtitleTaker->isCalledSubtitles(one))
                called.append(one);
    }
    if (called.isEmpty())
        return called;
    const auto files = platform::background::runFor<QStringList>(lookTimeout, [called] {
        QStringList there;
        for (const QString& one : called)
            if (const auto facts = factsOf(one); facts && facts->isFile)
                there.append(one);
        return there;
    });
    return files.value_or(called);
}

/// What is left to be opened. Subtitles belong to the one movie that they came with, else to the one that is shown;
/// those that came with several are found beside them by themselves.
QStringList FileIntake::withoutSubtitles(const QStringList& pathsOrUrls, Adding adding) {
    const QStringList subtitles = subtitlesAmong(pathsOrUrls);
    QStringList others = pathsOrUrls;
    others.removeIf([&subtitles](const QString& one) { return subtitles.contains(one); });
    if (subtitles.isEmpty() || others.size() > 1)
        return pathsOrUrls;
    if (others.size() == 1) {
        _subtitleTaker->holdFor(subtitles, others.front());
    } else if (_subtitleTaker->hasMovie()) {
        _subtitleTaker->add(subtitles);
    } else {
        QList<OpeningFailure> failures;
        for (const QString& path : subtitles)
            failures.append({platform::urlOfNativePath(platform::bytesOfPath(platform::pathFromStored(path))),
                             OpeningReport::subtitlesAlone});
        takeNone(failures, adding);
    }
    return others;
}

void FileIntake::take(const QStringList& handedOver, Adding adding) {
    if (_has_ended)
        return;
    const QStringList pathsOrUrls = withoutSubtitles(handedOver, adding);
    if (pathsOrUrls.isEmpty() && !handedOver.isEmpty())
        return;
    if (adding == Adding::replace) {
        // What is looked for would take the place of what is handed over now.
        for (const auto& search : std::exchange(_searches, {}))
            search->giveUp();
        _searchMessage.end();
    }
    const auto look = pathsOrUrls.size() > fewFiles
                          ? std::nullopt
                          : platform::background::runFor<Look>(
                                lookTimeout, [means = _means, pathsOrUrls] { return lookAt(*means, pathsOrUrls); });
    if (!look || look->takesTime) {
        search(pathsOrUrls, adding);
        return;
    }
    const std::unique_ptr<MoviesInParts> parts = _sink(adding);
    parts->add(look->movies);
    parts->end(look->failures);
}

void FileIntake::takeNone(const QList<OpeningFailure>& failures, Adding adding) {
    if (!_has_ended)
        _sink(adding)->end(failures);
}

void FileIntake::search(const QStringList& pathsOrUrls, Adding adding) {
    const auto search = std::make_shared<Search>();
    const QString& first = pathsOrUrls.front();
    search->text = platform::localizedFormat(
        QStringLiteral("Looking for Movies: %@"),
        {isURLString(first) ? fileNameOfURL(QUrl(first)) : platform::lastPathComponent(first)});
    search->movies = _sink(adding);
    _searches.push_back(search);
    sayHowMany();
    // Which of a shuffled list comes first is drawn from what there is by then.
    const bool isShuffled = _environment.settings.integerForKey(kQVPlaylistDefaultArrangement) == Arrangement::shuffled;
    awaitMore(search, isShuffled ? shuffleDelay : 0);
    platform::background::run([found = search->found, failures = search->failures, cancelled = search->cancelled,
                               pathsOrUrls, means = _means] {
        MovieFinder finder(*means, *cancelled, [&found](MovieSource movie) { found->add(std::move(movie)); });
        failures->deliver(finder.find(pathsOrUrls));
        found->end();
    });
}

/// Not before so many seconds, so that they come in parts.
void FileIntake::awaitMore(const std::shared_ptr<Search>& search, double delay) {
    const auto await = [this, weak = std::weak_ptr(search)] {
        if (const auto waiting = weak.lock())
            waiting->found->whenReady([this, weak] {
                if (const auto ready = weak.lock())
                    takeFound(ready);
            });
    };
    if (delay > 0)
        search->pause = _environment.loop.schedule(delay, false, await);
    else
        await();
}

void FileIntake::takeFound(const std::shared_ptr<Search>& search) {
    if (search->takeFound()) {
        searchEnded(search);
        return;
    }
    sayHowMany();
    awaitMore(search, partDelay);
}

void FileIntake::searchEnded(const std::shared_ptr<Search>& search) {
    std::erase(_searches, search);
    if (_searches.empty())
        _searchMessage.end();
    search->failures->receive([&search](const QList<OpeningFailure>& failures) { search->movies->end(failures); });
}

void FileIntake::sayHowMany() {
    qsizetype count = 0;
    for (const auto& search : _searches)
        count += search->count;
    if (count == 0)
        _searchMessage.show(_searches.back()->text);
    else
        _searchMessage.show(platform::localizedFormat(QStringLiteral("FilesFoundMessage"), {QLocale().toString(count)},
                                                      static_cast<int>(count)));
}

bool FileIntake::endSearches() {
    const auto searches = std::exchange(_searches, {});
    for (const auto& search : searches) {
        search->takeFound();
        search->giveUp();
    }
    _searchMessage.end();
    return !searches.empty();
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
    for (const auto& search : std::exchange(_searches, {}))
        search->giveUp();
}
