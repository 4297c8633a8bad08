// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/qt/QtDesktop.h"

#include "platform/base/Localization.h"
#include "platform/desktop/Application.h"
#include "platform/desktop/qt/LostDisplay.h"
#include "platform/desktop/qt/PanelPlacement.h"
#include "platform/window/SceneGeometry.h"
#include "platform/window/qt/ForeignPanel.h"
#include "platform/window/qt/QtEvents.h"

#include <QApplication>
#include <QDesktopServices>
#include <QGridLayout>
#include <QLibraryInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QTranslator>
#include <QWindow>

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <limits>
#include <utility>

namespace platform {

namespace {

int sSignalPipe[2] = {-1, -1};

void signalArrived(int) {
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = ::write(sSignalPipe[1], &byte, 1);
}

/// The texts of Qt's own panels, in the user's language where they are installed.
void translateOwnTexts(QApplication& application) {
    for (const QString& language : localizationLanguages()) {
        if (language.startsWith(QStringLiteral("en")))
            return;
        for (const QString& name : translationNames(language)) {
            auto translation = std::make_unique<QTranslator>();
            if (translation->load(QStringLiteral("qtbase_") + name, QLibraryInfo::path(QLibraryInfo::TranslationsPath),
                                  QStringLiteral("."))) {
                translation->setParent(&application);
                QApplication::installTranslator(translation.release());
                return;
            }
        }
    }
}

/// By itself a box is as wide as its title, and breaks what is said into short lines.
void widen(QMessageBox& box) {
    constexpr int width = 420;
    if (auto* layout = qobject_cast<QGridLayout*>(box.layout()))
        layout->addItem(new QSpacerItem(width, 0), layout->rowCount(), 0, 1, layout->columnCount());
}

QMessageBox::Icon iconOf(Desktop::AlertIcon icon) {
    switch (icon) {
    case Desktop::AlertIcon::information:
        return QMessageBox::Information;
    case Desktop::AlertIcon::question:
        return QMessageBox::Question;
    case Desktop::AlertIcon::warning:
        break;
    }
    return QMessageBox::Warning;
}

} // namespace

QtDesktop::QtDesktop(int& argumentCount, char** arguments, const QString& applicationName) {
    // The event loop turns twice for each picture: the plain one costs less than GLib's, and nothing here needs that.
    if (!qEnvironmentVariableIsSet("QT_NO_GLIB"))
        qputenv("QT_NO_GLIB", "1");
    _application = std::make_unique<QApplication>(argumentCount, arguments);
    QApplication::setApplicationName(applicationName);
    translateOwnTexts(*_application);
    // Said outright: by itself Qt goes by its own texts, which may be there in another language, or not at all.
    QApplication::setLayoutDirection(localizationDirection());
    QApplication::setDesktopFileName(QStringLiteral("org.lumaro.Lumaro"));
    QApplication::setQuitOnLastWindowClosed(false);
}

QtDesktop::~QtDesktop() {
    if (_signals) {
        std::signal(SIGTERM, SIG_DFL);
        std::signal(SIGINT, SIG_DFL);
        std::signal(SIGHUP, SIG_DFL);
        _signals.reset();
        ::close(sSignalPipe[0]);
        ::close(sSignalPipe[1]);
    }
}

int QtDesktop::run(ApplicationDelegate& delegate) {
    _delegate = &delegate;
    followSignals();
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive) {
            _delegate->applicationWillBecomeActive();
            _delegate->applicationDidBecomeActive();
        } else if (!_terminationPending && !ForeignPanel::isUp()) {
            _delegate->applicationWillResignActive();
        }
    });
    const auto screensChanged = [this] { _delegate->applicationDidChangeScreenParameters(); };
    const auto follow = [this, screensChanged](QScreen* screen) {
        connect(screen, &QScreen::geometryChanged, this, screensChanged);
    };
    for (QScreen* screen : QGuiApplication::screens())
        follow(screen);
    connect(qApp, &QGuiApplication::screenAdded, this, follow);
    connect(qApp, &QGuiApplication::screenAdded, this, screensChanged);
    connect(qApp, &QGuiApplication::screenRemoved, this, screensChanged);
    connect(qApp, &QGuiApplication::primaryScreenChanged, this, screensChanged);
    const auto sessionSaves = [this] { _delegate->applicationSavesSession(); };
    connect(qApp, &QGuiApplication::commitDataRequest, this, sessionSaves);
    connect(qApp, &QGuiApplication::saveStateRequest, this, sessionSaves);

    delegate.applicationWillFinishLaunching();
    delegate.applicationDidFinishLaunching();
    const LostDisplay onLostDisplay([this] {
        if (_delegate)
            _delegate->applicationLostDisplay();
    });
    const int status = QApplication::exec();
    disconnect(qApp, nullptr, this, nullptr);
    delegate.applicationWillTerminate();
    setUserActive(false);
    _delegate = nullptr;
    return status;
}

void QtDesktop::followSignals() {
    if (::pipe2(sSignalPipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    _signals = std::make_unique<QSocketNotifier>(sSignalPipe[0], QSocketNotifier::Read);
    connect(_signals.get(), &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (::read(sSignalPipe[0], &byte, 1) == 1) {
        }
        terminate();
    });
    std::signal(SIGTERM, signalArrived);
    std::signal(SIGINT, signalArrived);
    std::signal(SIGHUP, signalArrived);
}

int QtDesktop::runAlert(const Alert& alert) {
    const int withoutAnswer = !alert.otherButton.isEmpty() ? -1 : !alert.alternateButton.isEmpty() ? 0 : 1;
    if (_terminationPending)
        return withoutAnswer;
    QMessageBox box;
    box.setIcon(iconOf(alert.icon));
    box.setText(alert.title);
    box.setInformativeText(alert.message);
    box.setTextFormat(Qt::PlainText); // file names are no markup
    QPushButton* usual = box.addButton(alert.defaultButton, QMessageBox::AcceptRole);
    QPushButton* alternate =
        alert.alternateButton.isEmpty() ? nullptr : box.addButton(alert.alternateButton, QMessageBox::RejectRole);
    QPushButton* other =
        alert.otherButton.isEmpty() ? nullptr : box.addButton(alert.otherButton, QMessageBox::RejectRole);
    box.setDefaultButton(usual);
    box.setEscapeButton(other ? other : alternate ? alternate : usual);
    widen(box);
    standAbove(box, _mainWindow);
    box.exec();
    if (other && box.clickedButton() == other)
        return -1;
    if (alternate && box.clickedButton() == alternate)
        return 0;
    return box.clickedButton() ? 1 : withoutAnswer; // none: the application is ending
}

FileChoice QtDesktop::runOpenPanel(const FileQuestion& question) {
    if (_terminationPending)
        return {};
    if (_services.askForFiles) {
        if (const auto choice = runForeignPanel(_services.askForFiles, question, _mainWindow))
            return *choice;
        if (_terminationPending)
            return {};
    }
    return runQtPanel(question, _mainWindow);
}

void QtDesktop::beep() {
    QApplication::beep();
}

std::vector<Screen> QtDesktop::screens() const {
    std::vector<Screen> result;
    const QScreen* main = QGuiApplication::primaryScreen();
    if (!main)
        return result;
    std::uint32_t number = 0;
    const auto add = [&](const QScreen* screen) {
        result.push_back({sceneGeometry::fromWindowSystem(screen->geometry(), main->geometry().height()), true,
                          ++number, screen->name()});
    };
    add(main);
    for (const QScreen* screen : QGuiApplication::screens()) {
        if (screen != main)
            add(screen);
    }
    return result;
}

float QtDesktop::brightness(const Screen& screen) const {
    return _services.brightness ? _services.brightness(screen.name) : std::numeric_limits<float>::infinity();
}

void QtDesktop::setBrightness(const Screen& screen, float brightness) {
    if (_services.setBrightness)
        _services.setBrightness(screen.name, brightness);
}

bool QtDesktop::openURL(const QUrl& url) {
    return url.isValid() && QDesktopServices::openUrl(url);
}

std::uint32_t QtDesktop::modifierFlags() const {
    return qtEvents::modifierFlags(QGuiApplication::queryKeyboardModifiers()) | _assumedModifiers;
}

void QtDesktop::setUserActive(bool active) {
    if (active == _userActive)
        return;
    _userActive = active;
    if (_services.setUserActive)
        _services.setUserActive(active);
}

void QtDesktop::terminate() {
    if (_terminationPending || !_delegate)
        return;
    _terminationPending = true;
    _panelQueue.clear();
    switch (_delegate->applicationShouldTerminate()) {
    case ApplicationDelegate::TerminateReply::cancel:
        _terminationPending = false;
        break;
    case ApplicationDelegate::TerminateReply::now:
        replyToApplicationShouldTerminate(true);
        break;
    case ApplicationDelegate::TerminateReply::later:
        break;
    }
}

void QtDesktop::replyToApplicationShouldTerminate(bool terminate) {
    if (!_terminationPending)
        return;
    if (terminate)
        QCoreApplication::exit(0); // also ends the event loops of panels that are up
    else
        _terminationPending = false;
}

} // namespace platform
