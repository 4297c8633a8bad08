// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/Desktop.h"

#include <QHash>

#include <functional>
#include <limits>
#include <utility>
#include <vector>

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
    int sleeps = 0;
    int terminations = 0;
    std::vector<bool> terminationReplies;

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
    void sleep() override { ++sleeps; }
    void terminate() override { ++terminations; }
    void replyToApplicationShouldTerminate(bool terminate) override { terminationReplies.push_back(terminate); }

private:
    template <class Answer>
    static Answer taken(QList<Answer>& answers, const Answer& otherwise) {
        return answers.isEmpty() ? otherwise : answers.takeFirst();
    }
};
