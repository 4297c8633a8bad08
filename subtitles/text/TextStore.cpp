// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/text/TextStore.h"

#include "subtitles/text/CueText.h"

#include <utility>

namespace {

/// Bytes or characters of a cue. What is larger is no text that somebody wrote, and would fill the memory several times
/// over.
constexpr qsizetype maximumTextSize = 16 * 1024 * 1024;

} // namespace

TextStore::TextStore(SubtitleText text)
    : _bytes(std::move(text.bytes))
    , _decoder(text.decodeWith) {
    if (text.decodeWith == platform::textEncoding::utf8 && CueText::isValidUTF8(view()))
        _validUTF8 = view();
}

std::string_view TextStore::view() const {
    return {_bytes.constData(), static_cast<std::size_t>(_bytes.size())};
}

bool TextStore::appendBytes(std::string_view bytes, QString& text) {
    return text.size() >= maximumTextSize || _decoder.append(bytes, text);
}

void TextStore::appendPiece(std::string_view piece, PendingText& text) {
    if (text.utf8.size() >= static_cast<std::size_t>(maximumTextSize))
        return;
    const bool follows = text.utf8.empty() ? text.copy.isEmpty() : text.utf8.data() + text.utf8.size() == piece.data();
    if (follows && CueText::endsBetweenCharacters(piece, _validUTF8)) {
        text.utf8 =
            std::string_view(text.utf8.empty() ? piece.data() : text.utf8.data(), text.utf8.size() + piece.size());
        return;
    }
    if (!text.utf8.empty())
        appendBytes(std::exchange(text.utf8, {}), text.copy);
    appendBytes(piece, text.copy);
}

PendingText& TextStore::emptiedText() {
    _pendingText.utf8 = {};
    _pendingText.copy.resize(0);
    return _pendingText;
}

std::shared_ptr<QVSubtitle> TextStore::makeSubtitle(const std::shared_ptr<TextStore>& store, const PendingText& text,
                                                    std::int32_t start, std::int32_t end) {
    const std::string_view utf8 = CueText::trimmed(text.utf8);
    store->_bytesInUse |= !utf8.empty();
    std::deque<QVSubtitle>& subtitles = store->_subtitles;
    QVSubtitle& subtitle = utf8.empty() ? subtitles.emplace_back(CueText::trimmed(text.copy), start, end)
                                        : subtitles.emplace_back(utf8, start, end);
    return {store, &subtitle};
}

void TextStore::finishReading() {
    _pendingText = PendingText();
    _validUTF8 = {};
    if (!_bytesInUse)
        _bytes = QByteArray();
}
