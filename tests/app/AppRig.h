// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/LaunchSteps.h"
#include "app/MainMenu.h"
#include "app/QVAppController.h"
#include "app/QVFullScreenWindow.h"
#include "control/QVMovieController.h"
#include "overlays/QVOSDOverlay.h"
#include "playlist/QVPlaylistController.h"
#include "tests/support/Files.h"
#include "tests/support/PlaybackRig.h"
#include "tests/support/TestEnvironment.h"

#include <algorithm>
#include <memory>

/// The whole application but for the window system and the player: real controllers on a scripted toolkit and desktop.
/// Every step of the launch and every movie opened is noted in `events`, in order.
class AppRig {
public:
    explicit AppRig(const QVariantMap& stored = {})
        : settings(stored)
        , steps(events) {
        window.setHost(&host);
        window.contentView().addSubview(view);
        toolkit.whileOpening = [this](const QUrl& url) { events << QStringLiteral("open ") + url.fileName(); };
        app = std::make_unique<QVAppController>(window, view, menu, steps);
    }

    void launch() {
        app->applicationWillFinishLaunching();
        app->applicationDidFinishLaunching();
        fade();
    }
    /// As long as the window takes to appear, or to vanish.
    void fade() { settings.runLoop.advance(std::max(window.fadingInInterval(), window.fadingOutInterval()) + 0.05); }
    /// Makes an empty file, which the toolkit opens as a movie, and answers its path.
    QString file(const QString& name) { return writeFile(folder.filePath(name)); }
    /// What the playlist holds, as file names.
    QString listed() {
        QStringList names;
        for (const QString& address : app->playlist()->arrayWithURLsAsStrings())
            names.append(QUrl(address).fileName());
        return names.join(u' ');
    }

    class RecordingSteps final : public LaunchSteps {
    public:
        explicit RecordingSteps(QStringList& events)
            : _events(events) {}
        bool checksVersion = false;
        void runFirstTimeConfig() override { _events << "configure"; }
        void askDonation() override { _events << "donation"; }
        bool shouldCheckLatestVersion() override { return checksVersion; }
        void checkLatestVersion() override { _events << "version"; }
        bool restoreState() override {
            _events << "restore";
            return true;
        }
        void saveState() override { _events << "save"; }
        void runHelpPanel() override { _events << "help"; }

    private:
        QStringList& _events;
    };

    QStringList events;
    TestEnvironment settings;
    FakeDesktop desktop;
    ScriptedToolkit toolkit;
    QTemporaryDir folder;
    RecordingHost host;
    QVFullScreenWindow window;
    QVMovieView view{toolkit.player()};
    MainMenu menu;
    RecordingSteps steps;
    std::unique_ptr<QVAppController> app;
};
