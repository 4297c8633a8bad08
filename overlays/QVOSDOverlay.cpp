// SPDX-License-Identifier: GPL-3.0-or-later
#include "overlays/QVOSDOverlay.h"

#include "context/QVAppContext.h"
#include "overlays/ClockText.h"
#include "overlays/OSDTexts.h"
#include "platform/base/Localization.h"

namespace {

enum DisplayType { nothing, playingTime, currentMovie, subtitleTrack, loopingMode, volume };

std::unique_ptr<QVOSDOverlay> sShared;
const OSDTexts* sTexts = nullptr;

QString textOfType(int type) {
    if (!sTexts)
        return {};
    switch (type) {
    case playingTime:
        return platform::localizedFormat(QStringLiteral("Time: %@/%@"),
                                         {stringWithTimeIntervalInSeconds(sTexts->timeInSeconds()),
                                          stringWithTimeIntervalInSeconds(sTexts->durationInSeconds())});
    case currentMovie:
        return platform::localizedFormat(QStringLiteral("Movie: %@"), {sTexts->currentMovieInfo()});
    case subtitleTrack:
        return sTexts->currentSubtitlesInfo();
    case loopingMode:
        return sTexts->loopingInfo();
    case volume:
        return sTexts->volumeInfo();
    default:
        return {};
    }
}

} // namespace

QVOSDOverlay& QVOSDOverlay::sharedOSDOverlay() {
    if (!sShared)
        sShared = std::make_unique<QVOSDOverlay>(gAppController ? gAppController->window() : nullptr);
    return *sShared;
}

int QVOSDOverlay::sharedDisplayType() {
    return sShared ? sShared->displayType() : 0;
}

void QVOSDOverlay::destroyShared() {
    sShared.reset();
}

void QVOSDOverlay::setTexts(const OSDTexts* texts) {
    sTexts = texts;
}

QVOSDOverlay::QVOSDOverlay(platform::Window* parent)
    : QVTextOverlay(parent, kQVOSDOverlayStyle) {
    orderFront();
    auto& center = platform::NotificationCenter::defaultCenter();
    _onMovieTime = center.observe<QVMovieInterestingTimeNotification>(
        [this](const QVMovieInterestingTimeNotification&) { updateDisplayOfType(playingTime); });
    _onSubtitles = center.observe<QVSubtitlesChangedNotification>(
        [this](const QVSubtitlesChangedNotification& notification) { currentSubtitlesChanged(notification); });
    _onVolume = center.observe<QVMovieVolumeChangedNotification>(
        [this](const QVMovieVolumeChangedNotification&) { updateDisplayOfType(volume); });
    _onLooping = center.observe<QVPlaylistLoopingChangedNotification>(
        [this](const QVPlaylistLoopingChangedNotification&) { updateDisplayOfType(loopingMode); });
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
