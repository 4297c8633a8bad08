// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/linux/RecentlyUsedFile.h"

#include "platform/base/Background.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QMimeDatabase>

#include <dlfcn.h>
#include <glib.h>

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <utility>

namespace platform {

namespace {

constexpr const char* application = "Lumaro";
/// As a desktop entry says it; GLib quotes it.
constexpr const char* command = "lumaro %u";

#define LUMARO_GLIB_FUNCTIONS(X)                                                                                       \
    X(g_bookmark_file_new)                                                                                             \
    X(g_bookmark_file_free)                                                                                            \
    X(g_bookmark_file_load_from_file)                                                                                  \
    X(g_bookmark_file_to_file)                                                                                         \
    X(g_bookmark_file_set_mime_type)                                                                                   \
    X(g_bookmark_file_add_application)                                                                                 \
    X(g_bookmark_file_has_application)                                                                                 \
    X(g_bookmark_file_remove_application)                                                                              \
    X(g_bookmark_file_get_uris)                                                                                        \
    X(g_bookmark_file_get_applications)                                                                                \
    X(g_bookmark_file_remove_item)                                                                                     \
    X(g_strfreev)                                                                                                      \
    X(g_error_free)

/// GLib, loaded at run time: nobody else here needs it, and linking it would cost the start.
struct GLib {
#define X(name) decltype(&::name) name = nullptr;
    LUMARO_GLIB_FUNCTIONS(X)
#undef X

    /// Null where it cannot be loaded.
    static const GLib* get() {
        static const GLib* const loaded = []() -> const GLib* {
            static GLib library;
            void* const handle = dlopen("libglib-2.0.so.0", RTLD_LAZY | RTLD_LOCAL);
            if (!handle)
                return nullptr;
#define X(name)                                                                                                        \
    library.name = reinterpret_cast<decltype(&::name)>(dlsym(handle, #name));                                          \
    if (!library.name)                                                                                                 \
        return nullptr;
            LUMARO_GLIB_FUNCTIONS(X)
#undef X
            return &library;
        }();
        return loaded;
    }
};

/// Takes the list in the file, changes it, and puts it back: the old list or the new one, whatever happens meanwhile.
void change(const QString& path, const std::function<bool(const GLib&, GBookmarkFile*)>& edit) {
    const GLib* const glib = GLib::get();
    if (!glib)
        return;
    const QByteArray name = QFile::encodeName(path);
    GBookmarkFile* const list = glib->g_bookmark_file_new();
    GError* error = nullptr;
    const bool isRead =
        !QFile::exists(path) || glib->g_bookmark_file_load_from_file(list, name.constData(), &error) != 0;
    if (isRead && edit(*glib, list)) {
        QDir().mkpath(QFileInfo(path).absolutePath());
        if (glib->g_bookmark_file_to_file(list, name.constData(), &error))
            QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }
    if (error)
        glib->g_error_free(error);
    glib->g_bookmark_file_free(list);
}

/// Runs works one after the other on a thread, as long as there are any.
void runInTurn(std::function<void()> work) {
    struct Queue {
        std::mutex mutex;
        std::deque<std::function<void()>> works;
        bool isRunning = false;
    };
    static Queue& queue = *new Queue; // a thread that was left behind may still use it
    const std::scoped_lock lock(queue.mutex);
    queue.works.push_back(std::move(work));
    if (std::exchange(queue.isRunning, true))
        return;
    background::run([] {
        for (;;) {
            std::function<void()> next;
            {
                const std::scoped_lock guard(queue.mutex);
                queue.isRunning = !queue.works.empty();
                if (!queue.isRunning)
                    return;
                next = std::move(queue.works.front());
                queue.works.pop_front();
            }
            next();
        }
    });
}

} // namespace

QString RecentlyUsedFile::defaultPath() {
    QString folder = qEnvironmentVariable("XDG_DATA_HOME");
    if (!QDir::isAbsolutePath(folder))
        folder = QDir::homePath() + QStringLiteral("/.local/share");
    return QDir::cleanPath(folder + QStringLiteral("/recently-used.xbel"));
}

void RecentlyUsedFile::add(const QUrl& file) {
    runInTurn([path = _path, file] {
        const QByteArray address = file.toEncoded(QUrl::FullyEncoded);
        // By its name alone: its content lies on a disk that may be slow.
        const QByteArray type =
            QMimeDatabase().mimeTypeForFile(file.toLocalFile(), QMimeDatabase::MatchExtension).name().toLatin1();
        change(path, [&](const GLib& glib, GBookmarkFile* list) {
            glib.g_bookmark_file_set_mime_type(list, address.constData(), type.constData());
            glib.g_bookmark_file_add_application(list, address.constData(), application, command);
            return true;
        });
    });
}

void RecentlyUsedFile::removeAll() {
    runInTurn([path = _path] {
        change(path, [](const GLib& glib, GBookmarkFile* list) {
            bool isAnyGone = false;
            char** const addresses = glib.g_bookmark_file_get_uris(list, nullptr);
            for (char** address = addresses; address && *address; ++address) {
                if (!glib.g_bookmark_file_has_application(list, *address, application, nullptr))
                    continue;
                gsize count = 0;
                glib.g_strfreev(glib.g_bookmark_file_get_applications(list, *address, &count, nullptr));
                const bool isGone = count > 1
                                        ? glib.g_bookmark_file_remove_application(list, *address, application, nullptr)
                                        : glib.g_bookmark_file_remove_item(list, *address, nullptr);
                isAnyGone = isGone || isAnyGone;
            }
            glib.g_strfreev(addresses);
            return isAnyGone;
        });
    });
}

} // namespace platform
