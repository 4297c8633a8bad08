// SPDX-License-Identifier: GPL-3.0-or-later
#include "playlist/files/ListAddress.h"
#include "playlist/files/ListFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const QUrl& list : {QUrl(QStringLiteral("file:///lists/l.m3u")), QUrl(QStringLiteral("http://h/l.m3u"))}) {
        const listFile::Contents contents = listFile::read(bytes, list);
        if (contents.kind != listFile::Kind::list && !contents.entries.empty())
            std::abort();
        for (const listFile::Entry& entry : contents.entries) {
            if (entry.address.isEmpty() || entry.seconds < -1 || entry.title.contains(u'\n'))
                std::abort();
            const auto address = listFile::addressOf(entry, list, [](const QByteArray& path) {
                if (!path.startsWith('/') || path.contains('\0'))
                    std::abort();
                return path.size() % 2 == 0;
            });
            // Nothing of this machine by a list of a network.
            if (!list.isLocalFile() && (address.url.isLocalFile() || address.url.scheme() == QStringLiteral("file")))
                std::abort();
        }
    }
    return 0;
}
