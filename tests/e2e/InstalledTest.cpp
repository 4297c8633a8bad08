// SPDX-License-Identifier: GPL-3.0-or-later
// The program as it is installed, not as it lies in the build.
#include "tests/e2e/PlayerFixture.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <filesystem>

using namespace harness;

namespace {

class Installed : public PlayerFixture {};

} // namespace

TEST_F(Installed, plays_from_a_prefix_that_was_moved) {
    const QTemporaryDir folder;
    const std::filesystem::path top = folder.path().toStdString();
    QProcess install;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DESTDIR", folder.path() + "/stage");
    install.setProcessEnvironment(environment);
    install.start(LUMARO_CMAKE, {"--install", LUMARO_BINARY_DIR, "--prefix", "/opt/first"});
    ASSERT_TRUE(install.waitForFinished(120'000));
    ASSERT_EQ(install.exitCode(), 0) << install.readAllStandardError().toStdString();
    const std::filesystem::path moved = top / "moved";
    std::filesystem::rename(top / "stage/opt/first", moved);
    EXPECT_TRUE(std::filesystem::is_empty(top / "stage/opt")) << "not all of it is below the prefix";
    for (const char* file :
         {"share/applications/org.lumaro.Lumaro.desktop", "share/metainfo/org.lumaro.Lumaro.metainfo.xml",
          "share/icons/hicolor/scalable/apps/org.lumaro.Lumaro.svg", "share/man/man1/lumaro.1",
          "share/bash-completion/completions/lumaro", "share/fish/vendor_completions.d/lumaro.fish",
          "share/zsh/site-functions/_lumaro", "lib/udev/rules.d/70-lumaro-remote.rules", "libexec/lumaro/unrar"})
        EXPECT_TRUE(std::filesystem::is_regular_file(moved / file)) << file;

    // An empty variable is none: it has to find its resources by itself, and has no settings' values without them.
    startRecorded((moved / "bin/lumaro").string(), {{"LUMARO_RESOURCES", ""}}, {numbered("red.mp4", red, 300)});
    EXPECT_TRUE(colorBecomes(red));
    EXPECT_TRUE(quitsCleanly());
}
