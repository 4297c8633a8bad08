// SPDX-License-Identifier: GPL-3.0-or-later
// The composition of --inspect: no desktop, no window.
#include "app/CommandLine.h"
#include "app/Inspection.h"
#include "app/main/Modes.h"
#include "app/main/RunEnvironment.h"
#include "app/main/Terminal.h"
#include "platform/base/JsonWriter.h"
#include "platform/base/PrivateFolder.h"
#include "platform/movie/mpv/MovieProbe.h"
#include "platform/movie/mpv/MpvToolkit.h"
#include "settings/SettingsKeys.h"

#include <QCoreApplication>

#include <atomic>
#include <cstdio>

namespace {
/// How long one file may take, seconds.
constexpr double openTimeout = 60;
} // namespace

int inspect(int& count, char** arguments, const CommandLine& line) {
    const QCoreApplication application(count, arguments);
    RunEnvironment run;
    if (!run.settings().apply(line))
        return exitUsage;
    platform::MpvToolkit toolkit;
    platform::UserDefaults& defaults = run.environment().settings;
    if (line.encoding != 0)
        defaults.setOverride(kQVSubtitlesDefaultEncoding, static_cast<qint64>(line.encoding));
    if (line.frameRateChoice != 0)
        defaults.setOverride(kQVSubtitlesDefaultFPS, line.frameRateChoice);
    const std::atomic<bool> isCancelled{false};
    const auto readMovie = [&](const QUrl& url) { return platform::probeMovie(url, openTimeout, isCancelled); };
    QStringList errors;
    bool isWritten = true;
    const auto write = [&isWritten](QByteArrayView text) {
        const auto size = static_cast<std::size_t>(text.size());
        isWritten = isWritten && std::fwrite(text.data(), 1, size, stdout) == size;
    };
    {
        platform::JsonWriter json(write);
        errors =
            inspectFiles(run.environment(), toolkit, readMovie, line.files, json, {line.timeScale, line.imagesFolder});
    }
    // What is cut off must not pass for the whole.
    if (std::fflush(stdout) != 0 || !isWritten)
        errors.append(QStringLiteral("the output cannot be written"));
    for (const QString& error : errors)
        complain(error);
    platform::PrivateSubfolder::waitUntilGone();
    return errors.isEmpty() ? exitSuccess : exitFailure;
}
