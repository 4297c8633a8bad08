// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <optional>
#include <stop_token>

namespace platform {

/// A program to run to its end.
struct ToolRequest {
    /// A path, or a name to be looked up in the folders of PATH.
    QString program;
    QStringList arguments;
    /// In seconds: after this long the program and what it has started are killed.
    double timeout = 60;
    /// Where it runs, when given.
    QString folder;
    /// "NAME=value", over the variables it would have otherwise.
    QStringList environment;
    /// At most so many bytes of memory, and of any file it writes, when given.
    std::optional<std::uint64_t> memory;
    std::optional<std::uint64_t> fileSize;
    /// Leaves out what it says to its standard error, which is put with its output otherwise.
    bool dropsErrors = false;
    /// Called with each piece of its output while it runs.
    std::function<void(const QByteArray&)> output;
    /// When it says more than so many bytes, it is killed; `output` gets no more than these.
    std::optional<qsizetype> maximumOutput;
    /// Asked some twenty times a second: the program is killed when the answer is no.
    std::function<bool()> mayGoOn;
    /// The program is killed as soon as a stop is requested.
    std::stop_token stop;
};

/// Runs a program without input, in a process group of its own, and waits for its end; events are not handled
/// meanwhile. It does not outlive this process. Answers its exit status, 128 and the signal's number when a signal
/// ended it, and none when it could not be started or a stop was requested before. Any thread; the program dies with
/// the thread that called.
std::optional<int> runTool(const ToolRequest& request);

} // namespace platform
