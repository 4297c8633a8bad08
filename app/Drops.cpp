// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Drops.h"

#include "platform/base/Localization.h"
#include "platform/window/Events.h"

namespace {

using namespace platform;

std::uint32_t operationFor(const DraggingInfo& info) {
    if (!info.offersFileNames && !info.offersURL)
        return dragOperation::none;
    if (info.sourceOperationMask & dragOperation::generic)
        return dragOperation::generic;
    return info.sourceOperationMask & dragOperation::copy;
}

} // namespace

Drops::Drops(const Environment& environment, const Collaborators& collaborators)
    : _with(collaborators)
    , _hint(environment, collaborators.feedback) {}

std::uint32_t Drops::draggingEntered(const DraggingInfo& info) {
    const std::uint32_t operation = operationFor(info);
    if (operation == dragOperation::none)
        _hint.withdraw();
    else if (info.offersFileNames && _with.files.wouldAddToMovie(info.fileNames))
        _hint.showAtOnce(localizedString(QStringLiteral("Add to the Movie as Subtitles")));
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
        if (!info.fileNames.isEmpty())
            _with.files.take(info.fileNames, adding);
    } else if (info.offersURL) {
        _with.files.take(info.urlStrings, adding);
    }
    return true;
}
