// SPDX-License-Identifier: GPL-3.0-or-later
// lumaro_make_vobsub BASE: makes BASE.idx and BASE.sub of lines on standard input, each
//   START END STREAM LANGUAGE TEXT
// with times in milliseconds, streams from 0 on, a language of two letters, and bars between the lines of a text. White
// letters with a dark outline stand at the bottom of a frame of 720 x 480.
#include "tools/vobsub/VobSubWriter.h"

#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QLoggingCategory>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>

namespace {

constexpr std::uint8_t transparent = 0;
constexpr std::uint8_t white = 1;
constexpr std::uint8_t dark = 2;
constexpr std::uint8_t grey = 3;

std::uint8_t codeOf(QRgb pixel) {
    if (qAlpha(pixel) < 0x60)
        return transparent;
    const int brightness = qGray(pixel);
    return brightness > 0xB0 ? white : brightness < 0x50 ? dark : grey;
}

vobsub::Subpicture picture(const QString& text, int frameWidth, int frameHeight) {
    constexpr int outline = 5;
    constexpr int fromBottom = 24;
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(34);
    font.setBold(true);
    const QFontMetrics metrics(font);
    const QStringList lines = text.split(u'|');
    int width = 0;
    for (const QString& line : lines)
        width = std::max(width, metrics.horizontalAdvance(line));
    width = std::min(width + 2 * outline, frameWidth);
    const int height = std::min(static_cast<int>(lines.size()) * metrics.lineSpacing() + 2 * outline, frameHeight);

    QPainterPath letters;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const double left = (width - metrics.horizontalAdvance(lines[i])) / 2.0;
        letters.addText(left, outline + metrics.ascent() + static_cast<double>(i) * metrics.lineSpacing(), font,
                        lines[i]);
    }
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(letters, QPen(QColor(0x20, 0x20, 0x20), outline, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(letters, Qt::white);
    painter.end();

    vobsub::Subpicture result{.bitmap = {width, height}};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            result.bitmap.at(x, y) = codeOf(image.pixel(x, y));
    result.x = (frameWidth - width) / 2;
    result.y = frameHeight - height - std::min(fromBottom, frameHeight - height);
    return result;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2 || arguments[1][0] == '-') {
        std::fputs("usage: lumaro_make_vobsub BASE <LINES\n", stderr);
        return 2;
    }
    // Drawing texts needs an application, but no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    const QGuiApplication application(count, arguments);

    vobsub::PairWriter pair;
    std::vector<std::string> languages;
    std::string line;
    for (int number = 1; std::getline(std::cin, line); ++number) {
        std::istringstream fields(line);
        std::int64_t start = 0;
        std::int64_t end = 0;
        std::size_t stream = 0;
        std::string language;
        std::string text;
        if (!(fields >> start >> end >> stream >> language >> std::ws) || !std::getline(fields, text) || start < 0 ||
            end < start || stream > languages.size() || stream > 31) {
            std::fprintf(stderr, "lumaro_make_vobsub: line %d is not START END STREAM LANGUAGE TEXT\n", number);
            return 2;
        }
        if (stream == languages.size()) {
            languages.push_back(language);
            pair.addStream(language);
        }
        vobsub::Subpicture subpicture = picture(QString::fromStdString(text), pair.width, pair.height);
        subpicture.stop = static_cast<std::uint16_t>(std::min<std::int64_t>((end - start) * 90 / 1024, 0xFFFF));
        pair.add(static_cast<int>(stream), start, subpicture);
    }
    if (!pair.write(arguments[1])) {
        std::fprintf(stderr, "lumaro_make_vobsub: %s.idx and .sub cannot be written\n", arguments[1]);
        return 1;
    }
    return 0;
}
