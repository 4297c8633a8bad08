// SPDX-License-Identifier: GPL-3.0-or-later
// The composition: every real class is named here, and nowhere else.
#include "app/CommandLine.h"
#include "app/Inspection.h"
#include "app/LaunchSteps.h"
#include "app/MainObjects.h"
#include "app/OpeningFiles.h"
#include "app/panels/HelpPanel.h"
#include "context/Environment.h"
#include "platform/base/Bundle.h"
#include "platform/base/NotificationCenter.h"
#include "platform/base/PrivateFolder.h"
#include "platform/base/QtRunLoop.h"
#include "platform/base/SettingsFile.h"
#include "platform/desktop/linux/Backlight.h"
#include "platform/desktop/linux/SessionBus.h"
#include "platform/desktop/linux/SingleInstance.h"
#include "platform/desktop/qt/QtDesktop.h"
#include "platform/movie/mpv/MpvToolkit.h"
#include "platform/window/qt/QtWindowHost.h"
#include "settings/QVUserDefaults.h"
#include "settings/SettingsKeys.h"
#include "settings/Tracing.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <optional>

namespace {

constexpr int exitSuccess = 0;
constexpr int exitFailure = 1;
constexpr int exitUsage = 2;

void complain(const QString& message) {
    std::fprintf(stderr, "lumaro: %s\n", message.toLocal8Bit().constData());
}

/// libmpv asks for numbers written with a point, and the application object takes over the locale that the environment
/// names. So the environment says it: a later setlocale then changes nothing under the threads that run already.
void pinNumericLocale() {
    if (const char* all = std::getenv("LC_ALL"); all && *all) {
        for (const char* category : {"LC_CTYPE", "LC_COLLATE", "LC_MESSAGES", "LC_TIME", "LC_MONETARY"})
            setenv(category, all, 1);
        setenv("LANG", all, 1);
        unsetenv("LC_ALL");
    }
    setenv("LC_NUMERIC", "C", 1);
    std::setlocale(LC_ALL, "");
}

/// A file named on the command line is taken at its word: what is missing or of an unknown type is tried, and reported
/// by the playlist. Only folders are searched for movies by their types.
QString asHandedOver(const QString& file) {
    if (isURLString(file) || QFileInfo(file).isDir())
        return file;
    const bool isMovie = QFileInfo::exists(file) && isFileOfType(file, supportedFileTypes(platform::Bundle::main()));
    return isMovie ? file : QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded);
}

QVariant settingValue(const QString& text, const QVariant& registered) {
    switch (registered.typeId()) {
    case QMetaType::Bool:
        return text == QStringLiteral("1") || text.compare(QStringLiteral("YES"), Qt::CaseInsensitive) == 0 ||
               text.compare(QStringLiteral("true"), Qt::CaseInsensitive) == 0;
    case QMetaType::LongLong:
    case QMetaType::Int:
        return text.toInt();
    case QMetaType::Double:
    case QMetaType::Float:
        return text.toDouble();
    default:
        return text;
    }
}

QUrl firstMovie(const QStringList& files) {
    return !files.isEmpty() && !isURLString(files.first()) && QFileInfo(files.first()).isFile()
               ? QUrl::fromLocalFile(files.first())
               : QUrl();
}

platform::Renderer chosenRenderer(const CommandLine& line) {
    if (line.software)
        return platform::Renderer::software;
    // For drivers that the automatic choice gets wrong.
    return qgetenv("LUMARO_RENDERER") == "opengl" ? platform::Renderer::openGL : platform::Renderer::automatic;
}

class Steps final : public LaunchSteps {
public:
    QWindow* window = nullptr;
    void runHelpPanel() override { ::runHelpPanel(window); }
};

/// The layered settings, with this run's own on top.
class Settings {
public:
    explicit Settings(std::unique_ptr<platform::SettingsStorage> storage)
        : _defaults(std::move(storage)) {
        platform::UserDefaults::setStandard(&_defaults);
        QVUserDefaults::prepare(_defaults);
    }
    ~Settings() { platform::UserDefaults::setStandard(nullptr); }

    bool apply(const CommandLine& line) {
        for (const auto& [key, text] : line.settings) {
            const QVariant known = _defaults.objectForKey(key);
            if (!known.isValid()) {
                complain(QStringLiteral("there is no setting '%1'").arg(key));
                return false;
            }
            _defaults.setOverride(key, settingValue(text, known));
        }
        return true;
    }

    platform::UserDefaults& defaults() { return _defaults; }

private:
    platform::UserDefaults _defaults;
};

int inspect(int& count, char** arguments, const CommandLine& line) {
    const QCoreApplication application(count, arguments);
    platform::QtRunLoop loop;
    platform::RunLoop::setMain(&loop);
    platform::NotificationCenter notifications;
    platform::NotificationCenter::setDefault(&notifications);
    Settings settings(std::make_unique<platform::SettingsFile>(platform::SettingsFile::defaultPath()));
    if (!settings.apply(line))
        return exitUsage;
    const Environment environment{loop, notifications, settings.defaults()};
    platform::MpvToolkit toolkit;
    platform::MovieToolkit::setShared(&toolkit);
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

int play(int& count, char** arguments, const CommandLine& line) {
    platform::SingleInstance instance(platform::SingleInstance::defaultSocketPath());
    // Opening the first movie takes as long as starting the application: it begins first.
    std::optional<platform::MpvToolkit> toolkit;
    if (!instance.isTaken()) {
        toolkit.emplace();
        toolkit->prepare(firstMovie(line.files));
    }
    platform::HandOver files{line.append, {}};
    for (const QString& file : line.files)
        files.files.append(asHandedOver(file));
    if (!toolkit) {
        if (instance.handOver(files))
            return exitSuccess;
        toolkit.emplace();
    }
    platform::MovieToolkit::setShared(&*toolkit);

    platform::QtDesktop desktop(count, arguments, QStringLiteral("Lumaro"));
    platform::Desktop::setShared(&desktop);
    platform::QtRunLoop loop;
    platform::RunLoop::setMain(&loop);
    platform::NotificationCenter notifications;
    platform::NotificationCenter::setDefault(&notifications);
    Settings settings(std::make_unique<platform::SettingsFile>(platform::SettingsFile::defaultPath()));
    if (!settings.apply(line))
        return exitUsage;
    const Environment environment{loop, notifications, settings.defaults()};

    platform::SessionBus bus;
    const platform::Backlight backlight(platform::Backlight::systemFolder(),
                                        [&bus](const QString& light, unsigned level) {
                                            bus.setBacklight(light, level);
                                            return true;
                                        });
    const auto brightness = [&backlight](const QString& screen) {
        int error = 0;
        const float value = backlight.brightness(screen, error);
        if (error != 0)
            logAlways("%@: ERROR: Retrieving brightness for current screen: %d", "Screen", error);
        return value;
    };
    desktop.setServices({[&bus](bool active) { bus.setInhibited(active); }, [&bus] { bus.suspend(); }, brightness,
                         [&backlight](const QString& screen, float value) { backlight.setBrightness(screen, value); }});

    int status = exitSuccess;
    {
        Steps steps;
        MainObjects player(environment, {desktop, *toolkit, platform::Bundle::main()}, steps);
        platform::QtWindowHost host(player.window(), chosenRenderer(line));
        host.setMainMenu(player.menu().bar(), player.application());
        desktop.setMainWindow(&host);
        steps.window = &host;

        const auto take = [&](const platform::HandOver& message) {
            desktop.setAssumedModifiers(message.append ? platform::modifier::option : 0);
            for (const QString& file : message.files)
                player.application().openFile(file);
            desktop.setAssumedModifiers(0);
            host.makeKeyAndOrderFront();
        };
        instance.listen(take);
        // After the first picture: nobody waits for it.
        constexpr double sweepDelay = 5;
        loop.perform([] { platform::PrivateFolder::sweep(); }, sweepDelay);
        if (!files.files.isEmpty())
            take(files);
        status = desktop.run(player.application());
    }
    platform::Desktop::setShared(nullptr);
    platform::NotificationCenter::setDefault(nullptr);
    return status;
}

} // namespace

int main(int count, char** arguments) {
    pinNumericLocale();
    QStringList words;
    for (int i = 1; i < count; ++i)
        words.append(QString::fromLocal8Bit(arguments[i]));
    const CommandLine line = CommandLine::parse(words, QDir::currentPath());
    if (!line.error.isEmpty()) {
        complain(line.error + QStringLiteral("; try --help"));
        return exitUsage;
    }
    switch (line.mode) {
    case CommandLine::Mode::help:
        std::fputs(CommandLine::helpText().toLocal8Bit().constData(), stdout);
        return exitSuccess;
    case CommandLine::Mode::version:
        std::printf("Lumaro %s\n", platform::Bundle::main()
                                       .objectForInfoDictionaryKey(QStringLiteral("CFBundleShortVersionString"))
                                       .toString()
                                       .toLocal8Bit()
                                       .constData());
        return exitSuccess;
    case CommandLine::Mode::inspect:
        return inspect(count, arguments, line);
    case CommandLine::Mode::play:
        return play(count, arguments, line);
    }
    return exitFailure;
}
