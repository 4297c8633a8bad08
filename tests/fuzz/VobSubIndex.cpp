// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/vobsub/IndexParser.h"

#include <cstddef>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto result = IndexParser::parse(text, [](const QString& code) { return code; });
    if (!result.index) {
        if (result.wrongLine.empty())
            std::abort();
        return 0;
    }
    for (const QVVobSubStreamInfo& stream : result.index->_streams) {
        if (stream._index < 0 || stream._index > 31 || stream._languageID.size() != 2)
            std::abort();
        for (const QVVobSubPos& position : stream._subPos) {
            if (position._timestamp != static_cast<std::int32_t>(position._timestamp))
                std::abort();
        }
    }
    return 0;
}
