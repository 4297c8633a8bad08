// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/QVVobSubInfo.h"

#include "platform/base/Bundle.h"
#include "platform/base/LanguageNames.h"
#include "platform/base/Localization.h"
#include "platform/base/PathNames.h"
#include "platform/base/PrivateFolder.h"
#include "platform/base/RegularFile.h"
#include "platform/base/TextEncoding.h"
#include "platform/base/ToolProcess.h"
#include "settings/Tracing.h"
#include "subtitles/input/SubtitleText.h"
#include "subtitles/vobsub/IndexParser.h"
#include "subtitles/vobsub/SubFileSearch.h"

#include <QHash>

namespace {

constexpr const char* className = "QVVobSubInfo";
/// More than a million subpictures.
constexpr qsizetype maximumIndexSize = 64 * 1024 * 1024;
/// The tool keeps to a minute by itself.
constexpr double toolTimeoutSeconds = 75;
/// What the tool says is read in an encoding that has a letter for every byte.
constexpr std::uint32_t toolEncoding = 30;

/// Remembered, since finding a name costs more than reading a stream. Main thread.
QString languageName(const QString& code) {
    static QStringList languages;
    static QHash<QString, QString> names;
    if (const QStringList now = platform::localizationLanguages(); now != languages) {
        languages = now;
        names.clear();
    }
    auto known = names.constFind(code);
    if (known == names.constEnd())
        known = names.insert(code, platform::localizedNameForLanguageID(code));
    return *known;
}

/// As the probe reads it: without a byte-order mark.
SubtitleText textOf(QByteArray bytes) {
    const bool isWide = bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
    return SubtitleText::fromBytes(std::move(bytes),
                                   isWide ? platform::textEncoding::utf16 : platform::textEncoding::utf8);
}

void _processOutput(const QByteArray& chunk) {
    const std::string_view bytes(chunk.constData(), static_cast<std::size_t>(chunk.size()));
    trace("%@", platform::stringWithData(bytes, toolEncoding).value_or(QString::fromLatin1(chunk)).trimmed());
}

} // namespace

QVVobSubInfo::QVVobSubInfo() = default;
QVVobSubInfo::~QVVobSubInfo() = default;

std::shared_ptr<const QVVobSubInfo> QVVobSubInfo::infoWithFile(const QString& path) {
    const std::shared_ptr<QVVobSubInfo> info(new QVVobSubInfo());
    const bool isParsed = info->_parseIDXFile(path);
    info->_subPath = info->_locateSubFile(platform::pathWithoutExtension(path));
    return isParsed ? info : nullptr;
}

bool QVVobSubInfo::_parseIDXFile(const QString& path) {
    trace("%@: Start parsing \"%@\"", className, platform::lastPathComponent(path));
    // One byte more, to tell what is too large from what just fits.
    std::optional<QByteArray> bytes = platform::readRegularFile(path, maximumIndexSize + 1);
    if (!bytes || bytes->size() > maximumIndexSize) {
        logAlways("ERROR: %@: Unable to open index file \"%@\" for parsing.", className, path);
        return false;
    }
    const SubtitleText text = textOf(*std::exchange(bytes, std::nullopt));
    IndexParser::Result result = IndexParser::parse(text.view(), languageName);
    if (!result.index) {
        logAlways("ERROR: %@: Error parsing line: \"%@\".", className,
                  QString::fromUtf8(result.wrongLine.data(), static_cast<qsizetype>(result.wrongLine.size())));
        return false;
    }
    _index = std::move(*result.index);
    trace("%@: End parsing \"%@\", %d streams found.", className, platform::lastPathComponent(path),
          _index._streams.size());
    return true;
}

QString QVVobSubInfo::_locateSubFile(const QString& base) {
    trace("%@: Locating VobSub data file.", className);
    QString found;
    const QString archive = SubFileSearch::fileBeside(base, QStringLiteral("rar"));
    if (!archive.isEmpty()) {
        trace("%@: Processing \"%@\"", className, platform::lastPathComponent(archive));
        found = _extractSubFile(archive, platform::lastPathComponent(base));
    }
    if (found.isEmpty())
        found = SubFileSearch::fileBeside(base, QStringLiteral("sub"));
    trace("%@: VobSub data file \"%@\"", className, platform::lastPathComponent(found));
    return found;
}

QString QVVobSubInfo::_extractSubFile(const QString& archive, const QString& baseName) {
    _tempFolder = platform::PrivateSubfolder::make();
    const QString temporary = _tempFolder ? _tempFolder->path() : QString();
    const QString tempPath = temporary + u'/' + baseName + u'/';
    std::optional<int> status;
    if (_tempFolder) {
        platform::ToolRequest request;
        request.program = platform::Bundle::main().pathForTool(QStringLiteral("unrar"));
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
        trace("%@: Launching UNRAR:", className);
        status = platform::runTool(request);
        if (status)
            trace("%@: UNRAR terminates with staus: %d", className, *status);
        else
            logAlways("ERROR: %@: Unable to launch UNRAR.", className);
    }
    const QString found = status == 0 ? SubFileSearch::dataFileWithin(tempPath, baseName) : QString();
    if (found.isEmpty()) {
        logAlways("ERROR: %@: Unable to find SUB file at %@", className, tempPath);
        _tempFolder.reset();
    }
    return found;
}
