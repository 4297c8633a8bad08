// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace platform {
class MovieToolkit;
class UserActivity;
} // namespace platform

class SubtitleDiscovery;
class SubtitleRegistry;

/// What movies are opened with, and work with while they are open. Copied freely: what it refers to outlives every
/// movie.
struct MovieServices {
    platform::MovieToolkit& toolkit;
    platform::UserActivity& userActivity;
    SubtitleRegistry& subtitleReaders;
    SubtitleDiscovery& subtitleDiscovery;
};
