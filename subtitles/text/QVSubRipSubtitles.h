// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/text/SubRipTiming.h"
#include "subtitles/text/TextSubtitles.h"

#include <QStringList>

#include <optional>
#include <string_view>

/// Subtitles in blocks: a number, "hours:minutes:seconds,milliseconds --> ..." and lines of text up to a blank one;
/// repairing, up to the next block.
class QVSubRipSubtitles : public TextSubtitles {
public:
    /// Any file is read, for as many cues as it has: the registry asks isFormatValid first.
    QVSubRipSubtitles(const platform::UserDefaults& settings, const QString& path, SubtitleOwner& owner);

    /// Whether a file that begins with this text is of this kind.
    static bool isFormatValid(std::string_view text, ReadingMode mode);
    static QStringList extensionsList();

protected:
    std::shared_ptr<QVSubtitle> readSubtitle(LineReader& lines) override;
    const char* className() const override { return "QVSubRipSubtitles"; }

private:
    std::optional<SubRipTiming> findTiming(LineReader& lines);
    void takeTextStrictly(LineReader& lines, PendingText& text);
    void takeTextRepairing(LineReader& lines, PendingText& text);
    void appendLine(std::string_view line, PendingText& text);
};
