// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QRegion>

#include <cstdint>
#include <functional>
#include <vector>

class QPainter;

namespace platform {

class VideoLayer;
class View;
class Window;

/// Composes a root window into pixels, in this order: its background, the pictures of its views, what the views draw,
/// and the child windows, each from a cached picture at its alpha. A child's picture is drawn anew only when its
/// content, size or pixel ratio changed. Main thread.
class SceneComposer {
public:
    explicit SceneComposer(Window& root);

    /// Brings the marked part (pixels) of the target up to date; answers what was painted, which is more where a
    /// picture or a child reaches beyond it. The target is 32 bits a pixel and covers the whole content.
    QRegion compose(QImage& target, const QRegion& marked, double pixelRatio);
    /// The same without the root's background and the pictures, for a host that renders those itself.
    void drawOver(QPainter& painter, const QRegion& marked, double pixelRatio);

    /// The colour behind everything: the root's, over black where it is translucent, because nothing lies below.
    QColor background() const;

    void forEachVideoLayer(double pixelRatio, const std::function<void(VideoLayer&, const QRect&)>& visit);

    /// Whether the root's alpha is painted: where the window system does not fade windows, the content is darkened.
    void setPaintsAlpha(bool paints) { _paintsAlpha = paints; }

private:
    struct Child {
        const Window* window = nullptr;
        std::uint64_t revision = 0;
        double pixelRatio = 0;
        QImage picture;
        QRect place;   // pixels of the root that the picture covers: the child's within the root
        QPoint origin; // where the child's top left corner stands, with what it draws beyond its frame
    };

    void visitVideoLayers(const View& view, double pixelRatio,
                          const std::function<void(VideoLayer&, const QRect&)>& visit);
    bool anyChildIn(const QRegion& dirty) const;
    bool anyViewDraws(const View& view, const QRegion& dirty, double pixelRatio) const;
    void drawViews(QPainter& painter, const Window& window, const View& view, const QRegion& dirty, double pixelRatio);
    void updateChildren(double pixelRatio);
    static int overhangOf(const Window& window, double pixelRatio);
    void drawChild(Child& child, double pixelRatio);

    Window& _root;
    std::vector<Child> _children; // the shown ones, from the back to the front
    bool _paintsAlpha = false;
};

} // namespace platform
