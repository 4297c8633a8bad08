// SPDX-License-Identifier: GPL-3.0-or-later
#include "playback/StandingMessage.h"

#include "context/FeedbackDisplay.h"
#include "platform/base/RunLoop.h"

#include <algorithm>

namespace {

/// Seconds that a wait may last unsaid, and between one posting and the next at least.
constexpr double unsaid = 0.5;

} // namespace

StandingMessage::StandingMessage(const Environment& environment, FeedbackDisplay& display)
    : _environment(environment)
    , _display(display) {}

StandingMessage::~StandingMessage() = default;

void StandingMessage::show(const QString& text) {
    const bool isNew = text != _text;
    _text = text;
    if (!_timer)
        _timer = _environment.loop.schedule(unsaid, false, [this] { post(); });
    else if (_isShown && isNew)
        post();
}

void StandingMessage::showAtOnce(const QString& text) {
    if (_isShown && text == _text)
        return;
    _text = text;
    post();
}

void StandingMessage::withdraw() {
    if (_isShown)
        _display.withdrawFeedback(_text);
    end();
}

void StandingMessage::post() {
    _isShown = true;
    _display.postFeedback(_text);
    // Before it fades.
    _timer = _environment.loop.schedule(std::max(unsaid, _display.readingTime() / 2), false, [this] { post(); });
}

void StandingMessage::end() {
    _timer.reset();
    _text.clear();
    _isShown = false;
}
