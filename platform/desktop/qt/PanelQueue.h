// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <deque>
#include <functional>

namespace platform {

/// What waits until no modal panel and no menu of ours is up. Main thread, while there is an application object.
class PanelQueue final : public QObject {
public:
    /// Calls `work` once, from the event loop.
    void add(std::function<void()> work);
    /// What waits is dropped.
    void clear();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void look();
    void lookSoon();

    std::deque<std::function<void()>> _works;
};

} // namespace platform
