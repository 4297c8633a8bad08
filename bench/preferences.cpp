// SPDX-License-Identifier: GPL-3.0-or-later
// How long the window of the preferences takes from being asked for to its first picture: the first time, when it is
// made, and each time after that. Run with the platform of the desktop, or QT_QPA_PLATFORM=offscreen. Processor time
// is what the program itself does; what the wall clock has beside it is the screen's.
#include "prefs/QVPreferencesController.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeVersions.h"
#include "tests/support/StandingPicture.h"
#include "tests/support/TestEnvironment.h"

#include <QApplication>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <optional>

namespace {

/// Asks for the window, and waits for the first time that it is painted.
class FirstPicture final : public QObject {
public:
    void show(QVPreferencesController& preferences) {
        QWidget& window = preferences.window();
        window.installEventFilter(this);
        _isPainted = false;
        preferences.showAbove(nullptr);
        while (!_isPainted)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        // What was asked for by painting belongs to it, too.
        QCoreApplication::sendPostedEvents();
        window.removeEventFilter(this);
    }

private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        _isPainted = _isPainted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
    bool _isPainted = false;
};

void openingTheFirstTime(benchmark::State& state) {
    TestEnvironment settings;
    FakeDesktop desktop;
    StandingPicture pictures;
    FakeVersions versions;
    FirstPicture picture;
    for (auto _ : state) {
        std::optional<QVPreferencesController> preferences(std::in_place, settings.environment, desktop, pictures,
                                                           versions);
        picture.show(*preferences);
        state.PauseTiming();
        preferences.reset();
        state.ResumeTiming();
    }
}

void openingAgain(benchmark::State& state) {
    TestEnvironment settings;
    FakeDesktop desktop;
    StandingPicture pictures;
    FakeVersions versions;
    FirstPicture picture;
    QVPreferencesController preferences(settings.environment, desktop, pictures, versions);
    picture.show(preferences);
    for (auto _ : state) {
        state.PauseTiming();
        preferences.close();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        picture.show(preferences);
    }
}

// The first time is what a person waits for: nothing is warm then, and only a process of its own shows it.
BENCHMARK(openingTheFirstTime)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(openingTheFirstTime)->Name("openingWithWarmFonts")->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(openingAgain)->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace

int main(int count, char** arguments) {
    qputenv("LUMARO_RESOURCES", LUMARO_RESOURCES_DIR);
    const QApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
