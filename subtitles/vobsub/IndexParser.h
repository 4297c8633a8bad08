// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/vobsub/VobSubIndex.h"

#include <QString>

#include <functional>
#include <optional>
#include <string_view>

/// Reads the text of a VobSub index. Depends on nothing but its arguments.
namespace IndexParser {

/// The name of a language, given by the two letters of its code.
using LanguageName = std::function<QString(const QString& code)>;

struct Result {
    /// None when a line was not understood: an index is taken whole or not at all.
    std::optional<VobSubIndex> index;
    /// That line, as it stands in the text, with its end.
    std::string_view wrongLine;
};

/// The version number of an index's header line, or none for other lines and for versions that cannot be read.
std::optional<std::int32_t> headerVersion(std::string_view line);

/// The name is asked for once for each stream.
Result parse(std::string_view text, const LanguageName& languageName);

} // namespace IndexParser
