// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"
#include "app/main/Modes.h"
#include "app/main/Terminal.h"
#include "platform/base/Background.h"
#include "platform/base/Bundle.h"
#include "platform/base/PathNames.h"

#include <QDir>
#include <QFile>

#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace {

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

/// A file's name that is no text becomes its URL, in which nothing is lost.
QString wordOf(const char* argument) {
    const QByteArray bytes(argument);
    const QString text = QString::fromLocal8Bit(argument);
    if (bytes.startsWith('-') || text.toLocal8Bit() == bytes)
        return text;
    const QByteArray folder = QFile::encodeName(QDir::currentPath()) + '/';
    return platform::textOfNativePath(bytes.startsWith('/') ? bytes : folder + bytes);
}

} // namespace

int main(int count, char** arguments) {
    pinNumericLocale();
    QStringList words;
    for (int i = 1; i < count; ++i)
        words.append(wordOf(arguments[i]));
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
    case CommandLine::Mode::play: {
        // Whoever read the log may go: that ends no movie, and no settings are lost.
        std::signal(SIGPIPE, SIG_IGN);
        const int status = play(count, arguments, line);
        // A thread that hangs in the system would find the statics gone.
        if (!platform::background::waitUntilIdle(0)) {
            std::fflush(nullptr);
            std::_Exit(status);
        }
        return status;
    }
    }
    return exitFailure;
}
