// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Drops.h"

#include "platform/base/Localization.h"
#include "platform/base/PathNames.h"
#include "platform/base/RegularFile.h"
#include "platform/window/Events.h"
#include "playlist/OpeningReport.h"

#include <algorithm>
#include <utility>

namespace {

using namespace platform;

std::uint32_t operationFor(const DraggingInfo& info) {
    if (!info.offersFileNames && !info.offersURL)
        return dragOperation::none;
    if (info.sourceOperationMask & dragOperation::generic)
        return dragOperation::generic;
    return info.sourceOperationMask & dragOperation::copy;
}

/// Of a path, or the URL of one that is no text.
QUrl urlOfFile(const QString& text) {
    return urlOfNativePath(bytesOfPath(pathFromStored(text)));
}

bool isFile(const QUrl& url) {
    const auto facts = factsOfFile(nativePath(url));
    return facts && facts->isFile;
}

} // namespace

Drops::Drops(const Environment& environment, const Collaborators& collaborators, QStringList types,
             QStringList subtitleTypes)
    : _with(collaborators)
    , _types(std::move(types))
    , _subtitleTypes(std::move(subtitleTypes))
    , _hint(environment, collaborators.feedback) {}

std::uint32_t Drops::draggingEntered(const DraggingInfo& info) {
    const std::uint32_t operation = operationFor(info);
    if (operation == dragOperation::none)
        _hint.withdraw();
    else
        _hint.showAtOnce(localizedString(operation == dragOperation::generic ? QStringLiteral("Replace the Playlist")
                                                                             : QStringLiteral("Add to the Playlist")));
    return operation;
}

std::uint32_t Drops::draggingUpdated(const DraggingInfo& info) {
    return draggingEntered(info);
}

void Drops::draggingExited() {
    _hint.withdraw();
}

bool Drops::performDragOperation(const DraggingInfo& info) {
    _hint.withdraw();
    // A source limits itself to copying while the Option key is held.
    const Adding adding = operationFor(info) == dragOperation::copy ? Adding::append : Adding::replace;
    if (info.offersFileNames) {
        if (areSubtitles(info.fileNames)) {
            QList<OpeningFailure> failures;
            for (const QString& path : info.fileNames)
                failures.append({urlOfFile(path), OpeningReport::subtitlesAlone});
            _with.files.takeNone(failures, adding);
        } else if (!info.fileNames.isEmpty()) {
            _with.files.take(info.fileNames, adding);
        }
    } else if (info.offersURL) {
        _with.files.take(info.urlStrings, adding);
    }
    return true;
}

bool Drops::areSubtitles(const QStringList& paths) const {
    return !paths.isEmpty() && std::ranges::all_of(paths, [this](const QString& path) {
        const QString extension = pathExtension(path).toLower();
        // A plain text may be anything.
        return extension != QStringLiteral("txt") && !_types.contains(extension) &&
               _subtitleTypes.contains(extension) && isFile(urlOfFile(path));
    });
}
