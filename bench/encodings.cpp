// SPDX-License-Identifier: GPL-3.0-or-later
// How often "Automatic" reads old subtitle files right, beside two detectors that other players use.
//   bench_encodings [--table]      --table prints each language and encoding, too
#include "platform/base/EncodingDetection.h"
#include "platform/base/TextEncoding.h"
#include "platform/base/TextEncodingTable.h"
#include "tests/platform/SpokenFiles.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <string>
#include <unicode/ucnv.h>
#include <unicode/ucsdet.h>
#ifdef LUMARO_UCHARDET
#include <uchardet.h>
#endif

namespace {

constexpr int drawsOfEach = 8;

/// The text with a converter of ICU's; empty without one.
QString decoded(const std::string& bytes, const char* name) {
    UErrorCode error = U_ZERO_ERROR;
    UConverter* converter = ucnv_open(name, &error);
    if (U_FAILURE(error))
        return {};
    QString text(static_cast<qsizetype>(2 * bytes.size() + 1), Qt::Uninitialized);
    const std::int32_t length =
        ucnv_toUChars(converter, reinterpret_cast<UChar*>(text.data()), static_cast<std::int32_t>(text.size()),
                      bytes.data(), static_cast<std::int32_t>(bytes.size()), &error);
    ucnv_close(converter);
    text.resize(U_SUCCESS(error) ? length : 0);
    return text.startsWith(QChar(QChar::ByteOrderMark)) ? text.mid(1) : text;
}

QString readByICU(const std::string& bytes) {
    UErrorCode error = U_ZERO_ERROR;
    UCharsetDetector* detector = ucsdet_open(&error);
    ucsdet_setText(detector, bytes.data(), static_cast<std::int32_t>(bytes.size()), &error);
    const UCharsetMatch* match = ucsdet_detect(detector, &error);
    const std::string name = match ? ucsdet_getName(match, &error) : "";
    ucsdet_close(detector);
    return decoded(bytes, name.c_str());
}

QString readByUchardet([[maybe_unused]] const std::string& bytes) {
#ifdef LUMARO_UCHARDET
    uchardet_t detector = uchardet_new();
    uchardet_handle_data(detector, bytes.data(), bytes.size());
    uchardet_data_end(detector);
    std::string name = uchardet_get_charset(detector);
    uchardet_delete(detector);
    if (name == "MAC-CENTRALEUROPE")
        name = "x-mac-centraleurroman";
    if (name == "UHC")
        name = "windows-949";
    return decoded(bytes, name.c_str());
#else
    return {};
#endif
}

QString readByLumaro(const std::string& bytes) {
    const QString text = platform::stringWithData(bytes, platform::detectedTextEncoding(bytes)).value_or(QString());
    return text.startsWith(QChar(QChar::ByteOrderMark)) ? text.mid(1) : text;
}

struct Detector {
    const char* name;
    QString (*read)(const std::string& bytes);
};

constexpr Detector detectors[] = {{"ICU", readByICU}, {"uchardet", readByUchardet}, {"Lumaro", readByLumaro}};
constexpr std::size_t detectorCount = std::size(detectors);

struct Counts {
    int files = 0;
    std::array<int, detectorCount> right{};

    void add(const SpokenFile& file) {
        ++files;
        for (std::size_t index = 0; index < detectorCount; ++index)
            right[index] += detectors[index].read(file.bytes) == file.text;
    }
    void add(const Counts& other) {
        files += other.files;
        for (std::size_t index = 0; index < detectorCount; ++index)
            right[index] += other.right[index];
    }
    void print() const {
        for (const int count : right)
            std::printf(" %5.1f %% |", 100.0 * count / std::max(files, 1));
        std::printf("\n");
    }
};

void printHeading(const char* first) {
    std::printf("| %s |", first);
    for (const Detector& detector : detectors)
        std::printf(" %s |", detector.name);
    std::printf("\n|---|");
    for (std::size_t index = 0; index < detectorCount; ++index)
        std::printf("---|");
    std::printf("\n");
}

struct Form {
    const char* name;
    std::uint32_t encoding;
    const char* mark;
};

/// Those of Unicode, which any text may be in.
constexpr Form unicodeForms[] = {{"UTF-8", platform::textEncoding::utf8, ""},
                                 {"UTF-8 with mark", platform::textEncoding::utf8, "\xEF\xBB\xBF"},
                                 {"UTF-16LE", platform::textEncoding::utf16LittleEndian, ""},
                                 {"UTF-16LE with mark", platform::textEncoding::utf16LittleEndian, "\xFF\xFE"},
                                 {"UTF-16BE", platform::textEncoding::utf16BigEndian, ""},
                                 {"UTF-16BE with mark", platform::textEncoding::utf16BigEndian, "\xFE\xFF"}};

Counts counted(const SpokenText& text, const Form& form, std::size_t cues, Markup markup) {
    std::minstd_rand draw(1);
    Counts counts;
    for (int index = 0; index < drawsOfEach; ++index) {
        SpokenFile file = spokenFile(text, form.encoding, cues, markup, draw);
        file.bytes.insert(0, form.mark);
        if (!file.bytes.empty())
            counts.add(file);
    }
    return counts;
}

void printSpeed() {
    std::minstd_rand draw(1);
    const SpokenFile file = spokenFile(spokenTexts().front(), 12, 1500, Markup::tags, draw);
    for (const Detector& detector : detectors) {
        detector.read(file.bytes);
        constexpr int times = 20;
        const auto begun = std::chrono::steady_clock::now();
        for (int index = 0; index < times; ++index)
            detector.read(file.bytes);
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - begun;
        std::printf("%s: %.2f ms for a file of %zu kB\n", detector.name, taken.count() / times,
                    file.bytes.size() / 1024);
    }
}

} // namespace

int main(int count, char** arguments) {
    const bool prints = count > 1 && std::strcmp(arguments[1], "--table") == 0;
    if (prints)
        printHeading("language, encoding, cues, markup");
    std::vector<std::pair<std::string, Counts>> sums;
    for (const std::size_t cues : {std::size_t(200), std::size_t(10)}) {
        for (const Markup markup : {Markup::none, Markup::tags}) {
            const std::string what = std::to_string(cues) + (markup == Markup::none ? ", plain" : ", tags");
            Counts old;
            Counts unicode;
            for (const SpokenText& text : spokenTexts()) {
                std::vector<Form> forms(std::begin(unicodeForms), std::end(unicodeForms));
                for (const std::uint32_t encoding : text.encodings)
                    forms.push_back({platform::textEncodingEntry(encoding)->converter, encoding, ""});
                for (std::size_t index = 0; index < forms.size(); ++index) {
                    const Counts counts = counted(text, forms[index], cues, markup);
                    (index < std::size(unicodeForms) ? unicode : old).add(counts);
                    if (prints) {
                        std::printf("| %s, %s, %s |", text.language, forms[index].name, what.c_str());
                        counts.print();
                    }
                }
            }
            sums.emplace_back("old encodings, " + what, old);
            sums.emplace_back("Unicode, " + what, unicode);
        }
    }
    std::printf("\n");
    printHeading("cues, markup");
    for (const auto& [what, counts] : sums) {
        std::printf("| %s |", what.c_str());
        counts.print();
    }
    std::printf("\n");
    printSpeed();
}
