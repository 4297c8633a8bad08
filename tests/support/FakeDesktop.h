// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/Desktop.h"

#include <QHash>

#include <functional>
#include <limits>
#include <utility>
#include <vector>

/// A computer that goes to sleep when a test says so, and records what it is asked.
class FakePower final : public platform::Power {
public:
    std::vector<platform::PowerCommand> commands;
    platform::PowerListener* listener = nullptr;

    bool sleep() override { return take(platform::PowerCommand::sleep); }
    bool restart() override { return take(platform::PowerCommand::restart); }
    bool shutDown() override { return take(platform::PowerCommand::shutDown); }
    bool logOut() override { return take(platform::PowerCommand::logOut); }
    void setPowerListener(platform::PowerListener* wanted) override { listener = wanted; }

private:
    bool take(platform::PowerCommand command) {
        commands.push_back(command);
        return true;
    }
};

/// Receivers whose events the test makes.
class FakeRemotes final : public platform::RemoteSource {
public:
    bool available = true;
    platform::RemoteStart result = platform::RemoteStart::listening;
    platform::RemoteAccess access = platform::RemoteAccess::withOthers;
    platform::RemoteListener* listener = nullptr;
    int starts = 0;

    bool isAvailable() const override { return available; }
    platform::RemoteStart start(platform::RemoteAccess wanted, platform::RemoteListener& told) override {
        ++starts;
        access = wanted;
        if (result == platform::RemoteStart::listening)
            listener = &told;
        return result;
    }
    void stop() override { listener = nullptr; }
};

/// A desktop that records what it is asked and answers as the test says.
class FakeDesktop final : public platform::Desktop {
public:
    /// One screen of 1440 by 900 to begin with, unless others are given.
    explicit FakeDesktop(std::vector<platform::Screen> screens = {}) {
        if (!screens.empty())
            screenList = std::move(screens);
    }

    /// The alerts shown, in order; each takes the next of the answers, 1 when there is none left.
    std::vector<Alert> alerts;
    QList<int> alertAnswers;
    /// Runs while an alert is up, as the event loop does.
    std::function<void()> whileAlertIsUp;
    std::function<void()> whileOpenPanelIsUp;

    /// What open panels asked, and the folders that they began in.
    QList<platform::FileQuestion> openPanels;
    QStringList openPanelFolders;
    bool isOpenPanelOptionOn = false;
    QList<QStringList> openPanelAnswers;

    int beeps = 0;
    /// The addresses that were to be opened, and whether a program for them starts.
    QList<QUrl> openedURLs;
    bool opensURLs = true;

    std::vector<platform::Screen> screenList = {{platform::Rect(0, 0, 1440, 900), true, 1, "Main"}};
    /// By the screens' numbers; a screen that is missing cannot be read.
    QHash<std::uint32_t, float> brightnessLevels;
    std::uint32_t heldModifiers = 0;
    bool userActive = false;
    int userActiveChanges = 0;
    FakePower computer;
    FakeRemotes receivers;
    int terminations = 0;
    std::vector<bool> terminationReplies;

    /// What waits for panels, run by closePanels().
    bool panelStands = false;
    std::vector<std::function<void()>> waitingForPanels;
    void closePanels() {
        panelStands = false;
        for (const auto& work : std::exchange(waitingForPanels, {}))
            work();
    }
    bool terminating = false;

    void whenNoPanelStands(std::function<void()> work) override {
        waitingForPanels.push_back(std::move(work));
        if (!panelStands)
            closePanels();
    }
    bool isTerminating() const override { return terminating; }
    int runAlert(const Alert& alert) override {
        alerts.push_back(alert);
        if (whileAlertIsUp)
            whileAlertIsUp();
        return taken(alertAnswers, 1);
    }
    platform::FileChoice runOpenPanel(const platform::FileQuestion& question) override {
        openPanels.append(question);
        openPanelFolders.append(question.folder);
        if (whileOpenPanelIsUp)
            whileOpenPanelIsUp();
        return {taken(openPanelAnswers, {}), isOpenPanelOptionOn};
    }
    void beep() override { ++beeps; }
    std::vector<platform::Screen> screens() const override { return screenList; }
    float brightness(const platform::Screen& screen) const override {
        return brightnessLevels.value(screen.number, std::numeric_limits<float>::infinity());
    }
    void setBrightness(const platform::Screen& screen, float brightness) override {
        brightnessLevels[screen.number] = brightness;
    }
    bool openURL(const QUrl& url) override {
        openedURLs.append(url);
        return opensURLs;
    }
    std::uint32_t modifierFlags() const override { return heldModifiers; }
    void setUserActive(bool active) override {
        userActive = active;
        ++userActiveChanges;
    }
    platform::Power& power() override { return computer; }
    platform::RemoteSource& remotes() override { return receivers; }
    void terminate() override { ++terminations; }
    void replyToApplicationShouldTerminate(bool terminate) override { terminationReplies.push_back(terminate); }

private:
    template <class Answer>
    static Answer taken(QList<Answer>& answers, const Answer& otherwise) {
        return answers.isEmpty() ? otherwise : answers.takeFirst();
    }
};
