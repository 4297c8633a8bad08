// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/BackdropView.h"

#include "platform/base/UserDefaults.h"
#include "platform/movie/MovieToolkit.h"
#include "platform/window/Fonts.h"
#include "platform/window/ScreenScale.h"
#include "platform/window/Window.h"
#include "playback/BackdropLayout.h"
#include "playback/DropTarget.h"
#include "playback/QVMovie.h"
#include "settings/QVOverlayStyleDefaults.h"
#include "settings/SettingsKeys.h"

namespace {

/// A movie that is being opened comes before the hint would, whose fonts would hold it up.
constexpr double hintDelay = 0.5;

/// How a line looks; points of a style.
struct Line {
    float size;
    QColor color;
};
const Line movieTitle{36, QColor(235, 235, 235)}, movieDetail{26, QColor(165, 165, 165)};
const Line hintTitle{28, QColor(150, 150, 150)}, hintDetail{20, QColor(110, 110, 110)};
constexpr double edge = 24;

QString fontFamily(const Environment& environment) {
    const auto style = QVOverlayStyleDefaults::overlayStyleDefaultsWithKey(environment.settings, kQVOSDOverlayStyle);
    return style ? style->values().textFontName : QString();
}

} // namespace

BackdropView::BackdropView(const Environment& environment, const Collaborators& collaborators)
    : _environment(environment)
    , _with(collaborators) {
    addSubview(_image);
    for (platform::TextView* line : {&_title, &_detail}) {
        addSubview(*line);
        line->setLongLines(platform::LongLines::shortened);
    }
    _onMovie = environment.notifications.observe<QVPlaylistMovieChangedNotification>(
        [this](const auto& notification) { currentMovieChanged(notification.movie); });
    _onResize = environment.notifications.observe<platform::WindowDidResizeNotification>(
        [this](const platform::WindowDidResizeNotification& notification) {
            if (notification.window == window())
                layOut();
        });
}

BackdropView::~BackdropView() = default;

void BackdropView::offerHint(const Hint& hint) {
    layOut(); // what is dropped is taken from here on
    _hint = hint;
    _hintTimer = _environment.loop.schedule(hintDelay, false, [this] {
        if (!_hasMovie)
            showHint();
    });
}

void BackdropView::showHint() {
    _hinting = true;
    say(_hint->title, _hint->detail);
}

void BackdropView::currentMovieChanged(const std::shared_ptr<QVMovie>& movie) {
    _cover.reset();
    _image.setImage(QImage());
    _hasMovie = movie != nullptr;
    _hinting = false;
    if (!movie) {
        if (_hint)
            showHint();
        else
            say({}, {});
        return;
    }
    const platform::MovieInfo& info = movie->info();
    if (info.hasVideo) {
        say({}, {});
        return;
    }
    const QString name = info.url.fileName();
    say(!info.title.isEmpty() ? info.title : !name.isEmpty() ? name : info.url.toString(), info.artist);
    if (!info.hasCover)
        return;
    _cover = _with.toolkit.coverAsync(info.url, [this](const QImage& cover) {
        _image.setImage(cover);
        layOut();
    });
}

void BackdropView::say(const QString& title, const QString& detail) {
    _title.setText(title);
    _detail.setText(detail);
    layOut();
}

void BackdropView::layOut() {
    const platform::Window* shownIn = window();
    if (!shownIn)
        return;
    const QSizeF size = shownIn->frame().size();
    setFrame(platform::Rect(QPointF(0, 0), size));
    BackdropLayout::Sizes sizes{size, _image.image().size(), {0, 0}, {0, 0}, platform::screenScale(size.height())};
    // Without a text no font is asked for.
    const auto fit = [&](platform::TextView& view, const Line& line) {
        if (view.text().isEmpty())
            return QSizeF(0, 0);
        view.setFont(
            platform::fontWithFamilyName(fontFamily(_environment), line.size * static_cast<float>(sizes.scale)));
        view.setTextColor(line.color);
        view.setContainerSize(QSizeF(size.width() - 2 * edge * sizes.scale, size.height()));
        view.sizeToFit();
        return view.bounds().size();
    };
    sizes.title = fit(_title, _hinting ? hintTitle : movieTitle);
    sizes.detail = fit(_detail, _hinting ? hintDetail : movieDetail);
    const BackdropLayout::Places places = BackdropLayout::places(sizes);
    _image.setFrame(places.image);
    _title.setFrame(places.title);
    _detail.setFrame(places.detail);
}

std::uint32_t BackdropView::draggingEntered(const platform::DraggingInfo& info) {
    return _with.drops.draggingEntered(info);
}

std::uint32_t BackdropView::draggingUpdated(const platform::DraggingInfo& info) {
    return _with.drops.draggingUpdated(info);
}

void BackdropView::draggingExited() {
    _with.drops.draggingExited();
}

bool BackdropView::performDragOperation(const platform::DraggingInfo& info) {
    return _with.drops.performDragOperation(info);
}
