// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the files out of a RAR archive for the player:
//   unrar x -o+ -p- -r -ad -y -idcp -cl ARCHIVE FOLDER
// makes FOLDER/NAME, after the archive's name without its extension, in lower case throughout, overwriting what was
// there. Asks nothing. All goes on in a private folder within FOLDER: nothing is left of an archive that is refused.
#include "platform/base/PathNames.h"
#include "platform/base/PrivateFolder.h"
#include "platform/base/RegularFile.h"
#include "platform/base/ToolProcess.h"
#include "tools/unrar/ArchiveListing.h"
#include "tools/unrar/HandOver.h"
#include "tools/unrar/Limits.h"
#include "tools/unrar/Volumes.h"

#include <QDir>

#include <array>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace {

constexpr int exitFailure = 1;
constexpr int exitUsage = 2;
constexpr std::array options = {"x", "-o+", "-p-", "-r", "-ad", "-y", "-idcp", "-cl"};

void say(const QString& line) {
    std::printf("%s\n", line.toUtf8().constData());
    std::fflush(stdout);
}

int refuse(const QString& why) {
    say(QStringLiteral("ERROR: ") + why);
    return exitFailure;
}

std::filesystem::path native(const QString& path) {
    return platform::bytesOfPath(path).toStdString();
}

/// Without a terminal, a home or a language of its own.
platform::ToolRequest limited(const QString& program, const QStringList& arguments, const QString& scratch) {
    platform::ToolRequest request;
    request.program = program;
    request.arguments = arguments;
    request.folder = scratch;
    request.environment = {QStringLiteral("HOME=") + scratch, QStringLiteral("TMPDIR=") + scratch,
                           QStringLiteral("LC_ALL=C.UTF-8")};
    request.memory = limits::memory;
    request.fileSize = limits::bytes;
    return request;
}

ArchiveListing listingOf(const QString& archive, const QString& scratch) {
    constexpr qsizetype maximumListing = 64 * 1024 * 1024;
    QByteArray json;
    auto request = limited(QStringLiteral("lsar"),
                           {QStringLiteral("-json-ascii"), QStringLiteral("-no-recursion"), archive}, scratch);
    request.timeout = limits::secondsToList;
    request.dropsErrors = true;
    request.output = [&](const QByteArray& piece) { json.append(piece); };
    request.maximumOutput = maximumListing;
    const auto status = platform::runTool(request);
    ArchiveListing listing;
    if (!status)
        listing.error = QStringLiteral("the program lsar (package unar) is missing");
    else if (*status == 2)
        listing.error = QStringLiteral("the archive is encrypted");
    else if (*status != 0)
        listing.error = QStringLiteral("the archive cannot be read (%1)").arg(*status);
    else
        listing = ArchiveListing::fromJson(json);
    return listing;
}

/// What unar could not do, or nothing.
QString extract(const QString& archive, const ArchiveListing& listing, const QString& scratch, const QString& folder) {
    auto request =
        limited(QStringLiteral("unar"),
                QStringList{QStringLiteral("-quiet"), QStringLiteral("-no-directory"), QStringLiteral("-force-rename"),
                            QStringLiteral("-no-recursion"), QStringLiteral("-forks"), QStringLiteral("skip"),
                            QStringLiteral("-indexes"), QStringLiteral("-output-directory"), folder, archive} +
                    listing.indexes,
                scratch);
    request.timeout = limits::secondsToExtract;
    request.dropsErrors = true;
    const auto fits = [&] {
        const FolderContents contents = contentsOf(native(folder));
        // Twice, as there may be a folder to each file.
        return contents.bytes <= limits::bytes && contents.entries <= 2 * limits::entries;
    };
    request.mayGoOn = fits;
    const auto status = platform::runTool(request);
    if (!status)
        return QStringLiteral("the program unar (package unar) is missing");
    if (*status != 0)
        return QStringLiteral("the archive is damaged, encrypted or too costly (%1)").arg(*status);
    const FolderContents contents = contentsOf(native(folder));
    if (!fits() || contents.bytes != listing.size ||
        contents.files != static_cast<std::uint64_t>(listing.indexes.size()))
        return QStringLiteral("the archive does not hold what it says");
    return {};
}

int run(const QString& archive, const QString& destination) {
    const QString name = platform::lastPathComponent(platform::pathWithoutExtension(archive));
    const QByteArray beginning = platform::readRegularFile(archive, 7).value_or(QByteArray());
    if (name.isEmpty() || name == QStringLiteral(".") || name == QStringLiteral(".."))
        return refuse(QStringLiteral("the archive has no name"));
    // unar would take many other formats as well.
    if (!beginning.startsWith("Rar!\x1A\x07"))
        return refuse(QStringLiteral("no RAR archive"));
    const auto scratch = platform::PrivateFolder::make(destination);
    if (!scratch)
        return refuse(QStringLiteral("the folder cannot be written"));
    const QString extracted = scratch->path() + QStringLiteral("/extracted");
    const QString link = linkVolumes(archive, scratch->path());
    const ArchiveListing listing = listingOf(link, scratch->path());
    if (!listing.error.isEmpty())
        return refuse(listing.error);
    if (listing.leftOut > 0)
        say(QStringLiteral("%1 entries are no files and left out").arg(listing.leftOut));
    QDir().mkdir(extracted);
    const QString failure = extract(link, listing, scratch->path(), extracted);
    if (!failure.isEmpty())
        return refuse(failure);
    const QString result = scratch->path() + QStringLiteral("/result");
    if (!handOver(native(extracted), native(result)))
        return refuse(QStringLiteral("the files cannot be moved"));
    const QString final = destination + u'/' + name;
    platform::removeTree(final);
    std::error_code error;
    std::filesystem::rename(native(result), native(final), error);
    if (error)
        return refuse(QStringLiteral("the files cannot be moved"));
    say(QStringLiteral("%1 files, %2 bytes").arg(listing.indexes.size()).arg(listing.size));
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    bool isAsked = count == static_cast<int>(options.size()) + 3;
    for (std::size_t i = 0; isAsked && i < options.size(); ++i)
        isAsked = std::strcmp(arguments[i + 1], options[i]) == 0;
    if (!isAsked) {
        say(QStringLiteral("usage: unrar x -o+ -p- -r -ad -y -idcp -cl ARCHIVE FOLDER"));
        return exitUsage;
    }
    return run(platform::pathOfBytes(arguments[count - 2]), platform::pathOfBytes(arguments[count - 1]));
}
