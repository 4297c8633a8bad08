// SPDX-License-Identifier: GPL-3.0-or-later
// What is drawn of the text of a cue, fed with texts.
#include "overlays/SubtitleMarkup.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const platform::StyledText drawn = SubtitleMarkup::read(text).text;
    qsizetype at = 0;
    for (const platform::TextRun& run : drawn.runs) {
        if (run.start < at || run.length <= 0 || run.length > drawn.text.size() - run.start)
            std::abort();
        at = run.start + run.length;
    }
    return 0;
}
