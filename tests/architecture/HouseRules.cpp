// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/architecture/HouseRules.h"

#include <algorithm>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <utility>

namespace house {

namespace {

struct Include {
    std::string file;
    int line = 0;
    std::string target;
    bool quoted = false;
};

std::string at(const std::string& file, int line) {
    return file + ":" + std::to_string(line) + ": ";
}

bool startsWith(const std::string& text, const std::string& start) {
    return text.rfind(start, 0) == 0;
}

// The text with comments and string literals blanked, line by line as it was.
std::string codeOf(const std::string& text) {
    std::string code = text;
    enum { Code, LineComment, BlockComment, String, Character } state = Code;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const char next = i + 1 < text.size() ? text[i + 1] : '\0';
        const bool digitSeparator = c == '\'' && i > 0 && std::isxdigit(static_cast<unsigned char>(text[i - 1]));
        switch (state) {
        case Code:
            if (c == '/' && (next == '/' || next == '*')) {
                state = next == '/' ? LineComment : BlockComment;
                code[i] = code[i + 1] = ' ';
                ++i;
            } else if (c == '"') {
                state = String;
            } else if (c == '\'' && !digitSeparator) {
                state = Character;
            }
            break;
        case LineComment:
            if (c == '\n')
                state = Code;
            else
                code[i] = ' ';
            break;
        case BlockComment:
            if (c != '\n')
                code[i] = ' ';
            if (c == '*' && next == '/') {
                code[++i] = ' ';
                state = Code;
            }
            break;
        case String:
        case Character:
            if (c == (state == String ? '"' : '\'')) {
                state = Code;
            } else if (c == '\n') { // An unpaired quote, as in a raw string: do not lose the rest of the file.
                state = Code;
            } else {
                code[i] = ' ';
                if (c == '\\' && next != '\n' && i + 1 < text.size())
                    code[++i] = ' ';
            }
            break;
        }
    }
    return code;
}

std::vector<Include> includesOf(const Sources& sources) {
    static const std::regex pattern(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    std::vector<Include> result;
    for (const auto& [file, text] : sources) {
        std::istringstream lines(text);
        std::string line;
        for (int number = 1; std::getline(lines, line); ++number) {
            std::smatch match;
            if (std::regex_search(line, match, pattern))
                result.push_back({file, number, match[2], match[1] == "\""});
        }
    }
    return result;
}

std::string roomOf(const std::string& file) {
    return file.substr(0, file.rfind('.'));
}
std::string directoryOf(const std::string& file) {
    const auto slash = file.rfind('/');
    return slash == std::string::npos ? "" : file.substr(0, slash);
}

// An arrow of a graph, with the first include that draws it.
using Arrows = std::map<std::string, std::map<std::string, Include>>;

// A shortest way from one node to another along the arrows; empty when there is none.
std::vector<std::string> wayBetween(const Arrows& arrows, const std::string& from, const std::string& to) {
    std::map<std::string, std::string> cameFrom;
    std::vector<std::string> queue{from};
    for (std::size_t i = 0; i < queue.size(); ++i) {
        const std::string node = queue[i]; // a copy: the queue grows
        if (node == to) {
            std::vector<std::string> way{to};
            while (way.back() != from)
                way.push_back(cameFrom.at(way.back()));
            std::reverse(way.begin(), way.end());
            return way;
        }
        const auto found = arrows.find(node);
        if (found == arrows.end())
            continue;
        for (const auto& [next, include] : found->second)
            if (next != from && cameFrom.emplace(next, node).second)
                queue.push_back(next);
    }
    return {};
}

// One complaint for each circle, said at the include that closes it.
Complaints circlesIn(const Arrows& arrows, const std::string& rule) {
    Complaints complaints;
    std::set<std::set<std::string>> said;
    for (const auto& [from, targets] : arrows)
        for (const auto& [to, include] : targets) {
            std::vector<std::string> way = wayBetween(arrows, to, from);
            if (way.empty() || !said.insert({way.begin(), way.end()}).second)
                continue;
            std::string circle = from;
            for (const std::string& node : way)
                circle += " -> " + node;
            complaints.push_back(at(include.file, include.line) + circle + " (" + rule + ")");
        }
    return complaints;
}

// The folder that a file counts to, and the floor it stands on; none for files outside the house.
struct Place {
    std::string folder;
    int floor;
};
std::optional<Place> placeOf(const std::string& file) {
    static const std::vector<Place> places = {
        {"platform", 0}, {"app/settings", 1}, {"app/context", 1}, {"subtitles", 2}, {"overlays", 3},
        {"playback", 4}, {"playlist", 5},     {"control", 6},     {"prefs", 7},     {"app", 8}};
    for (const Place& place : places)
        if (startsWith(file, place.folder + "/"))
            return place;
    return std::nullopt;
}

bool isPanel(const std::string& file) {
    return startsWith(file, "app/") && !startsWith(file, "app/settings/") && !startsWith(file, "app/context/") &&
           (startsWith(file, "app/panels/") || file.find("Panel", file.rfind('/')) != std::string::npos);
}

} // namespace

Complaints includesFromTheRoot(const Sources& sources) {
    Complaints complaints;
    for (const Include& include : includesOf(sources))
        if (include.quoted && !sources.count(include.target))
            complaints.push_back(at(include.file, include.line) + "\"" + include.target +
                                 "\" is no file of the house (quoted includes begin at the project's root)");
    return complaints;
}

Complaints noCircleOfRooms(const Sources& sources) {
    Arrows arrows;
    for (const Include& include : includesOf(sources))
        if (include.quoted && sources.count(include.target) && roomOf(include.file) != roomOf(include.target))
            arrows[roomOf(include.file)].emplace(roomOf(include.target), include);
    return circlesIn(arrows, "no circle of rooms");
}

Complaints foldersStandOnLowerOnes(const Sources& sources) {
    Complaints complaints;
    Arrows insidePlatform;
    for (const Include& include : includesOf(sources)) {
        if (!include.quoted)
            continue;
        const auto from = placeOf(include.file);
        const auto to = placeOf(include.target);
        if (!from) {
            complaints.push_back(at(include.file, include.line) + "the file lies in no folder of the house");
            continue;
        }
        if (!to)
            continue;
        if (from->folder == "platform" && to->folder == "platform") {
            if (directoryOf(include.file) != directoryOf(include.target))
                insidePlatform[directoryOf(include.file)].emplace(directoryOf(include.target), include);
        } else if (from->folder == "app/settings" && to->folder != from->folder &&
                   !startsWith(include.target, "platform/base/")) {
            complaints.push_back(at(include.file, include.line) + include.target +
                                 " (app/settings stands on platform/base alone)");
        } else if (from->folder != to->folder && to->floor >= from->floor) {
            complaints.push_back(at(include.file, include.line) + from->folder + " includes " + include.target +
                                 " (a folder includes only itself and lower floors)");
        }
    }
    const Complaints circles = circlesIn(insidePlatform, "the folders inside platform form no circle");
    complaints.insert(complaints.end(), circles.begin(), circles.end());
    return complaints;
}

Complaints librariesStayInTheirPlace(const Sources& sources, const ModuleOf& moduleOf) {
    // Beginnings of headers in angle brackets, and the only folder that may name them.
    static const std::vector<std::pair<std::string, std::string>> homes = {{"mpv/", "platform/movie/mpv/"},
                                                                           {"libavformat/", "platform/movie/mpv/"},
                                                                           {"libavcodec/", "platform/movie/mpv/"},
                                                                           {"libavutil/", "platform/movie/mpv/"},
                                                                           {"libsw", "platform/movie/mpv/"},
                                                                           {"plist/", "platform/base/"},
                                                                           {"unicode/", "platform/base/"},
                                                                           {"libevdev", "platform/desktop/linux/"},
                                                                           {"libudev", "platform/desktop/linux/"},
                                                                           {"linux/", "platform/desktop/linux/"},
                                                                           {"X11/", "platform/"},
                                                                           {"xcb/", "platform/"}};
    static const std::set<std::string> windowModules = {"QtWidgets", "QtNetwork", "QtDBus", "QtOpenGL",
                                                        "QtOpenGLWidgets"};
    static const std::set<std::string> loopHeaders = {"QEventLoop", "QEventLoopLocker", "QThread", "QSocketNotifier"};
    Complaints complaints;
    for (const Include& include : includesOf(sources)) {
        if (include.quoted)
            continue;
        for (const auto& [header, home] : homes)
            if (startsWith(include.target, header) && !startsWith(include.file, home))
                complaints.push_back(at(include.file, include.line) + "<" + include.target + "> (only in " + home +
                                     ")");
        const bool mayShowWindows =
            startsWith(include.file, "platform/") || startsWith(include.file, "prefs/") || isPanel(include.file);
        const std::string module = moduleOf(include.target);
        if ((windowModules.count(module) || loopHeaders.count(include.target)) && !mayShowWindows)
            complaints.push_back(
                at(include.file, include.line) + "<" + include.target + "> of " + module +
                " (widgets, network, D-Bus and event loops only in platform, prefs and the panels of app)");
    }
    return complaints;
}

Complaints timeComesInFromOutside(const Sources& sources) {
    static const std::regex clocks(
        R"(\b(QTimer|QElapsedTimer|QBasicTimer|QDeadlineTimer|QChronoTimer|QTimeLine|QVariantAnimation|QPropertyAnimation|)"
        R"(currentDateTime|currentDateTimeUtc|currentMSecsSinceEpoch|currentSecsSinceEpoch|currentTime|currentDate|)"
        R"(steady_clock|system_clock|high_resolution_clock|sleep_for|sleep_until|msleep|usleep|nanosleep|singleShot|)"
        R"(startTimer|clock_gettime|gettimeofday|timerfd_create|processEvents)\b|(?:^|[^\w.>])(?:std::|::)(?:time|sleep|clock)\s*\()");
    Complaints complaints;
    for (const auto& [file, text] : sources) {
        if (startsWith(file, "platform/"))
            continue;
        std::istringstream lines(codeOf(text));
        std::string line;
        for (int number = 1; std::getline(lines, line); ++number) {
            std::smatch match;
            if (std::regex_search(line, match, clocks))
                complaints.push_back(at(file, number) + match[0].str() +
                                     " (above platform time comes from the run loop)");
        }
    }
    return complaints;
}

Complaints filesStaySmall(const Sources& sources) {
    Complaints complaints;
    for (const auto& [file, text] : sources) {
        const auto lines = std::count(text.begin(), text.end(), '\n');
        if (lines > 600)
            complaints.push_back(at(file, 601) + std::to_string(lines) + " lines (600 are the limit)");
    }
    return complaints;
}

} // namespace house
