// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/FileChooserPortal.h"
#include "tests/support/FakePortal.h"
#include "tests/support/PrivateBus.h"

#include <gtest/gtest.h>

#include <optional>

using platform::FileChoice;
using platform::FileChooserPortal;
using platform::FileQuestion;

namespace {

class FileChooserPortalTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        bus = std::make_unique<PrivateBus>();
        ASSERT_TRUE(bus->isRunning()) << "dbus-daemon doesn't run";
    }
    static void TearDownTestSuite() { bus.reset(); }
    ~FileChooserPortalTest() override { portal.withdraw(); }

    FileQuestion question{.kind = FileQuestion::Kind::files,
                          .title = "Open Movies",
                          .accept = "Open",
                          .cancel = "Cancel",
                          .extensions = {"mp4", "3gp"},
                          .nameOfTypes = "Movies",
                          .nameOfAllFiles = "All",
                          .folder = "/films",
                          .option = "Add"};
    /// What is answered, as a text: "none" for no panel at all.
    QString ask() {
        std::optional<QString> answer;
        FileChooserPortal panel(question, "x11:1f", [&](const std::optional<FileChoice>& choice) {
            answer = !choice ? "none" : choice->chosen.join(' ') + (choice->isOptionOn ? " adds" : "");
        });
        return PrivateBus::waitFor([&] { return answer.has_value(); }) ? *answer : "nothing";
    }

    static inline std::unique_ptr<PrivateBus> bus;
    FakePortal portal{PrivateBus::connection()};
};

} // namespace

TEST_F(FileChooserPortalTest, asks_for_files_of_the_types_in_any_case_or_for_folders) {
    ASSERT_TRUE(portal.offer());
    portal.addresses = {"file:///films/a%20%231.mp4", "sftp://host/b.mp4"};
    EXPECT_EQ(ask(), "/films/a #1.mp4 sftp://host/b.mp4");
    portal.option = "true";
    question.kind = FileQuestion::Kind::folders;
    portal.addresses = {"file:///films"};
    EXPECT_EQ(ask(), "/films adds");
    ASSERT_EQ(portal.calls.size(), 2);
    EXPECT_TRUE(
        portal.calls[0].startsWith("OpenFile(x11:1f|Open Movies|{accept_label=Open,choices=[(option,Add,[],false)],"
                                   "current_filter=(Movies,[(0,*.[mM][pP]4),(0,*.3[gG][pP])]),"
                                   "current_folder=/films\\0,directory=false,filters=[(Movies,[(0,*.[mM][pP]4),"
                                   "(0,*.3[gG][pP])]),(All,[(0,*)])],handle_token=lumaro"))
        << portal.calls[0].toStdString();
    EXPECT_TRUE(portal.calls[0].endsWith(",modal=true,multiple=true})"));
    EXPECT_TRUE(portal.calls[1].contains("directory=true,handle_token")) << "no types of files";
}

TEST_F(FileChooserPortalTest, a_cancelled_panel_chooses_nothing_and_one_that_is_not_there_is_told_apart) {
    EXPECT_EQ(ask(), "none") << "no portal at all";
    ASSERT_TRUE(portal.offer());
    for (const auto& [manner, answer] : {std::pair{FakePortal::Manner::cancels, ""},
                                         {FakePortal::Manner::fails, "none"},
                                         {FakePortal::Manner::refuses, "none"}}) {
        portal.manner = manner;
        EXPECT_EQ(ask(), answer);
    }
}

TEST_F(FileChooserPortalTest, a_panel_that_is_not_wanted_any_more_is_closed_and_one_whose_portal_ends_is_over) {
    ASSERT_TRUE(portal.offer());
    portal.manner = FakePortal::Manner::waits;
    bool answered = false;
    const auto note = [&](const std::optional<FileChoice>& choice) { answered = !choice; };
    auto panel = std::make_unique<FileChooserPortal>(question, "", note);
    ASSERT_TRUE(PrivateBus::waitFor([&] { return portal.calls.size() == 1; }));
    panel.reset();
    ASSERT_TRUE(PrivateBus::waitFor([&] { return portal.calls.size() == 2; }));
    EXPECT_EQ(portal.calls[1], "Close()");
    EXPECT_FALSE(answered);

    panel = std::make_unique<FileChooserPortal>(question, "", note);
    ASSERT_TRUE(PrivateBus::waitFor([&] { return portal.calls.size() == 3; }));
    portal.withdraw();
    EXPECT_TRUE(PrivateBus::waitFor([&] { return answered; }));
}
