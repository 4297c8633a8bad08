// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/Desktop.h"

#include <QObject>

#include <functional>
#include <memory>

class QSocketNotifier;
class QWindow;

namespace platform {

class ApplicationDelegate;

/// The desktop through Qt, and the application's life on it: launching, activation, the question whether to end, and the end.
/// Needs the application object.
class QtDesktop final : public QObject, public Desktop {
public:
    /// What needs the session's services.
    struct Services {
        std::function<void(bool)> setUserActive;
        std::function<void()> sleep;
    };
    explicit QtDesktop(Services services);
    ~QtDesktop() override;

    /// The window above which panels stand.
    void setMainWindow(QWindow* window) { _mainWindow = window; }
    /// Keys that count as held from here on, beside the keyboard's.
    void setAssumedModifiers(std::uint32_t flags) { _assumedModifiers = flags; }
    /// Runs the application to its end; answers the exit status.
    int run(ApplicationDelegate& delegate);

    int runAlert(const Alert& alert) override;
    QStringList runOpenPanel(const QStringList& extensions, const QString& folder) override;
    void beep() override;
    std::vector<Screen> screens() const override;
    float brightness(const Screen& screen) const override;
    void setBrightness(const Screen& screen, float brightness) override;
    bool openURL(const QUrl& url) override;
    std::uint32_t modifierFlags() const override;
    void setUserActive(bool active) override;
    void sleep() override;
    void terminate() override;
    void replyToApplicationShouldTerminate(bool terminate) override;

private:
    void followSignals();

    Services _services;
    ApplicationDelegate* _delegate = nullptr;
    QWindow* _mainWindow = nullptr;
    std::uint32_t _assumedModifiers = 0;
    bool _userActive = false;
    bool _terminationPending = false;
    std::unique_ptr<QSocketNotifier> _signals;
};

} // namespace platform
