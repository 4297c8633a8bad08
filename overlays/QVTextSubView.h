// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "overlays/QVTextOverlay.h"
#include "overlays/SubtitleMarkup.h"
#include "subtitles/SubtitleView.h"

class PictureGeometry;

/// Shows the cues of a text track: on the picture, scaled with it, clear of the controller bar, and with what the
/// markup in them asks for (QVSubtitlesMarkup). Main thread.
class QVTextSubView final : public QVTextOverlay, public SubtitleView {
public:
    /// Hidden and without a cue. The picture outlives the view.
    /// Where its cues stand: as the style and they themselves say, or at the top of the picture.
    enum class Row { asStyled, top };
    QVTextSubView(const Environment& environment, platform::Window& parent, const PictureGeometry& picture,
                  const QString& style = kQVSubtitlesOverlayStyle, Row row = Row::asStyled);

    void setSubtitle(const std::shared_ptr<QVSubtitle>& subtitle) override;
    /// Only what there is to show: without a text the panel would stand empty.
    void show() override;
    void hide() override { QVTextOverlay::hide(); }
    void orderFront() override { QVTextOverlay::orderFront(); }
    void currentSubtitlesChanged(const QVSubtitlesChangedNotification&) override {}

    void recalculateFontSize() override;
    void contentSizeChanged() override;
    void movieViewSizeChanged(const QVMovieViewSizeChangedNotification& notification) override;
    bool preferencesChanged(const QVPreferencesChangedNotification& notification) override;

protected:
    const char* logName() const override { return "QVTextSubView"; }
    void postFadeOut() override;

private:
    /// What there is to draw of the cue.
    SubtitleMarkup::Cue drawn() const;
    void draw(const SubtitleMarkup::Cue& cue);

    std::shared_ptr<QVSubtitle> _subtitle;
    const PictureGeometry& _picture;
    Row _row;
    std::optional<SubtitlePlacement::Place> _place; // that the cue asks for
};
