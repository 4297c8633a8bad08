// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/Allocations.h"
#include "bench/BenchedMovie.h"
#include "bench/Letters.h"
#include "overlays/OSDTexts.h"
#include "overlays/PictureGeometry.h"
#include "overlays/QVFeedbackOverlay.h"
#include "overlays/QVImageSubView.h"
#include "overlays/QVOSDOverlay.h"
#include "overlays/QVParentOverlay.h"
#include "platform/window/SceneComposer.h"
#include "platform/window/SceneGeometry.h"
#include "platform/window/VideoLayer.h"
#include "settings/QVOverlayStyleDefaults.h"
#include "settings/QVPreferencesChangedNotification.h"
#include "settings/SettingsKeys.h"
#include "subtitles/vobsub/QVVobSubSubtitles.h"
#include "tests/support/TestEnvironment.h"

#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>

namespace {

/// A screen of the benchmark's height with its main window on it, as many pixels as points.
struct Scene {
    explicit Scene(std::int64_t height)
        : root(settings.environment,
               platform::Rect(0, 0, static_cast<double>(height) * 16 / 9, static_cast<double>(height)),
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
    QRegion place(const QVChildOverlay& overlay) const {
        return platform::sceneGeometry::toCoveringPixels(overlay.frame(), root.frame().size(), 1);
    }
    void compose(const QRegion& region) { benchmark::DoNotOptimize(composer.compose(target, region, 1)); }

    TestEnvironment settings;
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
    QVTextOverlay overlay(scene.settings.environment, scene.root, kQVSubtitlesOverlayStyle);
    overlay.setTextFontSize(45); // the screen makes it larger
    scene.show(overlay, subtitle(0));
    int number = 0;
    for ([[maybe_unused]] const auto step : state) {
        overlay.setText(subtitle(++number));
        scene.compose(scene.place(overlay));
    }
}
BENCHMARK(aNewSubtitleFromTextToComposed)->ArgName("height")->Arg(1080)->Arg(2160)->Unit(benchmark::kMicrosecond);

/// What a slider of the preferences costs the movie under it, with each step: the setting written, announced, read, and
/// the subtitle drawn anew.
void aSubtitleRestyledByADraggedSlider(benchmark::State& state) {
    Scene scene(state.range(0));
    QVTextOverlay overlay(scene.settings.environment, scene.root, kQVSubtitlesOverlayStyle);
    overlay.setTextFontSize(45);
    scene.show(overlay, subtitle(0));
    auto style =
        QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(scene.settings.defaults(), kQVSubtitlesOverlayStyle);
    int step = 0;
    for ([[maybe_unused]] const auto dragged : state) {
        style->set(&OverlayStyle::shadowBlurRadius, static_cast<float>(++step % 40) * 0.5F);
        scene.settings.notifications.post(QVPreferencesChangedNotification{kQVSubtitlesOverlayStyle, {kShadowRadius}});
        scene.compose(scene.place(overlay));
    }
}
BENCHMARK(aSubtitleRestyledByADraggedSlider)->ArgName("height")->Arg(1080)->Arg(2160)->Unit(benchmark::kMicrosecond);

void tenThousandCharactersFromTextToComposed(benchmark::State& state) {
    Scene scene(state.range(0));
    QVTextOverlay overlay(scene.settings.environment, scene.root, kQVSubtitlesOverlayStyle);
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

/// A movie view that fills the scene.
class WholeScreen final : public PictureGeometry {
public:
    explicit WholeScreen(const platform::Rect& screen)
        : _screen(screen) {}
    platform::Rect pictureFrame() const override { return _screen; }
    QSizeF sizeForFitScreen(std::int32_t) const override { return _screen.size(); }
    float aspectRatio() const override { return 16.0F / 9.0F; }
    bool isControllerBarVisible() const override { return false; }
    unsigned getControllerHeight() const override { return 0; }

private:
    platform::Rect _screen;
};

/// Subpictures of 720 by 100 out of a data file, one after the other.
void aNewBitmapCueFromRunLengthsToComposed(benchmark::State& state) {
    const QTemporaryDir folder;
    const QString base = folder.filePath(QStringLiteral("film"));
    vobsub::PairWriter pair;
    pair.height = 576;
    pair.addStream("en");
    for (unsigned number = 0; number < 8; ++number)
        pair.add(0, number * 4000, lettersLike(number));
    Scene scene(state.range(0));
    NoMovie owner;
    const auto tracks =
        pair.write(base.toStdString())
            ? QVVobSubSubtitles::subtitlesWithFilePath(scene.settings.environment, base + QStringLiteral(".idx"), owner)
            : std::vector<std::shared_ptr<QVSubtitles>>();
    if (tracks.empty())
        return state.SkipWithError("no track");
    tracks[0]->preload();
    tracks[0]->waitForLoading();
    const auto cues = tracks[0]->cues();
    const WholeScreen picture(platform::Rect(QPointF(0, 0), scene.root.frame().size()));
    QVImageSubView overlay(scene.settings.environment, scene.root, picture);
    overlay.currentSubtitlesChanged(QVSubtitlesChangedNotification{tracks[0]});
    overlay.setSubtitle(cues[0]);
    scene.settings.runLoop.advance(5);
    std::size_t number = 0;
    for ([[maybe_unused]] const auto step : state) {
        overlay.setSubtitle(cues[++number % cues.size()]);
        scene.compose(scene.place(overlay));
    }
}
BENCHMARK(aNewBitmapCueFromRunLengthsToComposed)
    ->ArgName("height")
    ->Arg(1080)
    ->Arg(2160)
    ->Unit(benchmark::kMicrosecond);

/// A movie that takes no time: what is measured is what stands over it.
class Movie : public platform::View, public platform::VideoLayer {
public:
    platform::VideoLayer* videoLayer() override { return this; }
    platform::Rect pictureRect() const override { return bounds(); }
    platform::Rect drawnRect() const override { return platform::Rect(); }
    bool renderPixels(const QRect&, const QRect&, unsigned char*, std::size_t) override { return true; }
    bool beginGL(platform::GLContext&) override { return false; }
    void endGL() override {}
    bool renderGL(const QRect&, const QSize&, unsigned) override { return false; }
    void skip() override {}
};

/// Of nothing: the display is given its text.
class Texts final : public OSDTexts {
    std::int32_t timeInSeconds() const override { return 0; }
    std::int32_t durationInSeconds() const override { return 0; }
    QString currentMovieInfo() const override { return {}; }
    QString currentSubtitlesInfo() const override { return {}; }
    QString loopingInfo() const override { return {}; }
    QString volumeInfo() const override { return {}; }
};

/// A movie that fills the screen, under a subtitle of two lines, a message and the time.
struct MovieScene : Scene {
    explicit MovieScene(std::int64_t height)
        : Scene(height) {
        movie.setFrame(root.contentView().bounds());
        root.contentView().addSubview(movie);
        show(subtitles, subtitle(1));
        show(feedback, QStringLiteral("Volume: 50%"));
        show(osd, QStringLiteral("Time: 0:12:34/1:59:59"));
    }
    void composeFrame() { compose(target.rect()); }
    void setAlpha(float alpha) {
        for (QVTextOverlay* overlay : overlays)
            overlay->setAlphaValue(alpha);
    }

    Movie movie;
    const Texts texts;
    QVTextOverlay subtitles{settings.environment, root, kQVSubtitlesOverlayStyle};
    QVFeedbackOverlay feedback{settings.environment, root};
    QVOSDOverlay osd{settings.environment, root, texts};
    const std::array<QVTextOverlay*, 3> overlays{&subtitles, &feedback, &osd};
};

/// What all three overlays cost when a movie's picture has just been put under them.
void composingAFrameUnderThreeOverlays(benchmark::State& state) {
    MovieScene scene(state.range(0));
    if (state.range(1) == 0)
        for (QVTextOverlay* overlay : scene.overlays)
            overlay->orderOut();
    scene.composeFrame(); // the overlays' own pictures
    const std::uint64_t before = allocationsSoFar();
    for ([[maybe_unused]] const auto step : state)
        scene.composeFrame();
    state.counters["allocations"] =
        benchmark::Counter(static_cast<double>(allocationsSoFar() - before), benchmark::Counter::kAvgIterations);
}
BENCHMARK(composingAFrameUnderThreeOverlays)
    ->ArgNames({"height", "shown"})
    ->ArgsProduct({{1080, 2160}, {0, 1}})
    ->Unit(benchmark::kMicrosecond);

/// A second of a movie of 30 frames, in which the overlays take twenty steps of a fade, each composed by itself, or
/// stand transparent. Ten milliseconds of it are a hundredth of a core, and of a frame's time.
void aSecondOfAMovieWhileThreeOverlaysFade(benchmark::State& state) {
    constexpr int frames = 30, steps = 20;
    MovieScene scene(state.range(0));
    scene.setAlpha(0);
    for ([[maybe_unused]] const auto second : state) {
        for (int frame = 0, step = 0; frame < frames; ++frame) {
            scene.composeFrame();
            if (state.range(1) != 0 && (frame + 1) * steps / frames > step) {
                scene.setAlpha(static_cast<float>(++step) / steps);
                scene.composeFrame();
            }
        }
    }
}
BENCHMARK(aSecondOfAMovieWhileThreeOverlaysFade)
    ->ArgNames({"height", "fading"})
    ->ArgsProduct({{1080, 2160}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

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
