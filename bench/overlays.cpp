// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/SettingsKeys.h"
#include "overlays/QVFeedbackOverlay.h"
#include "overlays/QVOSDOverlay.h"
#include "overlays/QVParentOverlay.h"
#include "platform/window/SceneComposer.h"
#include "tests/support/TestSettings.h"

#include <QGuiApplication>
#include <QImage>

#include <benchmark/benchmark.h>

#include <vector>

namespace {

/// A screen of the benchmark's height with its main window on it, as many pixels as points.
struct Scene {
    explicit Scene(std::int64_t height)
        : root(QRectF(0, 0, static_cast<double>(height) * 16 / 9, static_cast<double>(height)),
               kQVFullscreenOverlayStyle)
        , target(root.frame().size().toSize(), QImage::Format_RGB32) {
        root.orderFront();
        root.show();
        settings.runLoop.advance(5);
        target.fill(Qt::darkGray);
    }

    void show(QVTextOverlay& overlay, const QString& text) {
        overlay.setText(text);
        overlay.show();
        settings.runLoop.advance(5);
    }
    /// The part of the target that the overlay covers.
    QRegion place(const QVTextOverlay& overlay) const {
        const QRectF frame = overlay.frame();
        return QRectF(frame.x(), root.frame().height() - frame.bottom(), frame.width(), frame.height()).toAlignedRect();
    }
    void compose(const QRegion& region) { benchmark::DoNotOptimize(composer.compose(target, region, 1)); }

    TestSettings settings;
    QVParentOverlay root;
    platform::SceneComposer composer{root};
    QImage target;
};

QString subtitle(int number) {
    return QStringLiteral("The lighthouse keeper saw %1 ships go by,\nand waved his hat to every one of them.")
        .arg(number);
}

void aNewSubtitleFromTextToComposed(benchmark::State& state) {
    Scene scene(state.range(0));
    QVTextOverlay overlay(&scene.root, kQVSubtitlesOverlayStyle);
    overlay.setTextFontSize(static_cast<float>(state.range(0)) / 24);
    scene.show(overlay, subtitle(0));
    int number = 0;
    for ([[maybe_unused]] const auto step : state) {
        overlay.setText(subtitle(++number));
        scene.compose(scene.place(overlay));
    }
}
BENCHMARK(aNewSubtitleFromTextToComposed)->ArgName("height")->Arg(1080)->Arg(2160)->Unit(benchmark::kMicrosecond);

void tenThousandCharactersFromTextToComposed(benchmark::State& state) {
    Scene scene(state.range(0));
    QVTextOverlay overlay(&scene.root, kQVSubtitlesOverlayStyle);
    scene.show(overlay, subtitle(0));
    int number = 0;
    for ([[maybe_unused]] const auto step : state) {
        overlay.setText(subtitle(++number).repeated(200).left(10'000));
        scene.compose(scene.place(overlay));
    }
}
BENCHMARK(tenThousandCharactersFromTextToComposed)
    ->ArgName("height")
    ->Arg(1080)
    ->Arg(2160)
    ->Unit(benchmark::kMillisecond);

/// What the marked pixels of all three overlays cost when a movie's picture has just been put under them.
void composingAFrameUnderThreeOverlays(benchmark::State& state) {
    Scene scene(state.range(0));
    QVTextOverlay subtitles(&scene.root, kQVSubtitlesOverlayStyle);
    QVFeedbackOverlay feedback(&scene.root);
    QVOSDOverlay osd(&scene.root);
    scene.show(subtitles, subtitle(1));
    scene.show(feedback, QStringLiteral("Volume: 50%"));
    scene.show(osd, QStringLiteral("Time: 0:12:34/1:59:59"));
    const bool shown = state.range(1) != 0;
    for (QVTextOverlay* overlay : std::vector<QVTextOverlay*>{&subtitles, &feedback, &osd}) {
        if (!shown)
            overlay->orderOut();
    }
    const QRegion all = scene.place(subtitles) + scene.place(feedback) + scene.place(osd);
    for ([[maybe_unused]] const auto step : state)
        scene.compose(all);
}
BENCHMARK(composingAFrameUnderThreeOverlays)
    ->ArgNames({"height", "shown"})
    ->ArgsProduct({{1080, 2160}, {0, 1}})
    ->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LUMARO_RESOURCES", LUMARO_RESOURCES_DIR);
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
