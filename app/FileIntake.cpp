// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/FileIntake.h"

#include "app/OpeningFiles.h"
#include "control/ModifierFlags.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "platform/window/Events.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <QDir>

#include <utility>

namespace {

constexpr const char* className = "QVAppController";

Adding addingFor(std::uint32_t modifiers) {
    return modifiers & platform::modifier::option ? Adding::append : Adding::replace;
}

} // namespace

FileIntake::FileIntake(const Environment& environment, platform::Desktop& desktop, QStringList types, Sink sink)
    : _environment(environment)
    , _desktop(desktop)
    , _types(std::move(types))
    , _sink(std::move(sink)) {}

void FileIntake::openFile(const QString& pathOrUrl) {
    if (!_is_adding_files)
        startAddingFiles();
    _added_files.append(pathOrUrl);
}

void FileIntake::startAddingFiles() {
    const TraceScope scope("-[QVAppController startAddingFiles]");
    _is_adding_files = true;
    _is_should_replace = addingFor(QVGetModifierFlags(_desktop)) == Adding::replace;
    _added_files.reserve(25);
    // The files of one hand-over arrive one by one; the batch is closed when all have. At launch finishLaunching does
    // it.
    if (!_is_launching)
        _batchTimer = _environment.loop.schedule(0, false, [this] { finishAddingFiles(); });
}

void FileIntake::finishAddingFiles() {
    const TraceScope scope("-[QVAppController finishAddingFiles]");
    const bool collecting = std::exchange(_is_adding_files, false);
    const QStringList files = std::exchange(_added_files, {});
    if (!collecting || files.isEmpty())
        return;
    QList<QUrl> urls;
    for (const QString& file : files) {
        if (isURLString(file))
            urls += urlsWithURLStrings({file});
        else
            urls += urlsWithPathStrings({file}, _types);
    }
    give(urls, _is_should_replace ? Adding::replace : Adding::append);
}

void FileIntake::finishLaunching() {
    finishAddingFiles();
    _is_launching = false;
    // Files may have arrived while those movies were opened.
    finishAddingFiles();
}

void FileIntake::end() {
    _has_ended = true;
}

void FileIntake::give(const QList<QUrl>& urls, Adding adding) {
    if (!_has_ended)
        _sink(urls, adding);
}

void FileIntake::doOpen() {
    trace("%@: Launching File Open panel ...", className);
    QString folder = _environment.settings.stringForKey(kNSNavLastRootDirectory);
    if (folder.startsWith(QLatin1Char('~')))
        folder.replace(0, 1, QDir::homePath());
    const QStringList chosen = _desktop.runOpenPanel(_types, folder);
    if (chosen.isEmpty())
        return;
    const Adding adding = addingFor(QVGetModifierFlags(_desktop));
    give(urlsWithPathStrings(chosen, _types), adding);
}

std::uint32_t FileIntake::draggingEntered(const platform::DraggingInfo& info) {
    using namespace platform;
    if (!info.offersFileNames && !info.offersURL)
        return dragOperation::none;
    if (info.sourceOperationMask & dragOperation::generic)
        return dragOperation::generic;
    return info.sourceOperationMask & dragOperation::copy ? dragOperation::copy : dragOperation::none;
}

std::uint32_t FileIntake::draggingUpdated(const platform::DraggingInfo& info) {
    return draggingEntered(info);
}

bool FileIntake::performDragOperation(const platform::DraggingInfo& info) {
    using namespace platform;
    // A source limits itself to copying while the Option key is held.
    const bool append =
        !(info.sourceOperationMask & dragOperation::generic) && (info.sourceOperationMask & dragOperation::copy);
    const Adding adding = append ? Adding::append : Adding::replace;
    if (info.offersFileNames) {
        if (!info.fileNames.isEmpty())
            give(urlsWithPathStrings(info.fileNames, _types), adding);
    } else if (info.offersURL) {
        give(urlsWithURLStrings(info.urlStrings), adding);
    }
    return true;
}
