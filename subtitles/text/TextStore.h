// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/base/TextEncoding.h"
#include "subtitles/QVSubtitle.h"
#include "subtitles/input/SubtitleText.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <deque>
#include <memory>
#include <string_view>

/// A text that is put together piece by piece: in place, where valid pieces of UTF-8 follow each other in the file,
/// else copied. One of the two is empty.
struct PendingText {
    std::string_view utf8;
    QString copy;

    bool isEmpty() const { return utf8.empty() && copy.isEmpty(); }
};

/// The cues of a file of texts together with the bytes that they may have their texts in. Each cue keeps all of them:
/// one allocation for many cues, and no copies of texts, load a large file in half the time.
class TextStore {
public:
    explicit TextStore(SubtitleText text);
    TextStore(const TextStore&) = delete;
    TextStore& operator=(const TextStore&) = delete;

    /// What there is to read. Pieces handed to append are parts of it.
    std::string_view view() const;
    /// Decodes exactly these bytes and appends them; leaves the text as it is when they are not valid, and when it is
    /// already longer than any cue that somebody wrote.
    bool appendBytes(std::string_view bytes, QString& text);
    /// The same for a piece of the text being read, which stays where it is as long as it can.
    void appendPiece(std::string_view piece, PendingText& text);
    /// Where a cue's text is put together: empty, and with the memory that earlier cues needed.
    PendingText& emptiedText();
    /// A cue, with white space and newlines taken off both ends of its text.
    static std::shared_ptr<QVSubtitle> makeSubtitle(const std::shared_ptr<TextStore>& store, const PendingText& text,
                                                    std::int32_t start, std::int32_t end);
    /// Drops what only reading needs; the bytes too, unless a cue has its text in them.
    void finishReading();

private:
    QByteArray _bytes;
    platform::TextDecoder _decoder;
    /// All of the bytes, when they are valid UTF-8 and are to be read as that.
    std::string_view _validUTF8;
    bool _bytesInUse = false;
    PendingText _pendingText;
    std::deque<QVSubtitle> _subtitles;
};
