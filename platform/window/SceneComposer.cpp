// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/window/SceneComposer.h"

#include "platform/window/SceneGeometry.h"
#include "platform/window/VideoLayer.h"
#include "platform/window/View.h"
#include "platform/window/Window.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace platform {

SceneComposer::SceneComposer(Window& root)
    : _root(root) {}

void SceneComposer::forEachVideoLayer(double pixelRatio, const std::function<void(VideoLayer&, const QRect&)>& visit) {
    visitVideoLayers(_root.contentView(), pixelRatio, visit);
}

void SceneComposer::visitVideoLayers(const View& view, double pixelRatio,
                                     const std::function<void(VideoLayer&, const QRect&)>& visit) {
    for (View* child : view.subviews()) {
        if (VideoLayer* layer = child->videoLayer()) {
            visit(*layer, layer->place(sceneGeometry::toPixels(child->convertToWindow(child->pictureRect()),
                                                               _root.frame().size(), pixelRatio)));
        }
        visitVideoLayers(*child, pixelRatio, visit);
    }
}

QRegion SceneComposer::compose(QImage& target, const QRegion& marked, double pixelRatio) {
    const QRect whole = target.rect();
    QRegion dirty = marked.intersected(whole);
    // A picture is always rendered whole: what lies over any part of it is painted anew, too.
    QRegion pictures;
    forEachVideoLayer(pixelRatio, [&](VideoLayer& layer, const QRect& picture) {
        const QRect visible = picture.intersected(whole);
        if (visible.isEmpty() || !dirty.intersects(visible))
            return;
        dirty += visible;
        if (layer.renderPixels(picture, visible, target.bits(), static_cast<std::size_t>(target.bytesPerLine())))
            pictures += visible;
    });
    updateChildren(pixelRatio);
    // Nothing to paint but pictures: while a movie plays without overlays, no painter is made.
    const QRegion bare = dirty - pictures;
    const bool viewsDraw = anyViewDraws(_root.contentView(), dirty, pixelRatio);
    const bool dims = _paintsAlpha && _root.alphaValue() < 1;
    if (bare.isEmpty() && !viewsDraw && !dims && !anyChildIn(dirty))
        return dirty;
    // The target's memory without its pixel ratio: the painter's coordinates are pixels.
    QImage pixels(target.bits(), target.width(), target.height(), target.bytesPerLine(), target.format());
    QPainter painter(&pixels);
    const QColor color = background();
    for (const QRect& rect : bare)
        painter.fillRect(rect, color);
    if (viewsDraw)
        drawViews(painter, _root, _root.contentView(), dirty, pixelRatio);
    for (const Child& child : _children) {
        painter.setOpacity(static_cast<double>(child.window->alphaValue()));
        for (const QRect& rect : dirty) {
            const QRect part = rect.intersected(child.place);
            if (!part.isEmpty())
                painter.drawImage(part.topLeft(), child.picture, part.translated(-child.place.topLeft()));
        }
    }
    painter.setOpacity(1);
    if (dims) {
        for (const QRect& rect : dirty)
            painter.fillRect(rect, QColor::fromRgbF(0, 0, 0, 1.0F - _root.alphaValue()));
    }
    return dirty;
}

void SceneComposer::drawOver(QPainter& painter, const QRegion& marked, double pixelRatio) {
    drawViews(painter, _root, _root.contentView(), marked, pixelRatio);
    updateChildren(pixelRatio);
    for (const Child& child : _children) {
        painter.setOpacity(static_cast<double>(child.window->alphaValue()));
        painter.drawImage(child.place.topLeft(), child.picture);
    }
    painter.setOpacity(1);
    if (_paintsAlpha && _root.alphaValue() < 1)
        painter.fillRect(marked.boundingRect(), QColor::fromRgbF(0, 0, 0, 1.0F - _root.alphaValue()));
}

QColor SceneComposer::background() const {
    const QColor color = _root.backgroundColor();
    if (!color.isValid())
        return Qt::black;
    return QColor::fromRgbF(color.redF() * color.alphaF(), color.greenF() * color.alphaF(),
                            color.blueF() * color.alphaF());
}

bool SceneComposer::anyChildIn(const QRegion& dirty) const {
    return std::ranges::any_of(_children, [&](const Child& child) { return dirty.intersects(child.place); });
}

bool SceneComposer::anyViewDraws(const View& view, const QRegion& dirty, double pixelRatio) const {
    return std::any_of(view.subviews().begin(), view.subviews().end(), [&](const View* child) {
        const Rect drawn = child->drawnRect();
        return (!drawn.isEmpty() && dirty.intersects(sceneGeometry::toCoveringPixels(
                                        child->convertToWindow(drawn), _root.frame().size(), pixelRatio))) ||
               anyViewDraws(*child, dirty, pixelRatio);
    });
}

void SceneComposer::drawViews(QPainter& painter, const Window& window, const View& view, const QRegion& dirty,
                              double pixelRatio) {
    const QSizeF content = window.frame().size();
    for (View* child : view.subviews()) {
        const Rect drawn = child->drawnRect();
        const QRegion clip =
            dirty.intersected(sceneGeometry::toCoveringPixels(child->convertToWindow(drawn), content, pixelRatio));
        if (!drawn.isEmpty() && !clip.isEmpty()) {
            const Rect place = child->convertToWindow(child->bounds());
            painter.save();
            painter.setClipRegion(clip);
            painter.scale(pixelRatio, pixelRatio);
            painter.translate(sceneGeometry::toPainter(place, content).topLeft());
            child->draw(painter, child->bounds());
            painter.restore();
        }
        drawViews(painter, window, *child, dirty, pixelRatio);
    }
}

void SceneComposer::updateChildren(double pixelRatio) {
    std::size_t count = 0;
    for (const Window* window : _root.childWindows()) {
        if (!window->isOrderedIn() || window->alphaValue() <= 0)
            continue;
        const int beyond = overhangOf(*window, pixelRatio);
        const QRect whole = sceneGeometry::toPixels(window->frame().translated(-_root.frame().origin()),
                                                    _root.frame().size(), pixelRatio)
                                .adjusted(-beyond, -beyond, beyond, beyond);
        // What lies outside the root is never seen: no picture is made of it, however large a child is.
        const QRect place =
            whole.intersected(sceneGeometry::toPixels(_root.contentView().bounds(), _root.frame().size(), pixelRatio));
        if (place.isEmpty())
            continue;
        // Kept in the order of the windows, each with the picture it had.
        const auto begin = _children.begin() + static_cast<std::ptrdiff_t>(count);
        const auto known =
            std::find_if(begin, _children.end(), [&](const Child& child) { return child.window == window; });
        if (known == _children.end()) {
            Child fresh;
            fresh.window = window;
            _children.insert(begin, std::move(fresh));
        } else if (known != begin) {
            std::rotate(begin, known, known + 1);
        }
        Child& child = _children[count++];
        const bool holds = child.revision == window->contentRevision() && child.pixelRatio == pixelRatio &&
                           child.picture.size() == place.size() &&
                           child.place.topLeft() - child.origin == place.topLeft() - whole.topLeft();
        child.place = place;
        child.origin = whole.topLeft();
        if (!holds || child.picture.isNull())
            drawChild(child, pixelRatio);
    }
    _children.resize(count);
}

int SceneComposer::overhangOf(const Window& window, double pixelRatio) {
    return static_cast<int>(std::ceil(window.overhang() * pixelRatio));
}

void SceneComposer::drawChild(Child& child, double pixelRatio) {
    child.revision = child.window->contentRevision();
    child.pixelRatio = pixelRatio;
    if (child.picture.size() != child.place.size())
        child.picture = QImage(child.place.size(), QImage::Format_ARGB32_Premultiplied);
    child.picture.fill(Qt::transparent);
    QPainter painter(&child.picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    const int beyond = overhangOf(*child.window, pixelRatio);
    const QPoint outside = child.place.topLeft() - child.origin - QPoint(beyond, beyond);
    painter.translate(-outside);
    auto& window = const_cast<Window&>(*child.window);
    drawViews(painter, window, window.contentView(), QRegion(child.picture.rect().translated(outside)), pixelRatio);
}

} // namespace platform
