// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/movie/SubtitlePackets.h"
#include "subtitles/SubtitleRegistry.h"

/// The readers of every kind of file that is understood, in the order of their types. Their tracks work in the
/// environment,
/// and those of packets ask `readPackets`.
std::vector<SubtitleReader> subtitleReaders(const Environment& environment,
                                            const platform::ReadSubtitlePackets& readPackets);
