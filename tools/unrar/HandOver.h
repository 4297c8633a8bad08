// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>

/// What lies in a folder, links not followed.
struct FolderContents {
    std::uint64_t entries = 0;
    std::uint64_t files = 0; // regular ones with no other name
    std::uint64_t bytes = 0; // in those
};

FolderContents contentsOf(const std::filesystem::path& folder);

/// Moves the regular files of a folder, with the folders they lie in, to another one, which must not exist. All names
/// become lower case; where two become the same, the later ones get a number. False when something could not be moved.
bool handOver(const std::filesystem::path& from, const std::filesystem::path& to);
