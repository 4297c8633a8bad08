// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/LoadingWorker.h"

#include "platform/base/RunLoop.h"

#include <utility>

LoadingWorker::LoadingWorker(platform::RunLoop& loop)
    : _loop(loop) {}

LoadingWorker::~LoadingWorker() {
    stop();
}

void LoadingWorker::setObserver(std::function<void()> observer) {
    _word->observer = std::move(observer);
}

void LoadingWorker::start(std::function<void()> work) {
    wait();
    _running = true;
    _stop = {};
    _thread = std::thread([this, work = std::move(work)] {
        work();
        _running = false;
        report();
    });
}

void LoadingWorker::wait() {
    if (_thread.joinable())
        _thread.join();
}

void LoadingWorker::stop() {
    _abort = true;
    _stop.request_stop();
    // Waiting for its end: one that has not begun yet would begin on a track that was emptied meanwhile.
    wait();
    _abort = false;
}

void LoadingWorker::report() {
    if (_word->isOnItsWay.exchange(true))
        return;
    _loop.post([word = std::weak_ptr<Word>(_word)] {
        const std::shared_ptr<Word> arrived = word.lock();
        if (!arrived)
            return;
        // Before the observer looks: what is reported from here on is told again.
        arrived->isOnItsWay = false;
        // A copy: the observer may set another one.
        if (const auto observer = arrived->observer)
            observer();
    });
}
