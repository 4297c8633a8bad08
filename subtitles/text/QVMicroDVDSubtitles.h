// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/text/MicroDVDLine.h"
#include "subtitles/text/TextSubtitles.h"

#include <QStringList>

#include <optional>
#include <string_view>

/// Subtitles a line each, timed in frames: "{start}{end}text|next line". Without an end a cue lasts until the next one
/// starts. Strictly times are cut to whole seconds, and the text begins behind the last brace; repairing, times are
/// exact, codes in braces are taken out, and a first line "{1}{1}23.976" says the frame rate in place of the settings.
class QVMicroDVDSubtitles : public TextSubtitles {
public:
    /// Any file is read, for as many cues as it has: the registry asks isFormatValid first.
    QVMicroDVDSubtitles(const platform::UserDefaults& settings, const QString& path, SubtitleOwner& owner);

    /// Whether a file that begins with this text is of this kind.
    static bool isFormatValid(std::string_view text, ReadingMode mode);
    static QStringList extensionsList();

    bool isFrameBased() const override { return true; }
    /// Repairing, the file is read again, so that times stay exact; a rate that the file says stays in force.
    void setFrameRate(std::int32_t choice) override;

protected:
    void beginReading() override;
    std::shared_ptr<QVSubtitle> readSubtitle(LineReader& lines) override;
    const char* className() const override { return "QVMicroDVDSubtitles"; }

private:
    std::shared_ptr<QVSubtitle> readStrictly(LineReader& lines);
    std::shared_ptr<QVSubtitle> readRepairing(LineReader& lines);
    std::optional<MicroDVDFrames> scanFrames(std::string_view line);
    std::shared_ptr<QVSubtitle> finish(std::shared_ptr<QVSubtitle> subtitle, const MicroDVDFrames& frames);
    void appendText(std::string_view line, QString& text);

    /// The cue before had no end of its own.
    bool _endTimeUndefined = false;
    /// Frames a second, where the file says them.
    std::optional<double> _rateOfFile;
    bool _isFirstLine = true;
};
