// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/text/TextSubtitles.h"

#include <QStringList>

#include <string_view>

/// Subtitles a line each, timed in frames: "{start}{end}text|next line". Without an end a cue lasts until the next one
/// starts.
class QVMicroDVDSubtitles : public TextSubtitles {
public:
    /// Any file is read, for as many cues as it has: the registry asks isFormatValid first.
    QVMicroDVDSubtitles(const platform::UserDefaults& settings, const QString& path, SubtitleOwner& owner);

    /// Whether a file that begins with this text is of this kind.
    static bool isFormatValid(std::string_view text);
    static QStringList extensionsList();

    bool isFrameBased() const override { return true; }

protected:
    std::shared_ptr<QVSubtitle> readSubtitle(LineReader& lines) override;
    const char* className() const override { return "QVMicroDVDSubtitles"; }

private:
    /// The cue before had no end of its own.
    bool _endTimeUndefined = false;
};
