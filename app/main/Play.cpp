// SPDX-License-Identifier: GPL-3.0-or-later
// The composition of the player: the platform's real objects, and the player's own on top of them.
#include "app/CommandLine.h"
#include "app/LaunchQuestions.h"
#include "app/LaunchSteps.h"
#include "app/MainObjects.h"
#include "app/MediaSession.h"
#include "app/OpeningFiles.h"
#include "app/VersionCheck.h"
#include "app/WindowTitle.h"
#include "app/main/InputDevicesOfRun.h"
#include "app/main/Modes.h"
#include "app/main/RunEnvironment.h"
#include "app/main/Terminal.h"
#include "app/panels/GoToTimePanel.h"
#include "app/panels/HelpPanel.h"
#include "app/panels/InformationPanel.h"
#include "app/panels/PlaylistPanel.h"
#include "app/panels/QVOpenURLPanel.h"
#include "platform/base/Background.h"
#include "platform/base/Bundle.h"
#include "platform/base/PrivateFolder.h"
#include "platform/base/SettingsFile.h"
#include "platform/base/ToolDownloads.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/linux/Backlight.h"
#include "platform/desktop/linux/ColorSchemePortal.h"
#include "platform/desktop/linux/DisplayServer.h"
#include "platform/desktop/linux/FileChooserPortal.h"
#include "platform/desktop/linux/MprisService.h"
#include "platform/desktop/linux/RecentlyUsedFile.h"
#include "platform/desktop/linux/RemoteReceivers.h"
#include "platform/desktop/linux/ScreenSaverExtension.h"
#include "platform/desktop/linux/SessionBus.h"
#include "platform/desktop/linux/SingleInstance.h"
#include "platform/desktop/linux/SystemPower.h"
#include "platform/desktop/qt/DarkPalette.h"
#include "platform/desktop/qt/QtDesktop.h"
#include "platform/movie/mpv/MpvToolkit.h"
#include "platform/window/qt/QtWindowHost.h"
#include "playlist/files/ListFile.h"
#include "prefs/QVPreferencesController.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <QGuiApplication>

#include <memory>
#include <optional>
#include <utility>

namespace {

/// A file named on the command line is taken at its word: what is missing or of an unknown type is tried, and reported
/// by the playlist. Only folders are searched for movies by their types; which are some is not asked here, where a
/// drive that hangs would hold up the launch.
QString asHandedOver(const QString& file) {
    return isURLString(file) ? file : QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded);
}

platform::HandOver handOverOf(const CommandLine& line) {
    platform::HandOver message{line.append, {}};
    for (const QString& file : line.files)
        message.files.append(asHandedOver(file));
    return message;
}

/// Gives what was asked for to a player that runs already: the exit status, or nothing when none took it.
std::optional<int> giveTo(const platform::SingleInstance& instance, const CommandLine& line) {
    if (!instance.isTaken())
        return std::nullopt;
    if (!line.settings.isEmpty() || line.software) {
        complain(QStringLiteral("'%1' acts when the player starts, and one is running; quit it first")
                     .arg(line.software ? QStringLiteral("--software") : QStringLiteral("--set")));
        return exitFailure;
    }
    return instance.handOver(handOverOf(line)) ? std::optional(exitSuccess) : std::nullopt;
}

/// The same with whichever player of this user there is.
std::optional<int> giveToAny(const CommandLine& line) {
    for (const QString& path : platform::SingleInstance::socketPathsOfAllDisplays()) {
        if (const auto status = giveTo(platform::SingleInstance(path), line))
            return status;
    }
    return std::nullopt;
}

QUrl firstMovie(const QStringList& files) {
    // The thread that opens it sees whether it is a file: a drive that hangs must hold up nothing here.
    return !files.isEmpty() && !isURLString(files.first()) && !listFile::isListName(files.first())
               ? QUrl::fromLocalFile(files.first())
               : QUrl();
}

platform::Renderer chosenRenderer(const CommandLine& line) {
    if (line.software)
        return platform::Renderer::software;
    // For drivers that the automatic choice gets wrong.
    return qgetenv("LUMARO_RENDERER") == "opengl" ? platform::Renderer::openGL : platform::Renderer::automatic;
}

class Steps final : public LaunchSteps {
public:
    explicit Steps(platform::Desktop& desktop)
        : _desktop(desktop) {}

    /// Once the player stands.
    void join(const Environment& running, QVAppController& application, CommandTarget& target) {
        environment = &running;
        _questions.emplace(running, _desktop, platform::Bundle::main(), [&application] { application.showHelp(); });
        _versions.emplace(running, VersionCheck::Collaborators{_downloads, _desktop, target, platform::Bundle::main()});
    }

    QWindow* window = nullptr;
    QVPlaylistController* playlist = nullptr;
    PictureSource* pictures = nullptr;
    const Environment* environment = nullptr;
    const CurrentCommands* commands = nullptr;
    const MovieInformation* information = nullptr;
    void runHelpPanel() override {
        if (commands)
            ::runHelpPanel(commands->all(), window);
    }
    void runFirstTimeConfig() override {
        if (_questions)
            _questions->runFirstTimeConfig();
    }
    void askDonation() override {
        if (_questions)
            _questions->askDonation();
    }
    void donate() override {
        if (_questions)
            _questions->donate();
    }
    bool canDonate() const override { return _questions && _questions->canDonate(); }
    bool shouldCheckLatestVersion() override { return _versions && _versions->shouldCheckLatestVersion(); }
    void checkLatestVersion() override {
        if (_versions)
            _versions->checkLatestVersion(VersionCheck::Sender::none);
    }
    void runPlaylistPanel() override {
        if (playlist && environment)
            ::runPlaylistPanel(*environment, *playlist, window);
    }
    std::optional<double> runGoToTimePanel(double now, double duration) override {
        return ::runGoToTimePanel(
            now, duration, [this] { _desktop.beep(); }, window);
    }
    OpenURLAnswer runOpenURLPanel(std::int32_t type) override {
        if (!_openURLPanel && environment)
            _openURLPanel = std::make_unique<QVOpenURLPanel>(*environment);
        if (!_openURLPanel)
            return {};
        const std::int32_t code = _openURLPanel->runModalWithType(type, window);
        return {code, _openURLPanel->urlStrings(), _openURLPanel->isAddingChosen()};
    }
    void showPreferences() override {
        if (!_preferences && environment && pictures && _versions)
            _preferences = std::make_unique<QVPreferencesController>(*environment, _desktop, *pictures, *_versions);
        if (_preferences)
            _preferences->showAbove(window);
    }
    void showInformation() override {
        if (!_information && environment && information && commands)
            _information = std::make_unique<InformationPanel>(environment->loop, *information, *commands);
        if (_information)
            _information->toggleAbove(window);
    }
    void closePanels() override {
        if (_preferences)
            _preferences->close();
        if (_information)
            _information->close();
    }

private:
    platform::Desktop& _desktop;
    platform::ToolDownloads _downloads{platform::Bundle::main()};
    std::optional<LaunchQuestions> _questions;
    std::optional<VersionCheck> _versions;
    // Made when they are first asked for.
    std::unique_ptr<QVPreferencesController> _preferences;
    std::unique_ptr<QVOpenURLPanel> _openURLPanel;
    std::unique_ptr<InformationPanel> _information;
};

/// All outlive the services.
platform::QtDesktop::Services desktopServices(platform::SessionBus& bus, platform::ScreenSaverExtension& saver,
                                              const platform::Backlight& backlight, platform::Power& power,
                                              platform::RemoteSource& remotes) {
    const auto brightness = [&backlight](const QString& screen) {
        int error = 0;
        const float value = backlight.brightness(screen, error);
        if (error != 0)
            logAlways("%@: ERROR: Retrieving brightness for current screen: %d", "Screen", error);
        return value;
    };
    return {[&bus, &saver](bool active) {
                bus.setInhibited(active);
                saver.setInhibited(active);
            },
            brightness,
            [&backlight](const QString& screen, float value) { backlight.setBrightness(screen, value); },
            [](const platform::FileQuestion& question, const QString& parent, auto answered) {
                return std::make_shared<platform::FileChooserPortal>(question, parent, std::move(answered));
            },
            &power,
            &remotes};
}

/// What programs on the bus are told of this one.
platform::mpris::Identity mediaIdentity() {
    return {QCoreApplication::applicationName(),
            QGuiApplication::desktopFileName(),
            {QStringLiteral("file"), QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("rtsp"),
             QStringLiteral("rtmp"), QStringLiteral("ftp")},
            supportedMimeTypes(platform::Bundle::main())};
}

} // namespace

int play(int& count, char** arguments, const CommandLine& line) {
    platform::SingleInstance instance(platform::SingleInstance::defaultSocketPath());
    const bool wasTaken = instance.isTaken();
    if (const auto status = giveTo(instance, line))
        return *status;
    std::optional<platform::DisplayServer> display(std::in_place);
    if (!display->reasonForNone().isEmpty()) {
        if (const auto status = giveToAny(line))
            return *status;
        complain(QStringLiteral("there is no display to show movies on: %1").arg(display->reasonForNone()));
        return exitFailure;
    }
    // Opening the first movie takes as long as starting the application: it begins first.
    platform::MpvToolkit toolkit;
    toolkit.prepare(firstMovie(line.files));
    const platform::HandOver files = handOverOf(line);

    platform::QtDesktop desktop(count, arguments, QStringLiteral("Lumaro"));
    display.reset();
    RunEnvironment run;
    if (!run.settings().apply(line))
        return exitUsage;

    toolkit.setOpensPages([&run] { return run.environment().settings.boolForKey(kQVOpenVideoPages); });

    platform::SettingsFile movies(platform::SettingsFile::statePath(QStringLiteral("movies.plist")),
                                  {QStringLiteral("remembered movies"), rememberedMoviesVersion});
    movies.readAhead();
    platform::RecentlyUsedFile recentlyUsed(platform::RecentlyUsedFile::defaultPath());
    platform::SessionBus bus;
    platform::ScreenSaverExtension screenSaver;
    const platform::Backlight backlight(platform::Backlight::systemFolder(),
                                        [&bus](const QString& light, unsigned level) {
                                            bus.setBacklight(light, level);
                                            return true;
                                        });
    platform::SystemPower power;
    const std::unique_ptr<platform::InputDevices> inputDevices = makeInputDevices();
    platform::RemoteReceivers remotes(*inputDevices);
    desktop.setServices(desktopServices(bus, screenSaver, backlight, power, remotes));

    int status = exitSuccess;
    {
        Steps steps(desktop);
        MainObjects player(run.environment(), {desktop, toolkit, platform::Bundle::main(), movies, recentlyUsed},
                           steps);
        platform::QtWindowHost host(player.window(), chosenRenderer(line));
        host.setMainMenu(player.menu().bar(), player.controller());
        desktop.setMainWindow(&host);
        steps.window = &host;
        steps.playlist = &player.playlist();
        steps.pictures = &player.view();
        steps.commands = &player.commands();
        steps.information = &player.information();
        steps.join(run.environment(), player.application(), player.controller());

        const WindowTitle title(run.environment(), QCoreApplication::applicationName(),
                                [&host](const QString& text) { host.setTitle(text); });
        platform::MprisService mediaControls(mediaIdentity());
        const MediaSession mediaSession(
            run.environment(), {mediaControls, player.view(), player.playlist(), player.controller(), desktop, toolkit,
                                [&player](const QString& address) { player.application().openFile(address); },
                                [&host] { host.makeKeyAndOrderFront(); }});

        const auto take = [&](const platform::HandOver& message) {
            desktop.setAssumedModifiers(message.append ? platform::modifier::option : 0);
            for (const QString& file : message.files)
                player.application().openFile(file);
            desktop.setAssumedModifiers(0);
            host.makeKeyAndOrderFront();
        };
        // One that was started at the same moment may be ahead by now. Whoever was there before has been asked.
        if (!instance.listen(take) && !wasTaken) {
            if (const auto given = giveTo(instance, line))
                return *given;
        }
        // What a killed player unpacked may be large.
        platform::background::run([] { platform::PrivateFolder::sweep(); });
        if (!files.files.isEmpty())
            take(files);
        platform::DarkPalette palette;
        const platform::ColorSchemePortal scheme([&palette](platform::ColorSchemePortal::Scheme told) {
            palette.setWanted(told == platform::ColorSchemePortal::Scheme::dark);
        });
        status = desktop.run(player.application());
        instance.close(); // nothing more is received
    }
    // What is not removed by then is left to the next start.
    platform::PrivateSubfolder::waitUntilGone();
    return status;
}
