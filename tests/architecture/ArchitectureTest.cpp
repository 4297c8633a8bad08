// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of the layers, checked on the text of the sources alone.
#include <QLibraryInfo>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

// Path from the project's root to the file's lines.
using Sources = std::map<std::string, std::vector<std::string>>;

Sources sourcesIn(const std::vector<std::string>& folders) {
    const fs::path root = LUMARO_SOURCE_DIR;
    Sources sources;
    for (const std::string& folder : folders) {
        // A layer without sources has no folder in a fresh checkout.
        if (!fs::exists(root / folder))
            continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
            const std::string extension = entry.path().extension().string();
            if (extension != ".h" && extension != ".cpp")
                continue;
            std::ifstream file(entry.path());
            auto& lines = sources[entry.path().lexically_relative(root).generic_string()];
            for (std::string line; std::getline(file, line);)
                lines.push_back(line);
        }
    }
    return sources;
}

const Sources& productSources() {
    static const Sources sources = sourcesIn({"platform", "settings", "context", "subtitles", "overlays", "playback",
                                              "playlist", "control", "prefs", "app"});
    return sources;
}

std::string withoutTextsAndComments(const std::string& line) {
    static const std::regex textOrComment(R"("(\\.|[^"\\])*"|//.*)");
    return std::regex_replace(line, textOrComment, "");
}

struct Include {
    std::string file;
    std::string target;
    bool quoted = false;
};

std::vector<Include> includes() {
    static const std::regex pattern(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    std::vector<Include> found;
    for (const auto& [file, lines] : productSources())
        for (const std::string& line : lines)
            if (std::smatch match; std::regex_search(line, match, pattern))
                found.push_back({file, match[2], match[1] == "\""});
    return found;
}

bool isIn(const std::string& file, const std::string& folder) {
    return file.starts_with(folder + "/");
}

// From each to those that it includes.
using Dependencies = std::map<std::string, std::set<std::string>>;

// What includes nothing that is left is taken away, again and again: a circle stays, with what leads to it.
void expectNoCircle(Dependencies dependencies) {
    const auto includesNone = [&dependencies](const auto& from) {
        return std::ranges::none_of(from.second, [&](const std::string& to) { return dependencies.contains(to); });
    };
    while (std::erase_if(dependencies, includesNone) > 0) {
    }
    for (const auto& [from, targets] : dependencies)
        for (const std::string& to : targets)
            EXPECT_FALSE(dependencies.contains(to)) << "on or before a circle: " << from << " -> " << to;
}

// The top folder that a file belongs to, and its layer.
std::pair<std::string, int> placeOf(const std::string& file) {
    static const std::vector<std::pair<std::string, int>> places = {
        {"platform", 0}, {"settings", 1}, {"context", 1}, {"subtitles", 2}, {"overlays", 3},
        {"playback", 4}, {"playlist", 5}, {"control", 6}, {"prefs", 7},     {"app", 8}};
    return *std::ranges::find_if(places, [&](const auto& place) { return isIn(file, place.first); });
}

std::string moduleByQtsOwnFolders(const std::string& header) {
    const fs::path headers = QLibraryInfo::path(QLibraryInfo::HeadersPath).toStdString();
    if (const auto slash = header.find('/'); slash != std::string::npos)
        return header.substr(0, slash);
    for (const char* module : {"QtWidgets", "QtNetwork", "QtDBus", "QtOpenGL", "QtOpenGLWidgets"})
        if (fs::exists(headers / module / header))
            return module;
    return "";
}

} // namespace

TEST(Architecture, modules_and_folders_form_no_circle_and_include_lower_layers_only) {
    ASSERT_GT(productSources().size(), 20u);
    const auto moduleOf = [](const std::string& file) { return file.substr(0, file.rfind('.')); };
    const auto directoryOf = [](const std::string& file) { return file.substr(0, file.rfind('/')); };
    Dependencies modules, folders;
    for (const auto& [file, target, quoted] : includes()) {
        if (!quoted)
            continue;
        EXPECT_TRUE(productSources().contains(target)) << file << ": includes begin at the root: " << target;
        if (!productSources().contains(target))
            continue;
        if (moduleOf(file) != moduleOf(target))
            modules[moduleOf(file)].insert(moduleOf(target));
        const auto [from, fromLayer] = placeOf(file);
        const auto [to, toLayer] = placeOf(target);
        if (directoryOf(file) != directoryOf(target))
            folders[directoryOf(file)].insert(directoryOf(target));
        EXPECT_TRUE(from == to || toLayer < fromLayer) << file << " includes " << target << " of a higher layer";
        EXPECT_TRUE(from != "settings" || to == from || isIn(target, "platform/base"))
            << file << " includes " << target << ", but settings stands on platform/base alone";
    }
    expectNoCircle(modules);
    expectNoCircle(folders);
}

TEST(Architecture, libraries_stay_in_their_place) {
    ASSERT_EQ(moduleByQtsOwnFolders("QPushButton"), "QtWidgets") << "Qt's headers are not where Qt says";
    // Beginnings of headers, and the only folder that may name them.
    const std::vector<std::pair<std::string, std::string>> homes = {{"mpv/", "platform/movie/mpv"},
                                                                    {"libavformat/", "platform/movie/mpv"},
                                                                    {"libavcodec/", "platform/movie/mpv"},
                                                                    {"libavutil/", "platform/movie/mpv"},
                                                                    {"libsw", "platform/movie/mpv"},
                                                                    {"unicode/", "platform/base"},
                                                                    {"libevdev", "platform/desktop/linux"},
                                                                    {"libudev", "platform/desktop/linux"},
                                                                    {"glib", "platform/desktop/linux"},
                                                                    {"linux/", "platform/desktop/linux"},
                                                                    {"X11/", "platform"},
                                                                    {"xcb/", "platform"}};
    const std::set<std::string> windows = {"QtWidgets",        "QtNetwork",       "QtDBus",
                                           "QtOpenGL",         "QtOpenGLWidgets", "QEventLoop",
                                           "QEventLoopLocker", "QThread",         "QSocketNotifier"};
    for (const auto& [file, target, quoted] : includes()) {
        if (quoted)
            continue;
        for (const auto& [header, home] : homes)
            EXPECT_TRUE(!target.starts_with(header) || isIn(file, home)) << file << ": <" << target << ">";
        const bool isPanel = placeOf(file).first == "app" && file.find("Panel", file.rfind('/')) != std::string::npos;
        if (!isIn(file, "platform") && !isIn(file, "prefs") && !isPanel) {
            EXPECT_FALSE(windows.contains(target) || windows.contains(moduleByQtsOwnFolders(target)))
                << file << ": <" << target << "> only in platform, prefs and the panels of app";
        }
    }
}

TEST(Architecture, time_comes_in_from_outside) {
    const std::regex clocks(
        R"(\b(QTimer|QElapsedTimer|QBasicTimer|QDeadlineTimer|QChronoTimer|QTimeLine|QVariantAnimation|QPropertyAnimation|)"
        R"(currentDateTime|currentDateTimeUtc|currentMSecsSinceEpoch|currentSecsSinceEpoch|currentTime|currentDate|)"
        R"(steady_clock|system_clock|high_resolution_clock|sleep_for|sleep_until|msleep|usleep|nanosleep|singleShot|)"
        R"(startTimer|clock_gettime|gettimeofday|timerfd_create|processEvents)\b|(?:^|[^\w.>])(?:std::|::)(?:time|sleep|clock)\s*\()");
    for (const auto& [file, lines] : productSources()) {
        for (const std::string& line : lines) {
            EXPECT_TRUE(isIn(file, "platform") || !std::regex_search(withoutTextsAndComments(line), clocks))
                << file << ": " << line;
        }
    }
}

TEST(Architecture, collaborators_are_handed_in) {
    // What answers an object of the whole process.
    const std::regex accessors(R"(\b(RunLoop::main|defaultCenter|UserDefaults::standard|standardUserDefaults|)"
                               R"(Bundle::main|\w+::shared|shared[A-Z]\w*(?=\s*\()|gAppController)\b)");
    // The composition alone asks for it, in app/main. Others: the modules that an accessor stands in or is filled by.
    // The bundle may be asked where a file of the program's own lies, which is no collaborator.
    const std::map<std::string, std::set<std::string>> homes = {
        {"UserDefaults::standard", {"settings/QVUserDefaults"}},
        {"standardUserDefaults", {"settings/QVUserDefaults"}},
        {"Bundle::main", {"settings/QVUserDefaults", "subtitles/vobsub/SubFile"}},
        {"sharedManager", {"subtitles/JHStringEncodings"}},
        {"sharedOSDOverlay", {"overlays/QVOSDOverlay"}},
        {"sharedFeedbackOverlay", {"overlays/QVFeedbackOverlay"}},
        {"sharedRemote", {"control/AppleRemote"}},
        {"gAppController", {"app/QVAppController", "app/MainObjects"}}};
    for (const auto& [file, lines] : productSources()) {
        if (isIn(file, "platform") || isIn(file, "app/main"))
            continue;
        for (const std::string& line : lines) {
            const std::string code = withoutTextsAndComments(line);
            std::smatch found;
            if (!std::regex_search(code, found, accessors))
                continue;
            const auto home = homes.find(found.str(1));
            EXPECT_TRUE(home != homes.end() && home->second.contains(file.substr(0, file.rfind('.'))))
                << file << ": " << line;
        }
    }
}

TEST(Architecture, files_stay_small) {
    for (const Sources& sources : {productSources(), sourcesIn({"tests", "bench", "tools"})})
        for (const auto& [file, lines] : sources)
            EXPECT_LE(lines.size(), 600u) << file;
}
