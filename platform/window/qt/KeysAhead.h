// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <memory>
#include <vector>

class QKeyEvent;
class QWindow;

namespace platform {

/// Whoever asks for a window and goes on typing means that window, which gets the keyboard a moment later. From its
/// making until then this takes the keys that `owner` hears of, and gives them to the window when it has the keyboard.
/// Where it gets none within a second, or goes before, they are dropped: meant for it, they must not act on the owner.
/// Ends, and deletes itself, with any of these, and when the user goes back to the owner. Main thread.
class KeysAhead final : public QObject {
public:
    /// Nothing happens where the window has the keyboard already.
    static void await(QWindow& owner, QWindow& window);

private:
    KeysAhead(QWindow& owner, QWindow& window);
    ~KeysAhead() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void arrived();
    void end();

    QWindow& _owner;
    QWindow& _window;
    std::vector<std::unique_ptr<QKeyEvent>> _keys;
};

} // namespace platform
