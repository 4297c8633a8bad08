// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/JsonWriter.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <gtest/gtest.h>

#include <functional>
#include <limits>

using platform::JsonWriter;

namespace {

std::string written(const std::function<void(JsonWriter&)>& write) {
    std::string text;
    {
        JsonWriter json([&text](QByteArrayView piece) { text.append(piece.data(), std::size_t(piece.size())); });
        write(json);
    }
    return text;
}

} // namespace

TEST(JsonWriter, stands_indented_with_one_member_a_line) {
    EXPECT_EQ(written([](JsonWriter& json) {
                  json.beginArray();
                  json.beginObject();
                  json.member("text", QStringLiteral("one\ntwo"));
                  json.name("rect");
                  json.beginArray(JsonWriter::Items::oneLine);
                  json.value(0.5);
                  json.value(-720);
                  json.endArray();
                  json.name("nothing");
                  json.beginObject();
                  json.endObject();
                  json.member("forced", true);
                  json.member("rate", std::numeric_limits<double>::infinity());
                  json.endObject();
                  json.value(u"last");
                  json.endArray();
              }),
              "[\n  {\n    \"text\": \"one\\ntwo\",\n    \"rect\": [0.5, -720],\n    \"nothing\": {},\n"
              "    \"forced\": true,\n    \"rate\": null\n  },\n  \"last\"\n]\n");
}

TEST(JsonWriter, any_text_reads_back) {
    const QString texts[] = {{},
                             QStringLiteral("\"quoted\" \\ and / \b\t\r\n\x01\x1f\x7f"),
                             QString::fromUtf8("ěščř 日本 😀 \u2028"),
                             QString(QChar(0)) + 'x'};
    for (const QString& text : texts) {
        const std::string json = written([&](JsonWriter& writer) {
            writer.beginArray();
            writer.value(text);
            writer.endArray();
        });
        EXPECT_EQ(QJsonDocument::fromJson(QByteArray::fromStdString(json))[0].toString(), text) << json;
    }
}

TEST(JsonWriter, hands_over_as_it_goes) {
    int pieces = 0;
    qsizetype largest = 0;
    std::string text;
    {
        JsonWriter json([&](QByteArrayView piece) {
            ++pieces;
            largest = std::max(largest, piece.size());
            text.append(piece.data(), std::size_t(piece.size()));
        });
        json.beginArray();
        for (int i = 0; i < 50000; ++i)
            json.value(i);
        json.endArray();
    }
    EXPECT_GT(pieces, 3);
    EXPECT_LT(largest, 100000);
    EXPECT_EQ(QJsonDocument::fromJson(QByteArray::fromStdString(text)).array().size(), 50000);
}
