// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

#include <concepts>
#include <functional>
#include <vector>

namespace platform {

/// Writes JSON (RFC 8259, UTF-8) as it is told, indented, with one member a line. It keeps no tree: what is written
/// costs the same however long the text becomes. Any thread.
class JsonWriter {
public:
    /// Takes the text piece by piece.
    using Sink = std::function<void(QByteArrayView text)>;
    /// How the items of an array stand: one a line, or all in one.
    enum class Items { lines, oneLine };

    explicit JsonWriter(Sink sink);
    /// Hands over what is left. Whatever was begun has been ended by then.
    ~JsonWriter();
    JsonWriter(const JsonWriter&) = delete;
    JsonWriter& operator=(const JsonWriter&) = delete;

    void beginObject();
    void endObject() { end('}'); }
    void beginArray(Items items = Items::lines);
    void endArray() { end(']'); }
    /// The name of the value that follows; names are ASCII without quotes and backslashes.
    void name(QByteArrayView name);

    /// Half a surrogate pair is replaced.
    void value(QStringView text);
    void value(std::same_as<bool> auto truth) { add(truth ? "true" : "false"); }
    template <std::integral Number>
    requires(!std::same_as<Number, bool>) void value(Number number) {
        add(QByteArray::number(static_cast<qint64>(number)));
    }
    /// The shortest text that reads back as the same number; null when it is not finite, which JSON can't say.
    void value(double number);
    void null() { add("null"); }

    void member(QByteArrayView name, const auto& content) {
        this->name(name);
        value(content);
    }

private:
    struct Level {
        Items items;
        bool isEmpty = true;
    };
    void add(QByteArrayView text);
    void begin(char bracket, Items items);
    void end(char bracket);
    /// What stands between the last item and the next one.
    void separate();
    void breakLine();
    void flush();

    Sink _sink;
    QByteArray _text; // not handed over yet
    std::vector<Level> _levels;
    bool _isNamed = false;
};

} // namespace platform
