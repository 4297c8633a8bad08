// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"

#include <QImage>
#include <QWidget>

#include <memory>

class PictureSource;

/// Shows in which colors movies are shown: the movie's own picture as it plays, or, without one, a view by day and one
/// by night. Main thread.
class PictureSample final : public QWidget {
public:
    /// The source outlives the sample.
    PictureSample(const Environment& environment, PictureSource& pictures);
    ~PictureSample() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void look();

    Environment _environment;
    PictureSource& _pictures;
    QImage _still;                           // null without a movie
    std::unique_ptr<platform::Timer> _looks; // while it can be seen
    platform::Subscription _onPreferences;
};
