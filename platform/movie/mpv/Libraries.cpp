// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/Libraries.h"

#include "platform/base/Log.h"

#include <QStringList>

#include <dlfcn.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace platform {

namespace {

/// A function of a library that is loaded already; null without either.
template <class Function>
Function loadedFunction(const char* library, const char* name) {
    void* handle = dlopen(library, RTLD_LAZY | RTLD_LOCAL | RTLD_NOLOAD);
    return handle ? reinterpret_cast<Function>(dlsym(handle, name)) : nullptr;
}

void ignoreSoundError(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/,
                      const char* /*format*/, ...) {}

/// libmpv tries one sound system after the other, and the libraries of those that are not there write to standard error
/// by themselves, twenty lines on a machine without sound. PipeWire's writes all the same where PIPEWIRE_DEBUG is set.
void quietSoundSystems() {
    if (const auto setHandler =
            loadedFunction<int (*)(decltype(&ignoreSoundError))>("libasound.so.2", "snd_lib_error_set_handler"))
        setHandler(&ignoreSoundError);
    constexpr int nothing = 0;
    if (const auto setLevel = loadedFunction<void (*)(int)>("libpipewire-0.3.so.0", "pw_log_set_level"))
        setLevel(nothing);
}

#define LUMARO_TEXT_OF(x) #x
#define LUMARO_TEXT(x) LUMARO_TEXT_OF(x)

class SharedLibraries {
public:
    explicit SharedLibraries(std::initializer_list<const char*> names) {
        for (const char* name : names) {
            void* handle = dlopen(name, RTLD_LAZY | RTLD_LOCAL);
            if (!handle)
                fail(dlerror());
            else
                _handles.push_back(handle);
        }
    }

    template <class Function>
    void resolve(Function& function, const char* name) {
        for (void* handle : _handles) {
            if (void* address = dlsym(handle, name)) {
                function = reinterpret_cast<Function>(address);
                return;
            }
        }
        fail(name);
    }

    bool isComplete() const { return _complete; }

private:
    void fail(const char* what) {
        _complete = false;
        Log::write(QStringLiteral("ERROR: Can't load the movie libraries: %1").arg(QString::fromUtf8(what)));
    }

    std::vector<void*> _handles; // never closed: the libraries keep threads and tables of their own
    bool _complete = true;
};

} // namespace

const AvLibrary* AvLibrary::get() {
    static const AvLibrary* const loaded = []() -> const AvLibrary* {
        static AvLibrary library;
        SharedLibraries files{"libavutil.so." LUMARO_TEXT(LIBAVUTIL_VERSION_MAJOR),
                              "libavcodec.so." LUMARO_TEXT(LIBAVCODEC_VERSION_MAJOR),
                              "libavformat.so." LUMARO_TEXT(LIBAVFORMAT_VERSION_MAJOR),
                              "libswscale.so." LUMARO_TEXT(LIBSWSCALE_VERSION_MAJOR)};
#define X(name) files.resolve(library.name, #name);
        LUMARO_AV_FUNCTIONS(X)
#undef X
        if (!files.isComplete())
            return nullptr;
        library.av_log_set_level(AV_LOG_QUIET);
        return &library;
    }();
    return loaded;
}

const std::uint8_t* AvLibrary::sideDataOf(const AVStream& stream, AVPacketSideDataType kind) const {
#if LIBAVCODEC_VERSION_INT >= AV_VERSION_INT(60, 31, 0)
    const AVCodecParameters& parameters = *stream.codecpar;
    const AVPacketSideData* data =
        av_packet_side_data_get(parameters.coded_side_data, parameters.nb_coded_side_data, kind);
    return data ? data->data : nullptr;
#else
    return av_stream_get_side_data(&stream, kind, nullptr);
#endif
}

const MpvLibrary* MpvLibrary::get() {
    static const MpvLibrary* const loaded = []() -> const MpvLibrary* {
        static MpvLibrary library;
        // Loading a library resolves its names among all that it depends on. Done level by level these searches are
        // short; in one go they take half as long again. It does not matter whether these two are there. FFmpeg raises
        // the numbers of its libraries together: libavdevice has libavcodec's, libavfilter's is 49 behind libavutil's.
        for (const std::string& dependency : {"libavfilter.so." + std::to_string(LIBAVUTIL_VERSION_MAJOR - 49),
                                              "libavdevice.so." + std::to_string(LIBAVCODEC_VERSION_MAJOR)})
            dlopen(dependency.c_str(), RTLD_LAZY | RTLD_LOCAL);
        SharedLibraries files{"libmpv.so.2"};
        static_assert(MPV_CLIENT_API_VERSION >> 16 == 2);
#define X(name) files.resolve(library.name, #name);
        LUMARO_MPV_FUNCTIONS(X)
#undef X
        quietSoundSystems();
        return files.isComplete() ? &library : nullptr;
    }();
    return loaded;
}

} // namespace platform
