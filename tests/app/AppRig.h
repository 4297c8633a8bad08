// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/LaunchSteps.h"
#include "app/MainObjects.h"
#include "overlays/OnScreenDisplay.h"
#include "platform/base/Background.h"
#include "platform/base/Bundle.h"
#include "platform/desktop/RecentlyUsed.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/Files.h"
#include "tests/support/Posts.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/ScriptedToolkit.h"
#include "tests/support/TestEnvironment.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

/// The whole application but for the window system and the player: real controllers on a scripted toolkit and desktop.
/// Every step of the launch and every movie opened is noted in `events`, in order.
class AppRig {
public:
    /// Without screens of the test's own there is the one of the fake desktop.
    explicit AppRig(const QVariantMap& stored = {}, std::vector<platform::Screen> screens = {})
        : settings(stored)
        , desktop(std::move(screens))
        , steps(events) {
        window.setHost(&host);
        toolkit.whileOpening = [this](const QUrl& url) { events << QStringLiteral("open ") + url.fileName(); };
    }

    void launch() {
        app.applicationWillFinishLaunching();
        app.applicationDidFinishLaunching();
        fade();
    }
    /// As long as the window takes to appear, or to vanish.
    void fade() { settings.runLoop.advance(std::max(window.fadingInInterval(), window.fadingOutInterval()) + 0.05); }
    /// Makes an empty file, which the toolkit opens as a movie, and answers its path.
    QString file(const QString& name) { return writeFile(folder.filePath(name)); }
    /// Until the threads that look for movies have ended, and what they found is in the list.
    void waitForSearches() {
        EXPECT_TRUE(settings.runLoop.runPosted());
        EXPECT_TRUE(platform::background::waitUntilIdle(30));
        settings.runLoop.advance(1);
    }
    /// What the playlist holds once everything was opened, as file names.
    QString listed() {
        settings.runLoop.advance(0.02);
        QStringList names;
        for (const QString& address : objects->playlist().arrayWithURLsAsStrings())
            names.append(QUrl(address).fileName());
        return names.join(u' ');
    }

    class RecordingSteps final : public LaunchSteps {
    public:
        explicit RecordingSteps(QStringList& events)
            : _events(events) {}
        bool checksVersion = false;
        /// Runs while the step of this name waits for the user, as the event loop does.
        QString waitingStep;
        std::function<void()> whileWaiting;
        void runFirstTimeConfig() override { take("configure"); }
        void askDonation() override { take("donation"); }
        bool shouldCheckLatestVersion() override { return checksVersion; }
        void checkLatestVersion() override { take("version"); }
        void runHelpPanel() override { take("help"); }
        OpenURLAnswer runOpenURLPanel(std::int32_t type) override {
            _events << QStringLiteral("open URL %1").arg(type);
            return openURLAnswer;
        }
        OpenURLAnswer openURLAnswer;
        void showPreferences() override { take("preferences"); }
        void showInformation() override { take("information"); }
        void closePanels() override { ++closedPanels; }
        int closedPanels = 0;

    private:
        void take(const char* step) {
            _events << step;
            if (step == waitingStep && whileWaiting)
                whileWaiting();
        }
        QStringList& _events;
    };

    QStringList events;
    TestEnvironment settings;
    FakeDesktop desktop;
    ScriptedToolkit toolkit;
    QTemporaryDir folder;
    RecordingHost host;
    RecordingSteps steps;
    /// What earlier runs remembered of movies.
    std::shared_ptr<MemorySettings::Disk> moviesDisk = std::make_shared<MemorySettings::Disk>();
    MemorySettings movies{moviesDisk};
    class FakeRecentlyUsed final : public platform::RecentlyUsed {
    public:
        QStringList names;
        void add(const QUrl& file) override { names << file.fileName(); }
        void removeAll() override { names << "none"; }
    } recentlyUsed;
    std::unique_ptr<MainObjects> objects = std::make_unique<MainObjects>(
        settings.environment, MainObjects::Platform{desktop, toolkit, platform::Bundle::main(), movies, recentlyUsed},
        steps);
    QVFullScreenWindow& window = objects->window();
    QVMovieView& view = objects->view();
    QVAppController& app = objects->application();
};
