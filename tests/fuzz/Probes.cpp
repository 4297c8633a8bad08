// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/TextEncoding.h"
#include "subtitles/input/SubtitleText.h"
#include "subtitles/text/QVMicroDVDSubtitles.h"
#include "subtitles/text/QVSubRipSubtitles.h"
#include "subtitles/text/QVTMPlayerSubtitles.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const std::uint32_t encoding : {platform::textEncoding::automatic, platform::textEncoding::utf16}) {
        const SubtitleText text = SubtitleText::fromBytes(bytes, encoding);
        // What was found can be decoded with.
        if (text.encoding == platform::textEncoding::automatic)
            std::abort();
        for (const ReadingMode mode : {ReadingMode::strict, ReadingMode::repairing}) {
            (void)QVSubRipSubtitles::isFormatValid(text.view(), mode);
            (void)QVMicroDVDSubtitles::isFormatValid(text.view(), mode);
            (void)QVTMPlayerSubtitles::isFormatValid(text.view(), mode);
        }
    }
    return 0;
}
