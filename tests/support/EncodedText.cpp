// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/EncodedText.h"

#include "platform/base/TextEncoding.h"
#include "platform/base/TextEncodingTable.h"

#include <algorithm>
#include <memory>
#include <unicode/ucnv.h>

namespace {

struct CloseConverter {
    void operator()(UConverter* converter) const { ucnv_close(converter); }
};

} // namespace

std::optional<QByteArray> lossyData(const QString& text, std::uint32_t encoding) {
    const platform::TextEncodingEntry* entry = platform::textEncodingEntry(encoding);
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<UConverter, CloseConverter> converter(
        entry ? ucnv_open(encoding == platform::textEncoding::utf16 ? "UTF-16LE" : entry->converter, &error) : nullptr);
    if (!converter || U_FAILURE(error))
        return std::nullopt;
    const auto size = static_cast<std::int32_t>(std::min<qsizetype>(text.size(), 0x04000000));
    QByteArray bytes(UCNV_GET_MAX_BYTES_FOR_STRING(size, ucnv_getMaxCharSize(converter.get())), Qt::Uninitialized);
    const std::int32_t length = ucnv_fromUChars(converter.get(), bytes.data(), static_cast<std::int32_t>(bytes.size()),
                                                reinterpret_cast<const UChar*>(text.constData()), size, &error);
    if (U_FAILURE(error))
        return std::nullopt;
    bytes.truncate(length);
    return bytes;
}
