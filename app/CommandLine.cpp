// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"

#include "app/OpeningFiles.h"
#include "platform/base/TextEncoding.h"

#include <QDir>

namespace {

class Parser {
public:
    Parser(const QStringList& arguments, const QString& folder)
        : _arguments(arguments)
        , _folder(folder) {}

    CommandLine parse() {
        bool optionsEnded = false;
        while (_next < _arguments.size() && _result.error.isEmpty()) {
            const QString& argument = _arguments[_next++];
            if (optionsEnded || !argument.startsWith(QLatin1Char('-')) || argument == QStringLiteral("-"))
                addFile(argument);
            else if (argument == QStringLiteral("--"))
                optionsEnded = true;
            else
                option(argument);
        }
        return _result;
    }

private:
    void option(const QString& argument) {
        const qsizetype equals = argument.startsWith(QStringLiteral("--")) ? argument.indexOf(QLatin1Char('=')) : -1;
        const QString name = argument.left(equals);
        _attached = equals < 0 ? QString() : argument.mid(equals + 1);
        _hasAttached = equals >= 0;
        if (name == QStringLiteral("--set"))
            setting(value(name));
        else if (name == QStringLiteral("--images"))
            imagesFolder(value(name));
        else if (name == QStringLiteral("--time-scale"))
            _result.timeScale = number(name, 1, 1'000'000'000);
        else if (name == QStringLiteral("--fps"))
            _result.frameRateChoice = number(name, 0, 5);
        else if (name == QStringLiteral("--encoding"))
            encoding(value(name));
        else if (_hasAttached)
            fail(QStringLiteral("unknown option '%1'").arg(argument));
        else if (name == QStringLiteral("--append"))
            _result.append = true;
        else if (name == QStringLiteral("--software"))
            _result.software = true;
        else if (name == QStringLiteral("--inspect"))
            _result.mode = CommandLine::Mode::inspect;
        else if (name == QStringLiteral("--help") || name == QStringLiteral("-h"))
            _result.mode = CommandLine::Mode::help;
        else if (name == QStringLiteral("--version"))
            _result.mode = CommandLine::Mode::version;
        else
            fail(QStringLiteral("unknown option '%1'").arg(argument));
    }

    QString value(const QString& name) {
        if (_hasAttached)
            return _attached;
        if (_next < _arguments.size())
            return _arguments[_next++];
        fail(QStringLiteral("option '%1' needs a value").arg(name));
        return {};
    }

    std::int32_t number(const QString& name, std::int32_t lowest, std::int32_t highest) {
        const QString text = value(name);
        bool isNumber = false;
        const int result = text.toInt(&isNumber);
        if (_result.error.isEmpty() && (!isNumber || result < lowest || result > highest)) {
            fail(QStringLiteral("option '%1' takes a number from %2 to %3, not '%4'")
                     .arg(name)
                     .arg(lowest)
                     .arg(highest)
                     .arg(text));
        }
        return result;
    }

    void imagesFolder(const QString& text) {
        if (text.isEmpty())
            fail(QStringLiteral("option '--images' takes a folder"));
        else
            _result.imagesFolder = QDir::cleanPath(QDir(_folder).absoluteFilePath(text));
    }

    void encoding(const QString& text) {
        bool isNumber = false;
        _result.encoding = text.toLongLong(&isNumber, 0);
        // Beyond 31 bits both a negative and a positive number mean the same encoding.
        const auto number = static_cast<std::uint32_t>(_result.encoding);
        const bool isKnown = isNumber && !platform::localizedNameOfTextEncoding(number).isEmpty();
        if (_result.error.isEmpty() && !isKnown)
            fail(QStringLiteral("option '--encoding' takes the number of an encoding, not '%1'").arg(text));
    }

    void setting(const QString& text) {
        const qsizetype equals = text.indexOf(QLatin1Char('='));
        if (_result.error.isEmpty() && equals <= 0)
            fail(QStringLiteral("option '--set' takes KEY=VALUE, not '%1'").arg(text));
        else if (_result.error.isEmpty())
            _result.settings.append({text.left(equals), text.mid(equals + 1)});
    }

    void addFile(const QString& argument) {
        if (argument.isEmpty())
            fail(QStringLiteral("an empty file name"));
        else if (isURLString(argument))
            _result.files.append(argument);
        else
            _result.files.append(QDir::cleanPath(QDir(_folder).absoluteFilePath(argument)));
    }

    void fail(const QString& message) {
        if (_result.error.isEmpty())
            _result.error = message;
    }

    const QStringList& _arguments;
    const QString& _folder;
    CommandLine _result;
    qsizetype _next = 0;
    QString _attached;
    bool _hasAttached = false;
};

} // namespace

CommandLine CommandLine::parse(const QStringList& arguments, const QString& folder) {
    CommandLine result = Parser(arguments, folder).parse();
    if (result.error.isEmpty() && result.mode == Mode::inspect && result.files.isEmpty())
        result.error = QStringLiteral("option '--inspect' needs a file");
    return result;
}

QString CommandLine::helpText() {
    return QStringLiteral("Usage: lumaro [OPTIONS] [FILE|FOLDER|URL...]\n"
                          "Plays movies, one at a time, on the whole screen.\n"
                          "\n"
                          "  --set KEY=VALUE   a setting for this run only, over the user's (repeatable): YES or\n"
                          "                    NO, a number, a text, a date as 2026-01-31, a list as [1, 2]\n"
                          "  --append          add to the playlist instead of replacing it\n"
                          "  --software        draw without OpenGL\n"
                          "  --inspect         print what is in the given files as JSON, and exit\n"
                          "    --images DIR      write each picture of a bitmap subtitle track there\n"
                          "    --time-scale N    units a second of the times of subtitles (600)\n"
                          "    --fps N           frame rate of subtitles by frames: 0 the movie's, 1 23.976,\n"
                          "                      2 24, 3 25, 4 29.97, 5 30\n"
                          "    --encoding N      text encoding of subtitles, 0 for automatic\n"
                          "  --help            print this, and exit\n"
                          "  --version         print the version, and exit\n"
                          "\n"
                          "A second launch hands its files to the player that is running; --set and --software\n"
                          "act when it starts, and are refused then.\n"
                          "Exit status: 0 on success, 1 on an error, 2 on wrong usage.\n");
}
