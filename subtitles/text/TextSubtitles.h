// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subtitles/QVSubtitles.h"
#include "subtitles/text/TextStore.h"

#include <QByteArray>

#include <memory>
#include <optional>
#include <string_view>

class LineReader;

/// A track of texts, loaded at once: a reader derived from it says how one cue is read. Main thread.
class TextSubtitles : public QVSubtitles {
public:
    /// Reads the file again, so that nothing lost by a wrong choice stays lost. A file that is gone leaves the texts,
    /// and the encoding, as they were.
    void setEncoding(std::uint32_t encoding) override;
    bool isTextBased() const final { return true; }
    bool isImageBased() const final { return false; }

protected:
    TextSubtitles(const platform::UserDefaults& settings, QString path, SubtitleOwner& owner, Type type,
                  float timeScaleAdjustment)
        : QVSubtitles(settings, std::move(path), owner, type, timeScaleAdjustment, Loading::atOnce) {}

    /// A file is about to be read from its beginning.
    virtual void beginReading() {}
    /// The next cue of the file, or none at its end, in the track's mode. Takes at least a line unless the file is at
    /// its end; decodes with appendBytes, converts times with ajustToMovieTimeScale; may change the end of _previous,
    /// and makes the new cue _previous; notes the lines that it does not understand.
    virtual std::shared_ptr<QVSubtitle> readSubtitle(LineReader& lines) = 0;
    void _preload() override;
    /// The loop of _preload over the bytes of a file.
    void readAll(QByteArray bytes, std::uint32_t encoding);

    /// Ends the cue before at the start of the next one. Repairing, no cue ends before it starts: a next one that is
    /// earlier than that stands out of order.
    void endPrevious(std::int32_t start);
    /// None when the file cannot be opened, which is logged.
    std::optional<QByteArray> fileBytes() const;
    /// Reads a loaded file again, in place of the cues that there are. The cursor stays on its place.
    void readAgain(QByteArray bytes);

    // What the store of the file that is being read offers.
    bool appendBytes(std::string_view bytes, QString& text) { return _store->appendBytes(bytes, text); }
    void appendPiece(std::string_view piece, PendingText& text) { _store->appendPiece(piece, text); }
    PendingText& emptiedText() { return _store->emptiedText(); }
    std::shared_ptr<QVSubtitle> makeSubtitle(const PendingText& text, std::int32_t start, std::int32_t end) {
        return TextStore::makeSubtitle(_store, text, start, end);
    }

    /// The last cue read while loading.
    std::shared_ptr<QVSubtitle> _previous;

private:
    void readFile(QByteArray bytes);

    /// While a file is being read; afterwards the cues keep it.
    std::shared_ptr<TextStore> _store;
};
