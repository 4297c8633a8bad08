// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"

#include "platform/base/NotificationCenter.h"
#include "platform/base/RunLoop.h"

#include <QImage>
#include <QWidget>

#include <memory>

class PictureSource;

/// Shows what a style looks like: an overlay as the player draws it, over a still of the movie, or, without one, over a
/// light and a dark picture. It follows the settings as every overlay does. Main thread.
class StyleSample final : public QWidget {
public:
    /// The source outlives the sample.
    StyleSample(const Environment& environment, PictureSource& pictures);
    ~StyleSample() override;

    /// `key` is the style selector key.
    void showStyle(const QString& key);
    /// Takes a still of what is shown of the movie now, where the sample can be seen.
    void takeStill();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    class Scene;
    void takeStillOfNewMovie(int tries);

    Environment _environment;
    PictureSource& _pictures;
    QImage _still; // null without one
    std::unique_ptr<platform::Timer> _newMovie;
    platform::Subscription _onMovie;
    std::unique_ptr<Scene> _scene; // null before showStyle()
};
