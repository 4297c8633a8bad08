// SPDX-License-Identifier: GPL-3.0-or-later
// The composition of --inspect: no desktop, no window.
#include "app/CommandLine.h"
#include "app/Inspection.h"
#include "app/main/Modes.h"
#include "app/main/RunSettings.h"
#include "app/main/Terminal.h"
#include "context/Environment.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/QtRunLoop.h"
#include "platform/base/SettingsFile.h"
#include "platform/movie/mpv/MpvToolkit.h"
#include "settings/SettingsKeys.h"

#include <QCoreApplication>

#include <cstdio>

int inspect(int& count, char** arguments, const CommandLine& line) {
    const QCoreApplication application(count, arguments);
    platform::QtRunLoop loop;
    platform::RunLoop::setMain(&loop);
    platform::NotificationCenter notifications;
    platform::NotificationCenter::setDefault(&notifications);
    RunSettings settings(std::make_unique<platform::SettingsFile>(platform::SettingsFile::defaultPath()));
    if (!settings.apply(line))
        return exitUsage;
    const Environment environment{loop, notifications, settings.defaults()};
    platform::MpvToolkit toolkit;
    platform::UserDefaults& defaults = settings.defaults();
    if (line.encoding != 0)
        defaults.setOverride(kQVSubtitlesDefaultEncoding, static_cast<qint64>(line.encoding));
    if (line.frameRateChoice != 0)
        defaults.setOverride(kQVSubtitlesDefaultFPS, line.frameRateChoice);
    const InspectionResult result = inspectFiles(environment, toolkit, line.files, {line.timeScale, line.imagesFolder});
    std::fwrite(result.json.constData(), 1, static_cast<std::size_t>(result.json.size()), stdout);
    for (const QString& error : result.errors)
        complain(error);
    return result.errors.isEmpty() ? exitSuccess : exitFailure;
}
