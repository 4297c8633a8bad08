// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/Rect.h"
#include "platform/window/View.h"

#include <QColor>

#include <cstdint>
#include <memory>
#include <vector>

namespace platform {

class WindowHost;

/// Posted after a window's size changed.
struct WindowDidResizeNotification {
    Window* window;
};

/// The levels of windows above each other.
namespace windowLevel {
inline constexpr int normal = 0;
inline constexpr int floating = 3;
} // namespace windowLevel

/// What the window's owner is told. Every operation does nothing by default.
class WindowDelegate {
public:
    virtual ~WindowDelegate() = default;
    virtual void windowDidBecomeKey(Window& window);
    virtual void windowDidResignKey(Window& window);
    virtual void windowDidResize(Window& window);
    /// The window system asks to close the window (Alt+F4, a task list). True closes it.
    virtual bool windowShouldClose(Window& window);
};

/// A window as a model: frame (screen coordinates, origin bottom left of the main screen, y up, points), alpha, level,
/// content. It knows nothing of the window system; a root window is shown by a WindowHost. Child windows stay above
/// their parent, move with it and are composed into its host's picture. Main thread.
class Window : public ViewOwner {
public:
    explicit Window(const Rect& frame);
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    virtual ~Window();

    Rect frame() const { return _frame; }
    /// Also resizes the content view, posts WindowDidResizeNotification and tells the delegate, if the size changed.
    virtual void setFrame(const Rect& frame);

    float alphaValue() const { return _alpha; }
    /// Opacity of the whole window, 0 to 1 (clamped; not a number counts as 0).
    void setAlphaValue(float alpha);
    /// An opacity as a window can have it: what lies outside 0 to 1 is clamped, what is no number is 0.
    static float shownAlpha(float alpha);
    QColor backgroundColor() const { return _backgroundColor; }
    virtual void setBackgroundColor(const QColor& color);
    int level() const { return _level; }
    void setLevel(int level);

    bool isOrderedIn() const { return _orderedIn; }
    /// While it is set a root window that cannot be seen any more is minimised, so that the user can bring it back;
    /// else it goes from the screen and from the lists of windows.
    bool minimizesWhenHidden() const { return _minimizesWhenHidden; }
    void setMinimizesWhenHidden(bool minimizes) { _minimizesWhenHidden = minimizes; }
    /// A child that is ordered in already comes to stand above its siblings.
    void orderFront();
    void orderOut();
    void makeKeyAndOrderFront();
    bool isKey() const { return _key; }

    /// The content view, covering the whole frame.
    View& contentView() { return _contentView; }
    /// The view that gets key events, or null.
    View* firstResponder() const { return _firstResponder; }
    void makeFirstResponder(View* view) { _firstResponder = view; }

    Window* parentWindow() const { return _parent; }
    const std::vector<Window*>& childWindows() const { return _children; }
    virtual void addChildWindow(Window& child);
    virtual void removeChildWindow(Window& child);

    WindowDelegate* delegate() const { return _delegate; }
    void setDelegate(WindowDelegate* delegate) { _delegate = delegate; }

    WindowHost* host() const { return _host; }
    /// Null when the host goes away.
    void setHost(WindowHost* host) { _host = host; }

    /// Adds an area of the content view (its coordinates) that reports the pointer's coming and going; answers its tag,
    /// never 0. The pointer counts as outside at first.
    int addTrackingRect(const Rect& rect);
    void removeTrackingRect(int tag);

    /// Called by the host. Keys go to the first responder, then to the window; the pointer's position feeds the
    /// tracking areas.
    bool dispatchKey(const KeyEvent& event);
    void dispatchMouseDown(const MouseEvent& event);
    void dispatchMouseDragged(const MouseEvent& event);
    void dispatchMouseUp(const MouseEvent& event);
    void dispatchMouseMoved(const MouseEvent& event);
    void dispatchMouseLeft();
    /// Whole steps of the wheel, away from the user counted up.
    void dispatchWheel(int steps);
    void setKey(bool key);

    void displayNeeded(const Rect& rect) override;
    /// How far the content of a child is drawn beyond its frame, at every side, points; 0 at first.
    double overhang() const { return _overhang; }
    void setOverhang(double points);

    /// Counts the changes of what the content draws: a host that kept a picture of it can tell whether it still holds.
    /// Moving or fading a window does not change its content.
    std::uint64_t contentRevision() const { return _contentRevision; }

protected:
    /// Reached by keys that no view took.
    virtual bool keyDown(const KeyEvent& event);
    virtual bool keyUp(const KeyEvent& event);
    virtual void mouseMoved(const MouseEvent& event);
    /// The pointer left the window, or is over what stands before it.
    virtual void mouseLeft();
    /// Reached by presses that no view took.
    virtual void mouseDown(const MouseEvent& event);
    virtual void wheelTurned(int steps);
    /// After any button was released, over whichever view.
    virtual void mouseUp(const MouseEvent& event);
    virtual void mouseEntered(int trackingTag);
    virtual void mouseExited(int trackingTag);

private:
    void forgetView(const View& view) override;
    /// Has a part of the window (content coordinates) put onto the screen anew, its content unchanged.
    void compose(const Rect& rect);
    void composeWhole();

    struct TrackingArea {
        int tag;
        Rect rect;
        bool inside;
    };
    void trackPointer(QPointF location, bool insideWindow);

    Rect _frame;
    std::uint64_t _contentRevision = 0;
    double _overhang = 0;
    float _alpha = 1.0F;
    QColor _backgroundColor;
    int _level = windowLevel::normal;
    bool _orderedIn = false;
    bool _minimizesWhenHidden = false;
    bool _key = false;
    View _contentView;
    View* _firstResponder = nullptr;
    View* _mouseView = nullptr; // the view that took the button press
    Window* _parent = nullptr;
    std::vector<Window*> _children;
    WindowDelegate* _delegate = nullptr;
    WindowHost* _host = nullptr;
    std::vector<TrackingArea> _trackingAreas;
    int _lastTrackingTag = 0;
};

} // namespace platform
