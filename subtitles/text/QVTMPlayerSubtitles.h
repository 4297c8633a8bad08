// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/text/TextSubtitles.h"

#include <QStringList>

#include <string_view>

/// Subtitles a line each, timed in seconds: "hours:minutes:seconds:text|next line", or "...,1=text" and "...,2=text"
/// for the lines of a cue. A cue lasts until the next one starts, the last one three seconds.
class QVTMPlayerSubtitles : public TextSubtitles {
public:
    /// Any file is read, for as many cues as it has: the registry asks isFormatValid first.
    QVTMPlayerSubtitles(const platform::UserDefaults& settings, const QString& path, SubtitleOwner& owner);

    /// Whether a file that begins with this text is of this kind.
    static bool isFormatValid(std::string_view text, ReadingMode mode);
    static QStringList extensionsList();

protected:
    std::shared_ptr<QVSubtitle> readSubtitle(LineReader& lines) override;
    const char* className() const override { return "QVTMPlayerSubtitles"; }
};
