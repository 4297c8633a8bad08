// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/JsonWriter.h"

#include "platform/base/NumberText.h"

#include <cmath>
#include <utility>

namespace platform {

namespace {

constexpr qsizetype pieceSize = 1 << 16;
constexpr int indentation = 2;

/// The text in quotes. Only what has to be escaped is.
void appendQuoted(QByteArray& json, QByteArrayView utf8) {
    json += '"';
    qsizetype plain = 0;
    for (qsizetype at = 0; at < utf8.size(); ++at) {
        const auto byte = static_cast<unsigned char>(utf8[at]);
        if (byte >= ' ' && byte != '"' && byte != '\\')
            continue;
        json.append(utf8.sliced(plain, at - plain));
        plain = at + 1;
        switch (byte) {
        case '"':
        case '\\':
            json += '\\';
            json += static_cast<char>(byte);
            break;
        case '\n':
            json += "\\n";
            break;
        default:
            json += "\\u00" + QByteArray::number(byte, 16).rightJustified(2, '0');
            break;
        }
    }
    json.append(utf8.sliced(plain));
    json += '"';
}

} // namespace

JsonWriter::JsonWriter(Sink sink)
    : _sink(std::move(sink)) {
    _text.reserve(pieceSize + pieceSize / 4);
}

JsonWriter::~JsonWriter() {
    _text += '\n';
    flush();
}

void JsonWriter::beginObject() {
    begin('{', Items::lines);
}

void JsonWriter::beginArray(Items items) {
    begin('[', items);
}

void JsonWriter::name(QByteArrayView name) {
    separate();
    appendQuoted(_text, name);
    _text += ": ";
    _isNamed = true;
}

void JsonWriter::value(QStringView text) {
    separate();
    appendQuoted(_text, text.toUtf8());
}

void JsonWriter::value(double number) {
    if (std::isfinite(number))
        add(shortestText(number));
    else
        null();
}

void JsonWriter::add(QByteArrayView text) {
    separate();
    _text.append(text);
}

void JsonWriter::begin(char bracket, Items items) {
    separate();
    _text += bracket;
    _levels.push_back({items});
}

void JsonWriter::end(char bracket) {
    const Level level = _levels.back();
    _levels.pop_back();
    if (!level.isEmpty && level.items == Items::lines)
        breakLine();
    _text += bracket;
}

void JsonWriter::separate() {
    if (std::exchange(_isNamed, false) || _levels.empty())
        return;
    if (_text.size() > pieceSize)
        flush();
    Level& level = _levels.back();
    const bool isFirst = std::exchange(level.isEmpty, false);
    if (!isFirst)
        _text += level.items == Items::lines ? "," : ", ";
    if (level.items == Items::lines)
        breakLine();
}

void JsonWriter::breakLine() {
    _text += '\n';
    _text.append(static_cast<qsizetype>(_levels.size()) * indentation, ' ');
}

void JsonWriter::flush() {
    _sink(_text);
    // Keeps its capacity.
    _text.resize(0);
}

} // namespace platform
