// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/QVVobSubInfo.h"

#include "platform/base/LanguageNames.h"
#include "platform/base/Localization.h"
#include "platform/base/PathNames.h"
#include "platform/base/RegularFile.h"
#include "platform/base/TextEncoding.h"
#include "settings/Tracing.h"
#include "subtitles/input/SubtitleText.h"
#include "subtitles/vobsub/IndexParser.h"

#include <QHash>

namespace {

constexpr const char* className = "QVVobSubInfo";
/// More than a million subpictures.
constexpr qsizetype maximumIndexSize = 64 * 1024 * 1024;

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

} // namespace

QVVobSubInfo::QVVobSubInfo(const QString& path)
    : _isParsed(_parseIDXFile(path))
    , _subFile(platform::pathWithoutExtension(path)) {}

std::shared_ptr<const QVVobSubInfo> QVVobSubInfo::infoWithFile(const QString& path) {
    const std::shared_ptr<const QVVobSubInfo> info(new QVVobSubInfo(path));
    return info->_isParsed ? info : nullptr;
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
