// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tools/screen/Waiting.h"

#include <X11/keysym.h>

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

// Xlib's own header is kept out: its macros (None, Success, Status) break whatever is included after it.
struct _XDisplay;

namespace harness {

using KeySym = unsigned long;
using WindowId = unsigned long;

struct Color {
    int red = 0, green = 0, blue = 0;
    // Within the tolerance in every channel: what a lossy codec and a conversion of colour spaces leave of a colour.
    bool isNear(const Color& other, int tolerance = 40) const;
    bool operator==(const Color&) const = default;
};
std::ostream& operator<<(std::ostream& stream, const Color& color);

// A rectangle of pixels of the screen, origin top left.
struct Region {
    int x = 0, y = 0, width = 0, height = 0;
    bool operator==(const Region&) const = default;
};
std::ostream& operator<<(std::ostream& stream, const Region& region);

struct Picture {
    Region region;
    std::vector<std::uint32_t> pixels; // 0x00RRGGBB, rows from the top
    Color at(int x, int y) const;      // in screen coordinates
    // The smallest region that holds every pixel wanted; empty when there is none.
    Region extentWhere(const std::function<bool(const Color&)>& wanted) const;
};

// Watches a display from outside and plays its user: reads pixels, presses keys, moves the pointer.
class XProbe {
public:
    // Throws std::runtime_error when the display cannot be opened.
    explicit XProbe(const std::string& display);
    ~XProbe();
    XProbe(const XProbe&) = delete;
    XProbe& operator=(const XProbe&) = delete;

    int width() const;
    int height() const;

    // Some 30 microseconds for a pixel, 3 milliseconds for a full HD screen.
    Color pixel(int x, int y);
    Picture picture(const Region& region);
    Picture screen();

    // Polls the pixel until the predicate holds.
    bool waitForPixel(int x, int y, const std::function<bool(const Color&)>& predicate,
                      Seconds timeout = defaultTimeout);
    bool waitForColor(int x, int y, const Color& color, Seconds timeout = defaultTimeout);
    // The smallest region that holds every pixel near the colour; empty when there is none.
    Region extentOf(const Color& color, int tolerance = 40);

    // Keys, by keysym (XK_space, XK_Right) with the modifiers held meanwhile (XK_Control_L, XK_Alt_L, XK_Super_L,
    // XK_Shift_L). A tap reaches the server whole: however busy the machine, no key is held long enough to repeat.
    void tap(KeySym key, const std::vector<KeySym>& modifiers = {});
    void press(KeySym key);
    void release(KeySym key);

    // The pointer. Buttons: 1 left, 2 middle, 3 right.
    void movePointer(int x, int y);
    void click(int x, int y, unsigned button = 1);
    void pressButton(unsigned button = 1);
    void releaseButton(unsigned button = 1);
    void drag(int fromX, int fromY, int toX, int toY, unsigned button = 1);
    // Whether the pointer has any picture; one that a program hid has none.
    bool pointerShows();

    // The top window that covers the point, or 0; whether any mapped top-level window is there at all.
    WindowId windowAt(int x, int y);
    // The window that has the keyboard, or 0.
    WindowId focusedWindow();
    bool hasVisibleWindow();
    // What a window manager may do to it.
    void resizeWindow(WindowId window, int width, int height);
    void setWindowShown(WindowId window, bool shown);

private:
    struct Shared;
    void sendKey(KeySym key, bool down);

    _XDisplay* _display = nullptr;
    std::unique_ptr<Shared>
        _shared; // the segment that pictures are read through; none when the server has no extension
};

} // namespace harness
