// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/screen/XProbe.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XShm.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xfixes.h>
#include <sys/ipc.h>
#include <sys/shm.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <ostream>
#include <stdexcept>
#include <thread>

namespace harness {

bool Color::isNear(const Color& other, int tolerance) const {
    return std::abs(red - other.red) <= tolerance && std::abs(green - other.green) <= tolerance &&
           std::abs(blue - other.blue) <= tolerance;
}

std::ostream& operator<<(std::ostream& stream, const Color& color) {
    return stream << "rgb(" << color.red << ", " << color.green << ", " << color.blue << ")";
}

std::ostream& operator<<(std::ostream& stream, const Region& region) {
    return stream << region.width << "x" << region.height << "+" << region.x << "+" << region.y;
}

namespace {

Color colorOf(std::uint32_t pixel) {
    return {int(pixel >> 16 & 0xff), int(pixel >> 8 & 0xff), int(pixel & 0xff)};
}

} // namespace

Color Picture::at(int x, int y) const {
    return colorOf(pixels.at(std::size_t(y - region.y) * std::size_t(region.width) + std::size_t(x - region.x)));
}

// A screen-sized image in shared memory. Made once: attaching costs more than reading.
struct XProbe::Shared {
    Display* display;
    XShmSegmentInfo segment{};
    XImage* image = nullptr;

    Shared(Display* onDisplay, int width, int height)
        : display(onDisplay) {
        const int screen = DefaultScreen(display);
        image = XShmCreateImage(display, DefaultVisual(display, screen), unsigned(DefaultDepth(display, screen)),
                                ZPixmap, nullptr, &segment, unsigned(width), unsigned(height));
        if (!image)
            throw std::runtime_error("no image");
        segment.shmid =
            ::shmget(IPC_PRIVATE, std::size_t(image->bytes_per_line) * std::size_t(height), IPC_CREAT | 0600);
        segment.shmaddr = image->data = static_cast<char*>(::shmat(segment.shmid, nullptr, 0));
        segment.readOnly = False;
        XShmAttach(display, &segment);
        XSync(display, False);
        ::shmctl(segment.shmid, IPC_RMID, nullptr); // Goes with the last that is attached.
    }
    ~Shared() {
        XShmDetach(display, &segment);
        XSync(display, False);
        image->data = nullptr;
        XDestroyImage(image);
        ::shmdt(segment.shmaddr);
    }
};

XProbe::XProbe(const std::string& display) {
    _display = XOpenDisplay(display.c_str());
    if (!_display)
        throw std::runtime_error("cannot open display " + display);
    // A window may go while it is asked about: an error answer is an answer, not the end of the test.
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
    int event, error, major, minor;
    if (!XTestQueryExtension(_display, &event, &error, &major, &minor))
        throw std::runtime_error("display " + display + " has no XTEST extension");
    if (XShmQueryExtension(_display))
        _shared = std::make_unique<Shared>(_display, width(), height());
}

XProbe::~XProbe() {
    _shared.reset();
    XCloseDisplay(_display);
}

int XProbe::width() const {
    return DisplayWidth(_display, DefaultScreen(_display));
}
int XProbe::height() const {
    return DisplayHeight(_display, DefaultScreen(_display));
}

Color XProbe::pixel(int x, int y) {
    return picture({x, y, 1, 1}).at(x, y);
}

Picture XProbe::screen() {
    return picture({0, 0, width(), height()});
}

Picture XProbe::picture(const Region& region) {
    Picture result{region, std::vector<std::uint32_t>(std::size_t(region.width) * std::size_t(region.height))};
    const ::Window root = DefaultRootWindow(_display);
    // Through shared memory only a whole screen: for less, the answer in the socket is as fast.
    const bool whole = region == Region{0, 0, width(), height()};
    XImage* image = nullptr;
    if (whole && _shared && XShmGetImage(_display, root, _shared->image, 0, 0, AllPlanes))
        image = _shared->image;
    else
        image = XGetImage(_display, root, region.x, region.y, unsigned(region.width), unsigned(region.height),
                          AllPlanes, ZPixmap);
    if (!image)
        throw std::runtime_error("the screen cannot be read");
    for (int y = 0; y < region.height; ++y) {
        const char* row = image->data + std::ptrdiff_t(y) * image->bytes_per_line;
        std::memcpy(result.pixels.data() + std::ptrdiff_t(y) * region.width, row, std::size_t(region.width) * 4);
    }
    if (!_shared || image != _shared->image)
        XDestroyImage(image);
    return result;
}

bool XProbe::waitForPixel(int x, int y, const std::function<bool(const Color&)>& predicate, Seconds timeout) {
    return waitUntil([&] { return predicate(pixel(x, y)); }, timeout, Seconds(0.001));
}

bool XProbe::waitForColor(int x, int y, const Color& color, Seconds timeout) {
    return waitForPixel(
        x, y, [&](const Color& seen) { return seen.isNear(color); }, timeout);
}

Region Picture::extentWhere(const std::function<bool(const Color&)>& wanted) const {
    int left = region.x + region.width, top = region.y + region.height, right = -1, bottom = -1;
    for (int y = region.y; y < region.y + region.height; ++y)
        for (int x = region.x; x < region.x + region.width; ++x)
            if (wanted(at(x, y))) {
                left = std::min(left, x);
                right = std::max(right, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
    return right < 0 ? Region{} : Region{left, top, right - left + 1, bottom - top + 1};
}

Region XProbe::extentOf(const Color& color, int tolerance) {
    return screen().extentWhere([&](const Color& seen) { return seen.isNear(color, tolerance); });
}

void XProbe::sendKey(KeySym key, bool down) {
    const KeyCode code = XKeysymToKeycode(_display, key);
    if (!code)
        throw std::runtime_error("the keyboard has no such key");
    XTestFakeKeyEvent(_display, code, down ? True : False, CurrentTime);
}

void XProbe::press(KeySym key) {
    sendKey(key, true);
    XSync(_display, False);
}
void XProbe::release(KeySym key) {
    sendKey(key, false);
    XSync(_display, False);
}

void XProbe::tap(KeySym key, const std::vector<KeySym>& modifiers) {
    for (const KeySym modifier : modifiers)
        sendKey(modifier, true);
    sendKey(key, true);
    sendKey(key, false);
    for (auto modifier = modifiers.rbegin(); modifier != modifiers.rend(); ++modifier)
        sendKey(*modifier, false);
    XSync(_display, False);
    // A press in the same millisecond as the last release would count as a repeat of it.
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
}

void XProbe::movePointer(int x, int y) {
    XTestFakeMotionEvent(_display, DefaultScreen(_display), x, y, CurrentTime);
    XSync(_display, False);
}

void XProbe::click(int x, int y, unsigned button) {
    movePointer(x, y);
    XTestFakeButtonEvent(_display, button, True, CurrentTime);
    XTestFakeButtonEvent(_display, button, False, CurrentTime);
    XSync(_display, False);
}

void XProbe::pressButton(unsigned button) {
    XTestFakeButtonEvent(_display, button, True, CurrentTime);
    XSync(_display, False);
}

void XProbe::releaseButton(unsigned button) {
    XTestFakeButtonEvent(_display, button, False, CurrentTime);
    XSync(_display, False);
}

void XProbe::drag(int fromX, int fromY, int toX, int toY, unsigned button) {
    movePointer(fromX, fromY);
    XTestFakeButtonEvent(_display, button, True, CurrentTime);
    const int steps = 8;
    for (int step = 1; step <= steps; ++step)
        movePointer(fromX + (toX - fromX) * step / steps, fromY + (toY - fromY) * step / steps);
    XTestFakeButtonEvent(_display, button, False, CurrentTime);
    XSync(_display, False);
}

bool XProbe::pointerShows() {
    int major = 4, minor = 0;
    if (!XFixesQueryVersion(_display, &major, &minor))
        return false;
    XFixesCursorImage* image = XFixesGetCursorImage(_display);
    if (!image)
        return false;
    const unsigned long* pixels = image->pixels;
    const bool shows = std::any_of(pixels, pixels + image->width * image->height,
                                   [](unsigned long pixel) { return (pixel >> 24 & 0xFF) != 0; });
    XFree(image);
    return shows;
}

WindowId XProbe::windowAt(int x, int y) {
    const ::Window root = DefaultRootWindow(_display);
    ::Window child = 0;
    int toX, toY;
    XTranslateCoordinates(_display, root, root, x, y, &toX, &toY, &child);
    return child;
}

WindowId XProbe::focusedWindow() {
    ::Window focused = 0;
    int revertTo = 0;
    XGetInputFocus(_display, &focused, &revertTo);
    return focused == PointerRoot ? 0 : focused;
}

void XProbe::resizeWindow(WindowId window, int width, int height) {
    XResizeWindow(_display, window, unsigned(width), unsigned(height));
    XSync(_display, False);
}

void XProbe::setWindowShown(WindowId window, bool shown) {
    if (shown)
        XMapWindow(_display, window);
    else
        XUnmapWindow(_display, window);
    XSync(_display, False);
}

bool XProbe::hasVisibleWindow() {
    ::Window root, parent, *children = nullptr;
    unsigned count = 0;
    bool visible = false;
    if (!XQueryTree(_display, DefaultRootWindow(_display), &root, &parent, &children, &count))
        return false;
    for (unsigned i = 0; i < count; ++i) {
        XWindowAttributes attributes;
        if (XGetWindowAttributes(_display, children[i], &attributes) && attributes.map_state == IsViewable)
            visible = true;
    }
    XFree(children);
    return visible;
}

} // namespace harness
