// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/RegularFile.h"

#include <QFile>
#include <QStringDecoder>
#include <QStringEncoder>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace platform;

namespace {

constexpr qsizetype maximumLine = 4096;
/// Of the pieces in which a file is read: what a line is cut at may lie across two.
constexpr qsizetype pieceSize = 256 * 1024;

class TextFiles : public testing::Test {
protected:
    TextFile read(const QByteArray& content, qsizetype limit = 1 << 30) {
        QFile file(path());
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
        file.close();
        const auto text = readTextFile(path(), limit, maximumLine);
        EXPECT_TRUE(text);
        return text.value_or(TextFile());
    }
    QString path() const { return _folder.filePath("text"); }

private:
    QTemporaryDir _folder;
};

QByteArray repeated(const char* piece, qsizetype size) {
    return QByteArray(piece).repeated(size / static_cast<qsizetype>(qstrlen(piece)));
}

} // namespace

TEST_F(TextFiles, what_has_no_long_lines_stays_as_it_is) {
    const QByteArray lines = repeated("a line\r\nanother\rthe third\n\n", 3 * pieceSize);
    for (const QByteArray& content : {QByteArray(), QByteArray("a"), QByteArray("\n"), lines, lines + "the last",
                                      QByteArray(maximumLine, 'x'), QByteArray("\xFF\xFE\n")}) {
        const TextFile file = read(content);
        EXPECT_EQ(file.bytes, content) << content.left(20).toStdString();
        EXPECT_EQ(file.leftOut, 0);
    }
    EXPECT_EQ(read(lines, 1000).bytes, lines.left(1000));
    EXPECT_FALSE(readTextFile("/", 1000, maximumLine));
}

TEST_F(TextFiles, long_lines_lose_their_ends_between_characters) {
    constexpr qsizetype near = 1100; // a blank, or the end of a character
    const auto expectCut = [&](const QByteArray& first, const char* letters, const QByteArray& end) {
        const TextFile file = read(first + repeated(letters, pieceSize + 9000) + end + "after" + end);
        EXPECT_TRUE(file.bytes.startsWith(first));
        EXPECT_TRUE(file.bytes.endsWith(end + "after" + end));
        EXPECT_LE(file.bytes.size(), first.size() + maximumLine + near);
        EXPECT_GE(file.bytes.size(), first.size() + maximumLine);
        EXPECT_GT(file.leftOut, pieceSize);
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString text = decoder(file.bytes);
        EXPECT_FALSE(decoder.hasError() || text.contains(QChar::ReplacementCharacter)) << letters << first.size();
    };
    for (const char* end : {"\n", "\r", "\r\n"})
        expectCut("short" + QByteArray(end), "words ", end);
    // The places around which a line may be cut, each brought to the border of two pieces.
    for (const char* letters : {"x", "é ", "é", "字幕", "😀"})
        for (const qsizetype cut : {maximumLine, maximumLine + 1024})
            for (qsizetype shift = -4; shift <= 4; ++shift)
                expectCut(QByteArray(pieceSize - cut + shift - 1, '\n') + '\n', letters, "\n");
}

TEST_F(TextFiles, units_of_two_bytes_stay_whole) {
    const auto expectWhole = [&](const QString& letters, QStringConverter::Encoding encoding, bool marked) {
        const QString content =
            "first\n" + letters.repeated(pieceSize) + "\nafter\r\n" + QString(pieceSize, u'y') + "\nend";
        QStringEncoder encoder(encoding, marked ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
        const QByteArray bytes = encoder(content);
        QStringDecoder decoder(encoding);
        const QString text = decoder(read(bytes).bytes);
        EXPECT_TRUE(text.startsWith("first\n" + letters + letters));
        EXPECT_TRUE(text.contains(letters.front() + QString("\nafter\r\nyy")) ||
                    text.contains(letters.back() + QString("\nafter\r\nyy")));
        EXPECT_TRUE(text.endsWith("yy\nend"));
        EXPECT_LT(text.size(), 3 * maximumLine);
    };
    for (const char* letters : {"字x", "字"})
        for (const auto encoding : {QStringConverter::Utf16LE, QStringConverter::Utf16BE})
            for (const bool marked : {true, false})
                expectWhole(letters, encoding, marked);
}
