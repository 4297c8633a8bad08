// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/QVImageOverlay.h"
#include "subtitles/SubtitleView.h"

#include <optional>

class PictureGeometry;
class QVVobSubInfo;

/// Shows the cues of a bitmap track where they stand in their frame, which lies over the picture. Main thread.
class QVImageSubView final : public QVImageOverlay, public ImageSubtitleView {
public:
    /// Hidden and without a cue. The picture outlives the view.
    QVImageSubView(const Environment& environment, platform::Window& parent, const PictureGeometry& picture,
                   const QString& style = kQVVobSubOverlayStyle);

    void setSubtitle(const std::shared_ptr<QVSubtitle>& subtitle) override;
    /// Only what there is to show: without an image the panel would stand empty.
    void show() override;
    void hide() override { QVImageOverlay::hide(); }
    void orderFront() override { QVImageOverlay::orderFront(); }
    // What the track asks for counts where the user chose nothing for the style.
    void setMaxAlpha(float alpha) override;
    void setFadingInInterval(double seconds) override;
    void setFadingOutInterval(double seconds) override;

    void currentSubtitlesChanged(const QVSubtitlesChangedNotification& notification) override;
    void contentSizeChanged() override;
    void movieViewSizeChanged(const QVMovieViewSizeChangedNotification& notification) override;

    /// Width by height of the frame that the cues stand on; 1 while no bitmap track is current.
    float aspect() const { return _aspect; }

protected:
    const char* logName() const override { return "QVImageSubView"; }
    void postFadeOut() override;
    bool takeStyle(const QString& key, const OverlayStyle& style) override;

private:
    void _recalculateAspect();
    void _recalculateScale();
    bool hasImage() const;
    void takeFromTrack();

    std::shared_ptr<QVSubtitle> _subtitle;
    float _aspect = 1.0F;
    const PictureGeometry& _picture;
    struct {
        std::optional<float> maxAlpha;
        std::optional<double> fadingInInterval;
        std::optional<double> fadingOutInterval;
    } _ofTrack;
    /// Of the current track; gone with it, together with what was taken out of an archive.
    std::weak_ptr<const QVVobSubInfo> _info;
};
