// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"

#include <QWidget>

#include <memory>

/// Shows what a style looks like: an overlay as the player draws it, over a light and a dark picture. It follows the
/// settings as every overlay does. Main thread.
class StyleSample final : public QWidget {
public:
    explicit StyleSample(const Environment& environment);
    ~StyleSample() override;

    /// `key` is the style selector key.
    void showStyle(const QString& key);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    class Scene;

    Environment _environment;
    std::unique_ptr<Scene> _scene; // null before showStyle()
};
