// SPDX-License-Identifier: GPL-3.0-or-later
// How the picture is shown otherwise than its file says: its shape, its fields, its colours.
#include "control/QVMovieController.h"

#include "context/FeedbackDisplay.h"
#include "control/CurrentCommands.h"
#include "platform/base/Localization.h"
#include "platform/desktop/Desktop.h"
#include "platform/movie/MovieToolkit.h"
#include "playback/PictureColors.h"
#include "playback/QVMovie.h"
#include "playback/QVMovieView.h"

#include <algorithm>
#include <array>
#include <cstdlib>

using platform::Deinterlacing;
using platform::localizedString;
using platform::PictureAdjustment;
using platform::PictureShape;

namespace {

struct Aspect {
    double value;
    const char* title;
};
constexpr std::array<Aspect, 4> aspects{{{0, "Automatic"}, {4.0 / 3, "4:3"}, {16.0 / 9, "16:9"}, {2.35, "2.35:1"}}};
constexpr std::array<const char*, 3> deinterlacings{"Automatic", "On", "Off"};

/// What the arguments -5 to -1 and 1 to 5 of the command mean.
struct Adjusted {
    int PictureAdjustment::*value;
    const char* confirmation;
};
constexpr std::array<Adjusted, 5> adjusted{{{&PictureAdjustment::contrast, "Contrast: %@"},
                                            {&PictureAdjustment::brightness, "Brightness: %@"},
                                            {&PictureAdjustment::gamma, "Gamma: %@"},
                                            {&PictureAdjustment::saturation, "Saturation: %@"},
                                            {&PictureAdjustment::hue, "Hue: %@"}}};
constexpr int adjustmentStep = 2;

std::size_t positionOf(const PictureShape& shape) {
    const auto found = std::ranges::find(aspects, shape.aspect, &Aspect::value);
    return found == aspects.end() ? 0 : static_cast<std::size_t>(found - aspects.begin());
}

QString localized(const char* key) {
    return localizedString(QString::fromUtf8(key));
}

} // namespace

void QVMovieController::setAspect(std::int32_t position, Feedback) {
    const auto index = static_cast<std::size_t>(position);
    if (!_with.view.movie() || index >= aspects.size())
        return;
    PictureShape shape = _with.view.shape();
    shape.aspect = aspects[index].value;
    _with.view.setShape(shape);
    post("Aspect: %@", localized(aspects[index].title));
}

void QVMovieController::nextAspect(std::int32_t, Feedback feedback) {
    setAspect(static_cast<std::int32_t>((positionOf(_with.view.shape()) + 1) % aspects.size()), feedback);
}

bool QVMovieController::validateAspect(platform::MenuItem& item) const {
    item.state = static_cast<std::size_t>(item.tag) == positionOf(_with.view.shape());
    return _with.view.movie() != nullptr;
}

void QVMovieController::fillAspectMenu(platform::Menu& menu) {
    menu.removeAllItems();
    for (std::size_t i = 0; i < aspects.size(); ++i)
        menu.addItem(localized(aspects[i].title), QString::fromLatin1(setAspectOperation), static_cast<int>(i));
}

void QVMovieController::setDeinterlacing(std::int32_t when, Feedback) {
    const auto index = static_cast<std::size_t>(when);
    if (index >= deinterlacings.size())
        return;
    _with.view.setDeinterlacing(static_cast<Deinterlacing>(when));
    post("Deinterlacing: %@", localized(deinterlacings[index]));
}

void QVMovieController::nextDeinterlacing(std::int32_t, Feedback feedback) {
    const auto next = (static_cast<std::size_t>(_with.view.deinterlacing()) + 1) % deinterlacings.size();
    setDeinterlacing(static_cast<std::int32_t>(next), feedback);
}

bool QVMovieController::validateDeinterlacing(platform::MenuItem& item) const {
    item.state = item.tag == static_cast<int>(_with.view.deinterlacing());
    return true;
}

void QVMovieController::fillDeinterlacingMenu(platform::Menu& menu) {
    menu.removeAllItems();
    for (std::size_t i = 0; i < deinterlacings.size(); ++i)
        menu.addItem(localized(deinterlacings[i]), QString::fromLatin1(setDeinterlacingOperation), static_cast<int>(i));
}

void QVMovieController::cropBars(std::int32_t, Feedback) {
    const auto movie = _with.view.movie();
    if (!movie) {
        _with.desktop.beep();
        return;
    }
    PictureShape shape = _with.view.shape();
    if (!shape.crop.isNone()) {
        shape.crop = {};
        _with.view.setShape(shape);
        post("Crop: Off");
        return;
    }
    const double duration = static_cast<double>(movie->duration()) / movie->timeScale();
    const auto found = [this, weak = std::weak_ptr(movie)](const PictureShape::Crop& crop) {
        const auto cropped = weak.lock();
        if (!cropped || cropped != _with.view.movie())
            return;
        PictureShape cut = _with.view.shape();
        cut.crop = crop;
        _with.view.setShape(cut);
        post(crop.isNone() ? "No Black Bars" : "Crop: On");
    };
    _barsSought = _with.toolkit.blackBarsAsync(movie->url(), duration, found);
}

bool QVMovieController::validateCropping(platform::MenuItem& item) const {
    item.state = !_with.view.shape().crop.isNone();
    return _with.view.movie() != nullptr;
}

void QVMovieController::turnPicture(std::int32_t, Feedback) {
    PictureShape shape = _with.view.shape();
    shape.quarterTurns = (shape.quarterTurns + 1) % 4;
    _with.view.setShape(shape);
    if (_with.view.movie())
        post("Turned by %d°", QString::number(90 * shape.quarterTurns));
}

void QVMovieController::mirrorPicture(std::int32_t, Feedback) {
    PictureShape shape = _with.view.shape();
    shape.mirrored = !shape.mirrored;
    _with.view.setShape(shape);
    if (_with.view.movie())
        post(shape.mirrored ? "Mirror: On" : "Mirror: Off");
}

bool QVMovieController::validateMirroring(platform::MenuItem& item) const {
    item.state = _with.view.shape().mirrored;
    return _with.view.movie() != nullptr;
}

/// The argument's size says what, its sign says whether less or more; 0 leaves the colours as they are in the movie.
void QVMovieController::adjustPicture(std::int32_t argument, Feedback) {
    PictureAdjustment adjustment = _with.view.adjustment();
    const auto index = static_cast<std::size_t>(std::abs(argument)) - 1;
    if (argument == 0) {
        PictureColors::store(_environment, {});
        post("Original Colors");
    } else if (index < adjusted.size()) {
        int& value = adjustment.*adjusted[index].value;
        value = std::clamp(value + (argument > 0 ? adjustmentStep : -adjustmentStep), -PictureColors::greatest,
                           PictureColors::greatest);
        PictureColors::store(_environment, adjustment);
        post(adjusted[index].confirmation, value > 0 ? u'+' + QString::number(value) : QString::number(value));
    }
}

bool QVMovieController::validateAdjusting(platform::MenuItem& item) const {
    return item.tag != 0 || _with.view.adjustment() != PictureAdjustment();
}

void QVMovieController::fillColorsMenu(platform::Menu& menu) {
    menu.removeAllItems();
    for (const Command& command : _with.commands.all()) {
        if (command.operation.name != adjustPictureOperation)
            continue;
        if (command.argument == 0)
            menu.addSeparator();
        _with.commands.showKey(menu.addItem(localizedString(QString::fromUtf8(command.title)),
                                            QString::fromLatin1(adjustPictureOperation), command.argument),
                               command.name);
    }
}
