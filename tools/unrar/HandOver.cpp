// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/unrar/HandOver.h"

#include <QString>

#include <algorithm>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// Not one that has a second name, which may lie anywhere.
bool isPlainFile(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(fs::symlink_status(path, error)) && fs::hard_link_count(path, error) == 1;
}

std::vector<fs::path> entriesOf(const fs::path& folder) {
    std::vector<fs::path> entries;
    std::error_code error;
    for (fs::recursive_directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
        entries.push_back(entry->path());
    return entries;
}

std::string lowerCase(const std::string& name) {
    return QString::fromStdString(name).toLower().toStdString();
}

fs::path lowerCased(const fs::path& path) {
    fs::path result;
    for (const fs::path& part : path)
        result /= lowerCase(part.native());
    return result;
}

/// The path, or one with a number before its extension that nothing has yet.
fs::path unused(const fs::path& path) {
    fs::path candidate = path;
    std::error_code error;
    for (int number = 2; fs::exists(fs::symlink_status(candidate, error)); ++number) {
        candidate = path;
        candidate.replace_filename(path.stem().native() + '-' + std::to_string(number) + path.extension().native());
    }
    return candidate;
}

} // namespace

FolderContents contentsOf(const fs::path& folder) {
    FolderContents contents;
    for (const fs::path& path : entriesOf(folder)) {
        ++contents.entries;
        if (!isPlainFile(path))
            continue;
        std::error_code error;
        const std::uintmax_t size = fs::file_size(path, error);
        ++contents.files;
        contents.bytes += error ? 0 : size;
    }
    return contents;
}

bool handOver(const fs::path& from, const fs::path& to) {
    std::vector<fs::path> files = entriesOf(from);
    std::erase_if(files, [](const fs::path& path) { return !isPlainFile(path); });
    // What is in lower case already keeps its name.
    const auto order = [&](const fs::path& path) {
        const fs::path name = path.lexically_relative(from);
        return std::pair(name != lowerCased(name), path);
    };
    std::ranges::sort(files, {}, order);
    std::error_code error;
    fs::create_directory(to, error);
    // All folders first: a file of the same name gives way.
    for (const fs::path& file : files) {
        if (!error)
            fs::create_directories(to / lowerCased(file.lexically_relative(from).parent_path()), error);
    }
    for (const fs::path& file : files) {
        if (!error)
            fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write, error);
        if (!error)
            fs::rename(file, unused(to / lowerCased(file.lexically_relative(from))), error);
    }
    return !error;
}
