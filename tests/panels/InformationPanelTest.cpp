// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/panels/InformationPanel.h"

#include "control/CurrentCommands.h"
#include "platform/base/Localization.h"
#include "subtitles/QVSubtitlesController.h"
#include "subtitles/SubtitleView.h"
#include "tests/support/PlaybackRig.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>

#include <gtest/gtest.h>

namespace {

using platform::MovieTrack;

class NoViews final : public SubtitleScene {
    std::unique_ptr<SubtitleView> createTextView() override { return nullptr; }
    std::unique_ptr<ImageSubtitleView> createImageView() override { return nullptr; }
    std::shared_ptr<SubtitleOwner> ownerOf(const std::shared_ptr<QVMovie>& movie) override { return movie; }
    std::shared_ptr<SubtitleOwner> shownMovie() override { return nullptr; }
};

class Information : public testing::Test, protected PlaybackRig {
protected:
    Information() { platform::setLocalizationLanguages({"en"}); }

    static void press(QWidget& target, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(&target, &event);
    }
    static QLabel* labelOf(const InformationPanel& panel, const QString& text) {
        for (QLabel* label : panel.findChildren<QLabel*>())
            if (label->text() == text)
                return label;
        return nullptr;
    }

    NoViews scene;
    QVSubtitlesController subtitles{settings.environment, scene};
    MovieInformation information{view, subtitles};
    CurrentCommands commandTable{settings.environment};
};

} // namespace

TEST_F(Information, is_worded_for_people_and_leaves_out_what_is_not_known) {
    platform::MovieInfo info = ScriptedToolkit::plainMovie(QUrl("file:///movies/Film.mkv"));
    info.duration = 5025 * 600;
    info.fileSize = 3 << 20;
    info.bitRate = 12'340'000;
    info.dynamicRange = {platform::DynamicRange::Transfer::pq, 1000};
    info.hasAudio = true;
    info.tracks = {{.kind = MovieTrack::Kind::video, .id = 1},
                   {.kind = MovieTrack::Kind::audio, .id = 1, .language = "ger", .codec = "ac3", .channels = 6},
                   {.kind = MovieTrack::Kind::audio, .id = 2, .language = "eng", .codec = "aac", .channels = 2},
                   {.kind = MovieTrack::Kind::subtitles, .id = 1, .language = "eng", .codec = "subrip"}};
    QVMovie movie(settings.environment, movies, info);
    movie.setAudioTrack(2);
    platform::PlaybackFacts facts{.container = "mkv",
                                  .videoCodec = "hevc",
                                  .pixelFormat = "yuv420p10",
                                  .transfer = "pq",
                                  .primaries = "bt.2020",
                                  .audioCodec = "aac",
                                  .channels = "stereo",
                                  .audioOutput = "pulse",
                                  .hardwareDecoder = "vaapi",
                                  .storedSize = {720, 576},
                                  .displayedSize = {1024, 576},
                                  .frameRate = 24000.0 / 1001,
                                  .measuredFrameRate = 12.04,
                                  .videoBitRate = 5'000'000,
                                  .audioBitRate = 128'400,
                                  .sampleRate = 44100,
                                  .framesShown = 1234,
                                  .framesLate = 5,
                                  .framesLeftOut = 6,
                                  .bufferSeconds = 7.25,
                                  .bufferSpeed = 250'000};
    EXPECT_EQ(MovieInformation::textOf(MovieInformation::groupsOf(movie, "English", facts)).toStdString(),
              "File\nName: Film.mkv\nContainer: mkv\nDuration: 1:23:45\nFile size: 3.00 MiB\nBit rate: 12.3 Mbit/s\n\n"
              "Picture\nCodec: hevc\nDecoder: Hardware (vaapi)\nSize: 720 × 576, displayed as 1024 × 576\n"
              "Frame rate: 23.976 a second, now 12\nDynamic range: HDR (PQ), 1,000 cd/m²\n"
              "Color: yuv420p10, bt.2020\nBit rate: 5 Mbit/s\n\n"
              "Sound\nCodec: aac\nChannels: stereo\nSample rate: 44.1 kHz\nBit rate: 128 kbit/s\nOutput: pulse\n\n"
              "Tracks\nSound: German, 5.1, AC-3\nSound: English, Stereo, AAC (playing)\nSubtitles: English, subrip\n"
              "Subtitles shown: English\n\n"
              "Frames\nShown: 1,234\nLate: 5\nLeft out: 6\n\nBuffer\nReady: 7.3 s\nFilling: 2 Mbit/s\n");
    facts = {.transfer = "bt.1886",
             .storedSize = {640, 480},
             .displayedSize = {640, 480},
             .frameRate = 25,
             .measuredFrameRate = 25.1};
    const MovieInformation::Groups groups = MovieInformation::groupsOf(movie, {}, facts);
    ASSERT_GT(groups.size(), 1U);
    EXPECT_EQ(MovieInformation::textOf({groups[1]}).toStdString(),
              "Picture\nDecoder: Software\nSize: 640 × 480\nFrame rate: 25 a second\nDynamic range: Standard\n");
}

TEST_F(Information, is_renewed_while_it_is_shown_copied_whole_or_in_part_and_closed_by_its_keys) {
    show();
    player().playbackFacts.framesLate = 41;
    InformationPanel panel(settings.runLoop, information, commandTable);
    panel.toggleAbove(nullptr);
    ASSERT_TRUE(panel.isVisible());
    QLabel* late = labelOf(panel, "41");
    ASSERT_TRUE(late);
    EXPECT_EQ(late->accessibleName(), "Late: 41");
    player().playbackFacts.framesLate = 42;
    settings.runLoop.advance(1.1);
    EXPECT_EQ(late->text(), "42");
    press(*late, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), panel.text());
    EXPECT_TRUE(panel.text().contains("Late: 42\n"));
    // What is selected stays until it was copied.
    late->setSelection(0, 2);
    player().playbackFacts.framesLate = 43;
    settings.runLoop.advance(1.1);
    press(panel, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "42");
    view.setMovie(nullptr);
    settings.runLoop.advance(1.1);
    EXPECT_TRUE(panel.isVisible() && panel.text().isEmpty() && labelOf(panel, "No movie"));

    for (const auto key : {Qt::Key_Escape, Qt::Key_I}) {
        press(panel, key);
        EXPECT_FALSE(panel.isVisible());
        panel.toggleAbove(nullptr);
        EXPECT_TRUE(panel.isVisible());
    }
    panel.toggleAbove(nullptr);
    EXPECT_FALSE(panel.isVisible());
    show();
    settings.runLoop.advance(5);
    EXPECT_EQ(panel.text(), QString()) << "a hidden one asks nothing";
}
