// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVOSDOverlay.h"

#include "overlays/ClockText.h"
#include "overlays/OSDTexts.h"
#include "platform/base/Localization.h"

#include <utility>

namespace {

enum DisplayType { nothing, playingTime, currentMovie, subtitleTrack, loopingMode, volume };

std::function<QVOSDOverlay&()> sShared;

} // namespace

QVOSDOverlay& QVOSDOverlay::sharedOSDOverlay() {
    return sShared();
}

void QVOSDOverlay::setShared(std::function<QVOSDOverlay&()> overlay) {
    sShared = std::move(overlay);
}

QVOSDOverlay::QVOSDOverlay(const Environment& environment, platform::Window& parent, const OSDTexts& texts)
    : QVTextOverlay(environment, parent, kQVOSDOverlayStyle, LongLines::shortened)
    , _texts(texts) {
    orderFront();
    platform::NotificationCenter& center = environment.notifications;
    _onMovieTime =
        center.observe<QVMovieInterestingTimeNotification>([this](const QVMovieInterestingTimeNotification&) {
            updateDisplayOfType(playingTime);
            // The movie's text names its chapter.
            if (_type == currentMovie && textOfType(currentMovie) != text())
                updateDisplay();
        });
    _onSubtitles = center.observe<QVSubtitlesChangedNotification>(
        [this](const QVSubtitlesChangedNotification& notification) { currentSubtitlesChanged(notification); });
    _onVolume = center.observe<QVMovieVolumeChangedNotification>(
        [this](const QVMovieVolumeChangedNotification&) { updateDisplayOfType(volume); });
    _onLooping = center.observe<QVPlaylistLoopingChangedNotification>(
        [this](const QVPlaylistLoopingChangedNotification&) { updateDisplayOfType(loopingMode); });
}

QString QVOSDOverlay::textOfType(int type) const {
    switch (type) {
    case playingTime:
        return platform::localizedFormat(QStringLiteral("Time: %@/%@"),
                                         {stringWithTimeIntervalInSeconds(_texts.timeInSeconds()),
                                          stringWithTimeIntervalInSeconds(_texts.durationInSeconds())});
    case currentMovie:
        return platform::localizedFormat(QStringLiteral("Movie: %@"), {_texts.currentMovieInfo()});
    case subtitleTrack:
        return _texts.currentSubtitlesInfo();
    case loopingMode:
        return _texts.loopingInfo();
    case volume:
        return _texts.volumeInfo();
    default:
        return {};
    }
}

void QVOSDOverlay::setDisplayType(int type) {
    if (type == _type)
        return;
    _type = type;
    updateDisplay();
}

void QVOSDOverlay::cycleDisplays(int step) {
    if (_type == volume && step == 1)
        _type = nothing;
    else if (_type == nothing && step == -1)
        _type = volume;
    else
        _type += step;
    updateDisplay();
}

void QVOSDOverlay::updateDisplay() {
    if (_type == nothing) {
        hide();
    } else if (_type >= playingTime && _type <= volume) {
        setText(textOfType(_type));
        show();
    }
}

void QVOSDOverlay::updateDisplayOfType(int type) {
    if (_type == type)
        updateDisplay();
}

void QVOSDOverlay::currentMovieChanged(const QVPlaylistMovieChangedNotification&) {
    updateDisplayOfType(playingTime);
    updateDisplayOfType(currentMovie);
}

void QVOSDOverlay::currentSubtitlesChanged(const QVSubtitlesChangedNotification&) {
    updateDisplayOfType(subtitleTrack);
}
