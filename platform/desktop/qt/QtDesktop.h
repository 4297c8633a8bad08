// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/Desktop.h"
#include "platform/desktop/qt/OpenPanels.h"
#include "platform/desktop/qt/PanelQueue.h"

#include <QObject>

#include <functional>
#include <memory>
#include <utility>

class QApplication;
class QSocketNotifier;
class QWindow;

namespace platform {

class ApplicationDelegate;

/// The desktop through Qt, and the application's life on it: launching, activation, the question whether to end, and
/// the end. It holds Qt's application object; one at a time.
class QtDesktop final : public QObject, public Desktop {
public:
    /// What needs the session's services.
    struct Services {
        std::function<void(bool)> setUserActive;
        /// By the screen's name; 0 to 1, infinity for unknown.
        std::function<float(const QString&)> brightness;
        std::function<void(const QString&, float)> setBrightness;
        /// The panel that the desktop itself offers; none for Qt's own.
        ForeignFilePanel askForFiles;
        /// Both outlive the desktop's use.
        Power* power = nullptr;
        RemoteSource* remotes = nullptr;
    };
    /// The arguments stay the caller's, for as long as this lives.
    QtDesktop(int& argumentCount, char** arguments, const QString& applicationName);
    ~QtDesktop() override;

    void setServices(Services services) { _services = std::move(services); }

    /// The window above which panels stand.
    void setMainWindow(QWindow* window) { _mainWindow = window; }
    /// Keys that count as held from here on, beside the keyboard's.
    void setAssumedModifiers(std::uint32_t flags) { _assumedModifiers = flags; }
    /// Runs the application to its end; answers the exit status.
    int run(ApplicationDelegate& delegate);

    int runAlert(const Alert& alert) override;
    void whenNoPanelStands(std::function<void()> work) override { _panelQueue.add(std::move(work)); }
    FileChoice runOpenPanel(const FileQuestion& question) override;
    void beep() override;
    std::vector<Screen> screens() const override;
    float brightness(const Screen& screen) const override;
    void setBrightness(const Screen& screen, float brightness) override;
    bool openURL(const QUrl& url) override;
    std::uint32_t modifierFlags() const override;
    void setUserActive(bool active) override;
    /// The services must have been set.
    Power& power() override { return *_services.power; }
    RemoteSource& remotes() override { return *_services.remotes; }
    void terminate() override;
    bool isTerminating() const override { return _terminationPending; }
    void replyToApplicationShouldTerminate(bool terminate) override;

private:
    void followSignals();

    std::unique_ptr<QApplication> _application;
    PanelQueue _panelQueue;
    Services _services;
    ApplicationDelegate* _delegate = nullptr;
    QWindow* _mainWindow = nullptr;
    std::uint32_t _assumedModifiers = 0;
    bool _userActive = false;
    bool _terminationPending = false;
    std::unique_ptr<QSocketNotifier> _signals;
};

} // namespace platform
