// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/architecture/HouseRules.h"

#include <QLibraryInfo>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

using house::Complaints;
using house::Sources;

Sources sourcesIn(const std::vector<std::string>& folders) {
    const std::filesystem::path root = LUMARO_SOURCE_DIR;
    Sources sources;
    for (const std::string& folder : folders) {
        // A floor without sources has no folder in a fresh checkout.
        if (!std::filesystem::exists(root / folder))
            continue;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root / folder)) {
            const std::string extension = entry.path().extension().string();
            if (!entry.is_regular_file() || (extension != ".h" && extension != ".cpp"))
                continue;
            std::ifstream file(entry.path());
            std::ostringstream text;
            text << file.rdbuf();
            sources[entry.path().lexically_relative(root).generic_string()] = text.str();
        }
    }
    return sources;
}

const Sources& theHouse() {
    static const Sources sources =
        sourcesIn({"platform", "app", "subtitles", "overlays", "playback", "playlist", "control", "prefs"});
    return sources;
}

std::string moduleByQtsOwnFolders(const std::string& header) {
    const std::filesystem::path headers = QLibraryInfo::path(QLibraryInfo::HeadersPath).toStdString();
    const auto slash = header.find('/');
    if (slash != std::string::npos)
        return header.rfind("Qt", 0) == 0 ? header.substr(0, slash) : "";
    for (const char* module : {"QtWidgets", "QtNetwork", "QtDBus", "QtOpenGL", "QtOpenGLWidgets"})
        if (std::filesystem::exists(headers / module / header))
            return module;
    return "";
}

std::string joined(const Complaints& complaints) {
    std::string text;
    for (const std::string& complaint : complaints)
        text += "\n" + complaint;
    return text;
}

#define EXPECT_NO_COMPLAINTS(complaints)                                                                               \
    do {                                                                                                               \
        const Complaints found = complaints;                                                                           \
        EXPECT_TRUE(found.empty()) << joined(found);                                                                   \
    } while (false)

} // namespace

TEST(House, quoted_includes_begin_at_the_root) {
    EXPECT_NO_COMPLAINTS(house::includesFromTheRoot(theHouse()));
}
TEST(House, there_is_no_circle_of_rooms) {
    EXPECT_NO_COMPLAINTS(house::noCircleOfRooms(theHouse()));
}
TEST(House, folders_stand_on_lower_ones) {
    EXPECT_NO_COMPLAINTS(house::foldersStandOnLowerOnes(theHouse()));
}
TEST(House, time_comes_in_from_outside) {
    EXPECT_NO_COMPLAINTS(house::timeComesInFromOutside(theHouse()));
}
TEST(House, libraries_stay_in_their_place) {
    ASSERT_EQ(moduleByQtsOwnFolders("QPushButton"), "QtWidgets") << "Qt's headers are not where Qt says";
    EXPECT_NO_COMPLAINTS(house::librariesStayInTheirPlace(theHouse(), moduleByQtsOwnFolders));
}
TEST(House, files_stay_small) {
    ASSERT_GT(theHouse().size(), 20u);
    EXPECT_NO_COMPLAINTS(house::filesStaySmall(theHouse()));
    EXPECT_NO_COMPLAINTS(house::filesStaySmall(sourcesIn({"tests", "bench", "tools"})));
}

// The rules themselves, on made-up sources: each says what it should, where it should, and nothing else.

namespace {

struct Case {
    const char* name;
    Complaints (*rule)(const Sources&);
    Sources sources;
    std::vector<std::string> expected; // the beginning of each complaint
};

Complaints libraries(const Sources& sources) {
    return house::librariesStayInTheirPlace(
        sources, [](const std::string& header) { return header == "QPushButton" ? "QtWidgets" : ""; });
}

const std::vector<Case> cases = {
    {"two_rooms_that_include_each_other",
     house::noCircleOfRooms,
     {{"playback/A.h", "\n#include \"playback/B.h\"\n"},
      {"playback/B.h", ""},
      {"playback/B.cpp", "#include \"playback/A.h\"\n"}},
     {"playback/A.h:2: playback/A -> playback/B -> playback/A"}},
    {"a_circle_of_three_is_said_once",
     house::noCircleOfRooms,
     {{"app/A.h", "#include \"app/B.h\"\n"},
      {"app/B.h", "#include \"app/C.h\"\n"},
      {"app/C.h", "#include \"app/A.h\"\n"}},
     {"app/A.h:1: app/A -> app/B -> app/C -> app/A"}},
    {"a_source_and_its_header_are_one_room",
     house::noCircleOfRooms,
     {{"app/A.h", ""}, {"app/A.cpp", "#include \"app/A.h\"\n#include \"app/B.h\"\n"}, {"app/B.h", ""}},
     {}},
    {"a_folder_that_includes_a_higher_one",
     house::foldersStandOnLowerOnes,
     {{"playback/A.h", "#include \"playlist/B.h\"\n"}, {"playlist/B.h", "#include \"playback/C.h\"\n"}},
     {"playback/A.h:1: playback includes playlist/B.h"}},
    {"settings_and_context_are_neighbours",
     house::foldersStandOnLowerOnes,
     {{"app/context/A.h", "#include \"app/settings/B.h\"\n"},
      {"app/settings/B.h", "#include \"platform/window/View.h\"\n#include \"platform/base/Log.h\"\n"},
      {"app/C.h", "#include \"app/settings/B.h\"\n#include \"app/context/A.h\"\n"}},
     {"app/context/A.h:1: app/context includes", "app/settings/B.h:1: platform/window/View.h"}},
    {"folders_of_the_platform_in_a_circle",
     house::foldersStandOnLowerOnes,
     {{"platform/base/A.h", "#include \"platform/window/B.h\"\n"},
      {"platform/window/C.h", "#include \"platform/base/D.h\"\n"}},
     {"platform/base/A.h:1: platform/base -> platform/window -> platform/base"}},
    {"an_include_beside_the_file",
     house::includesFromTheRoot,
     {{"app/A.h", "#include \"B.h\"\n#include \"app/B.h\"\n"}, {"app/B.h", "#include <string>\n"}},
     {"app/A.h:1: \"B.h\""}},
    {"libraries_out_of_place",
     libraries,
     {{"platform/movie/Movie.cpp", "#include <mpv/client.h>\n"},
      {"platform/movie/mpv/A.cpp", "#include <mpv/client.h>\n#  include <libavformat/avformat.h>\n"},
      {"platform/window/A.cpp", "#include <unicode/coll.h>\n#include <QPushButton>\n"},
      {"playlist/A.cpp", "#include <QString>\n#include <QPushButton>\n"},
      {"prefs/A.cpp", "#include <QPushButton>\n"},
      {"app/HelpPanel.cpp", "#include <QPushButton>\n"}},
     {"platform/movie/Movie.cpp:1: <mpv/client.h>", "platform/window/A.cpp:1: <unicode/coll.h>",
      "playlist/A.cpp:2: <QPushButton>"}},
    {"clocks_above_the_platform",
     house::timeComesInFromOutside,
     {{"control/A.cpp",
       "// QTimer is not used\nauto text = \"QTimer\";\nint n = 1'000; QTimer::singleShot(0, f);\n"
       "auto now = std::time(nullptr);\nmovie->time();\n/* sleep_for\n */ std::this_thread::sleep_for(d);\n"},
      {"platform/base/QtRunLoop.cpp", "QTimer timer;\n"}},
     {"control/A.cpp:3: QTimer", "control/A.cpp:4: ", "control/A.cpp:7: sleep_for"}},
    {"a_long_file",
     house::filesStaySmall,
     {{"app/A.cpp", std::string(600, '\n')}, {"app/B.cpp", std::string(601, '\n')}},
     {"app/B.cpp:601: 601 lines"}},
};

class HouseRule : public testing::TestWithParam<Case> {};

} // namespace

TEST_P(HouseRule, says_what_is_wrong_and_nothing_else) {
    const Case& given = GetParam();
    const Complaints found = given.rule(given.sources);
    ASSERT_EQ(found.size(), given.expected.size()) << joined(found);
    for (std::size_t i = 0; i < found.size(); ++i)
        EXPECT_EQ(found[i].substr(0, given.expected[i].size()), given.expected[i]) << found[i];
}

INSTANTIATE_TEST_SUITE_P(Made, HouseRule, testing::ValuesIn(cases),
                         [](const testing::TestParamInfo<Case>& given) { return std::string(given.param.name); });
