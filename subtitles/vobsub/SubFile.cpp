// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/SubFile.h"

#include "platform/base/Background.h"
#include "platform/base/Bundle.h"
#include "platform/base/PathNames.h"
#include "platform/base/PrivateFolder.h"
#include "platform/base/TextEncoding.h"
#include "platform/base/ToolProcess.h"
#include "settings/Tracing.h"
#include "subtitles/vobsub/SubFileSearch.h"

#include <condition_variable>
#include <mutex>
#include <utility>

namespace {

// Its messages are those of the index.
constexpr const char* className = "QVVobSubInfo";
/// The tool keeps to a minute by itself.
constexpr double toolTimeoutSeconds = 75;
/// What the tool says is read in an encoding that has a letter for every byte.
constexpr std::uint32_t toolEncoding = 30;

void _processOutput(const QByteArray& chunk) {
    const std::string_view bytes(chunk.constData(), static_cast<std::size_t>(chunk.size()));
    trace("%@", platform::stringWithData(bytes, toolEncoding).value_or(QString::fromLatin1(chunk)).trimmed());
}

void traceFound(const QString& path) {
    trace("%@: VobSub data file \"%@\"", className, platform::lastPathComponent(path));
}

} // namespace

/// Shared with the thread that takes the archive apart.
struct SubFile::Unpacking : std::enable_shared_from_this<Unpacking> {
    enum class Stage { packed, beingUnpacked, unpacked };

    const QString archive;
    const QString baseName; // of the index
    const QString tool;

    std::mutex mutex;
    // The rest is guarded by it.
    std::condition_variable_any changed;
    Stage stage = Stage::packed;
    int claims = 0;
    std::stop_source stop; // of the thread, while it is being unpacked
    std::shared_ptr<platform::PrivateSubfolder> folder;
    QString path; // empty when nothing was found

    Unpacking(QString archivePath, QString indexName, QString toolPath)
        : archive(std::move(archivePath))
        , baseName(std::move(indexName))
        , tool(std::move(toolPath)) {}

    /// With the mutex held.
    void begin() {
        stage = Stage::beingUnpacked;
        stop = {};
        platform::background::run([self = shared_from_this(), token = stop.get_token()] { self->unpack(token); });
    }

    void unpack(const std::stop_token& token) {
        trace("%@: Processing \"%@\"", className, platform::lastPathComponent(archive));
        std::shared_ptr<platform::PrivateSubfolder> made = platform::PrivateSubfolder::make();
        const QString temporary = made ? made->path() : QString();
        const QString tempPath =
            temporary + u'/' + platform::lastPathComponent(platform::pathWithoutExtension(archive)) + u'/';
        const bool isTakenApart = made && runTool(temporary, token) == 0;
        const QString found = isTakenApart ? SubFileSearch::dataFileWithin(tempPath, baseName) : QString();
        const std::scoped_lock lock(mutex);
        // Given up: the folder goes, and the next one who asks begins anew.
        if (token.stop_requested())
            return;
        if (found.isEmpty())
            logAlways("ERROR: %@: Unable to find SUB file at %@", className, tempPath);
        else
            folder = std::move(made);
        traceFound(found);
        path = found;
        stage = Stage::unpacked;
        changed.notify_all();
    }

    std::optional<int> runTool(const QString& temporary, const std::stop_token& token) const {
        platform::ToolRequest request;
        request.program = tool;
        request.arguments = {QStringLiteral("x"),
                             QStringLiteral("-o+"),
                             QStringLiteral("-p-"),
                             QStringLiteral("-r"),
                             QStringLiteral("-ad"),
                             QStringLiteral("-y"),
                             QStringLiteral("-idcp"),
                             QStringLiteral("-cl"),
                             archive,
                             temporary};
        request.timeout = toolTimeoutSeconds;
        request.output = _processOutput;
        request.stop = token;
        trace("%@: Launching UNRAR:", className);
        const std::optional<int> status = platform::runTool(request);
        if (status)
            trace("%@: UNRAR terminates with staus: %d", className, *status);
        else if (!token.stop_requested())
            logAlways("ERROR: %@: Unable to launch UNRAR.", className);
        return status;
    }
};

SubFile::Claim::Claim(QString path, std::shared_ptr<Unpacking> unpacking)
    : _path(std::move(path))
    , _unpacking(std::move(unpacking)) {
    if (!_unpacking)
        return;
    const std::scoped_lock lock(_unpacking->mutex);
    ++_unpacking->claims;
}

SubFile::Claim::~Claim() {
    if (!_unpacking)
        return;
    const std::scoped_lock lock(_unpacking->mutex);
    if (--_unpacking->claims > 0 || _unpacking->stage != Unpacking::Stage::beingUnpacked)
        return;
    _unpacking->stop.request_stop();
    _unpacking->stage = Unpacking::Stage::packed;
}

QString SubFile::Claim::path(const std::stop_token& stop) const {
    if (!_unpacking)
        return _path;
    std::unique_lock lock(_unpacking->mutex);
    if (_unpacking->stage == Unpacking::Stage::packed && !stop.stop_requested())
        _unpacking->begin();
    _unpacking->changed.wait(lock, stop, [this] { return _unpacking->stage == Unpacking::Stage::unpacked; });
    return _unpacking->path;
}

SubFile::SubFile(const QString& base) {
    trace("%@: Locating VobSub data file.", className);
    _path = SubFileSearch::fileBeside(base, QStringLiteral("sub"));
    const QString archive = _path.isEmpty() ? SubFileSearch::archiveBeside(base) : QString();
    if (archive.isEmpty())
        traceFound(_path);
    else
        _unpacking = std::make_shared<Unpacking>(archive, platform::lastPathComponent(base),
                                                 platform::Bundle::main().pathForTool(QStringLiteral("unrar")));
}

SubFile::~SubFile() {
    if (!_unpacking)
        return;
    std::scoped_lock lock(_unpacking->mutex);
    // A large file takes the file system a while.
    if (_unpacking->folder)
        platform::background::run([folder = std::exchange(_unpacking->folder, nullptr)] {});
}

std::shared_ptr<const SubFile::Claim> SubFile::claim() const {
    return std::make_shared<const Claim>(_path, _unpacking);
}
