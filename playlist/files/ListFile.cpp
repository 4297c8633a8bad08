// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/files/ListFile.h"

#include "platform/base/EncodingDetection.h"
#include "platform/base/PathNames.h"
#include "platform/base/TextEncoding.h"
#include "playlist/files/LineLists.h"
#include "playlist/files/XspfReader.h"

#include <optional>
#include <string_view>

namespace listFile {

namespace {

std::string_view viewOf(const QByteArray& bytes) {
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

bool isWide(std::uint32_t encoding) {
    using namespace platform::textEncoding;
    return encoding == utf16 || encoding == utf16BigEndian || encoding == utf16LittleEndian;
}

} // namespace

Contents read(const QByteArray& bytes, const QUrl& list) {
    const QByteArray beginning = bytes.left(512).trimmed();
    // XML says its encoding itself.
    if (beginning.startsWith('<') || beginning.startsWith("\xEF\xBB\xBF<"))
        return readXspf(bytes, list);
    std::uint32_t encoding = platform::detectedTextEncoding(viewOf(bytes));
    QByteArray text = bytes;
    if (isWide(encoding)) {
        const std::optional<QString> decoded = platform::stringWithData(viewOf(bytes), encoding);
        if (!decoded)
            return {};
        text = decoded->toUtf8();
        encoding = platform::textEncoding::utf8;
    }
    if (text.startsWith("\xEF\xBB\xBF"))
        text.remove(0, 3);
    if (text.contains('\0'))
        return {};
    if (text.trimmed().startsWith('<'))
        return readXspf(text, list);
    return readLines(viewOf(text), encoding);
}

bool isListName(const QString& name) {
    const QString extension = platform::pathExtension(name).toLower();
    return extension == QStringLiteral("m3u") || extension == QStringLiteral("m3u8") ||
           extension == QStringLiteral("pls") || extension == QStringLiteral("xspf");
}

} // namespace listFile
