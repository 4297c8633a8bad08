// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <mpv/client.h>
#include <mpv/render.h>

#include <functional>
#include <memory>

namespace platform {

class GLContext;
enum class GraphicsDevice;

/// One libmpv core with its software render context, made and ended in the order that it asks for. Making it takes a
/// few ten milliseconds and may be done on any thread; after that it belongs to the main thread.
class MpvCore {
public:
    /// Null when libmpv cannot be loaded or refuses to start (a message was logged).
    static std::unique_ptr<MpvCore> create(GraphicsDevice device);
    MpvCore(const MpvCore&) = delete;
    MpvCore& operator=(const MpvCore&) = delete;
    ~MpvCore();

    mpv_handle* handle() const { return _handle; }
    mpv_render_context* renderContext() const { return _render; }

    /// Both are called on threads of libmpv, which holds locks meanwhile: they may only pass the word on.
    void setCallbacks(std::function<void()> events, std::function<void()> pictures);

    /// Replaces the render context by one for the OpenGL context, which is current, or by the software one. False when
    /// it could not be made; there is none then.
    bool useOpenGL(GLContext& context);
    bool useSoftware();

    /// It is stuck in a file that does not answer, and is not waited for when it ends.
    void leave() { _isStuck = true; }

private:
    explicit MpvCore(mpv_handle* handle);
    void freeRender();
    bool createRender(mpv_render_param* parameters);
    static void wakeup(void* self);
    static void update(void* self);

    mpv_handle* _handle;
    mpv_render_context* _render = nullptr;
    bool _isOpenGL = false;
    bool _isStuck = false;
    std::function<void()> _events;
    std::function<void()> _pictures;
};

} // namespace platform
