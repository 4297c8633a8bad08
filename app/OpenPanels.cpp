// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/OpenPanels.h"

#include "app/LaunchSteps.h"
#include "app/OpeningFiles.h"
#include "control/ModifierFlags.h"
#include "platform/base/AddressText.h"
#include "platform/base/Background.h"
#include "platform/base/Localization.h"
#include "platform/base/PathNames.h"
#include "platform/base/RegularFile.h"
#include "platform/base/UserDefaults.h"
#include "platform/desktop/Desktop.h"
#include "playlist/OpeningReport.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace {

/// The log's lines are the application's.
constexpr const char* className = "QVAppController";

QString localized(const char* key) {
    return platform::localizedString(QString::fromUtf8(key));
}

/// A disk answers within it, or it hangs; seconds.
constexpr double lookTimeout = 0.3;

enum class Folder { there, absent, hanging };

Folder folderAt(const QString& path) {
    const auto isThere = platform::background::runFor<bool>(lookTimeout, [path] {
        const auto facts = platform::factsOfFile(platform::bytesOfPath(path));
        return facts && facts->isFolder;
    });
    return !isThere ? Folder::hanging : *isThere ? Folder::there : Folder::absent;
}

QStringList extensionsOf(const QStringList& types) {
    QStringList extensions;
    std::ranges::copy_if(types, std::back_inserter(extensions),
                         [](const QString& type) { return !type.startsWith(u'\''); }); // codes of types are no part
    return extensions;
}

} // namespace

OpenPanels::OpenPanels(const Environment& environment, const Collaborators& collaborators, QStringList types)
    : _environment(environment)
    , _with(collaborators)
    , _types(std::move(types)) {}

void OpenPanels::open(platform::FileQuestion::Kind kind) {
    trace("%@: Launching File Open panel ...", className);
    const platform::FileChoice choice = _with.desktop.runOpenPanel(question(kind));
    if (choice.chosen.isEmpty())
        return;
    const Adding added = adding(choice.isOptionOn);
    if (!isURLString(choice.chosen.front()))
        _folder = QFileInfo(choice.chosen.front()).absolutePath();
    _with.files.take(atTheirWord(choice.chosen), added);
}

platform::FileQuestion OpenPanels::question(platform::FileQuestion::Kind kind) const {
    const bool isForFolders = kind == platform::FileQuestion::Kind::folders;
    return {.kind = kind,
            .title = localized(isForFolders ? "Open Folder" : "Open Movies"),
            .accept = localized("Open"),
            .cancel = localized("Cancel"),
            .extensions = extensionsOf(_types),
            .nameOfTypes = localized("Movies and Sound"),
            .nameOfAllFiles = localized("All Files"),
            .folder = folder(),
            .option = localized("Add to Playlist")};
}

/// Where the user chose last, in this run or before; at first where desktops keep movies.
QString OpenPanels::folder() const {
    QString last = _environment.settings.stringForKey(kNSNavLastRootDirectory);
    if (last.startsWith(QLatin1Char('~')))
        last.replace(0, 1, QDir::homePath());
    if (!_folder.isEmpty() && folderAt(_folder) == Folder::there)
        return _folder;
    // The panel would hang with its drive.
    return !last.isEmpty() && folderAt(last) != Folder::hanging
               ? last
               : QStandardPaths::writableLocation(QStandardPaths::MoviesLocation);
}

/// Who asked for all files and chose of none of the types alone means to have it tried, whatever it is called.
QStringList OpenPanels::atTheirWord(const QStringList& chosen) const {
    const auto isKnown = [this](const QString& one) {
        return isURLString(one) || isFileOfType(one, _types) || folderAt(one) != Folder::absent;
    };
    if (std::ranges::any_of(chosen, isKnown))
        return chosen;
    QStringList addresses;
    std::ranges::transform(chosen, std::back_inserter(addresses), platform::addressOfTyped);
    return addresses;
}

void OpenPanels::doOpenURL(std::int32_t type) {
    trace("%@: Launching Open URL panel ...", className);
    const OpenURLAnswer answer = _with.steps.runOpenURLPanel(type);
    if (answer.code != OpenURLAnswer::accepted)
        return;
    const Adding added = adding(answer.isAddingChosen);
    QStringList addresses;
    QList<OpeningFailure> others;
    for (const QString& text : answer.strings) {
        if (const QString address = platform::addressOfTyped(text); !address.isEmpty()) {
            addresses.append(address);
        } else if (!text.trimmed().isEmpty()) {
            QUrl shown;
            shown.setPath(text.trimmed());
            others.append({shown, OpeningReport::notAnAddress});
        }
    }
    if (addresses.isEmpty())
        _with.files.takeNone(others, added);
    else
        _with.files.take(addresses, added);
}

Adding OpenPanels::adding(bool isAddingChosen) const {
    return isAddingChosen ? Adding::append : addingFor(QVGetModifierFlags(_with.desktop));
}
