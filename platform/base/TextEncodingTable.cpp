// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/base/TextEncodingTable.h"

#include <algorithm>

namespace platform {

namespace {

constexpr TextEncodingEntry entries[] = {
    {4, "UTF-8", "Unicode (UTF-8)"},
    {10, "UTF-16", "Unicode (UTF-16)"},
    {0x90000100, "UTF-16BE", "Unicode (UTF-16BE)"},
    {0x94000100, "UTF-16LE", "Unicode (UTF-16LE)"},
    {0x8C000100, "UTF-32", "Unicode (UTF-32)"},
    {0x98000100, "UTF-32BE", "Unicode (UTF-32BE)"},
    {0x9C000100, "UTF-32LE", "Unicode (UTF-32LE)"},
    {1, "US-ASCII", "Western (ASCII)"},
    {5, "ISO-8859-1", "Western (ISO Latin 1)"},
    {0x8000020F, "ISO-8859-15", "Western (ISO Latin 9)"},
    {12, "windows-1252", "Western (Windows Latin 1)"},
    {30, "macintosh", "Western (Mac OS Roman)"},
    {0x80000410, "IBM850", "Western (DOS Latin 1)"},
    {0x80000400, "IBM437", "Latin-US (DOS)"},
    {9, "ISO-8859-2", "Central European (ISO Latin 2)"},
    {15, "windows-1250", "Central European (Windows Latin 2)"},
    {0x8000001D, "x-mac-centraleurroman", "Central European (Mac OS)"},
    {0x80000412, "IBM852", "Central European (DOS Latin 2)"},
    {0x80000203, "ISO-8859-3", "Western (ISO Latin 3)"},
    {0x80000204, "ISO-8859-4", "Central European (ISO Latin 4)"},
    {0x8000020A, "ISO-8859-10", "Nordic (ISO Latin 6)"},
    {0x80000416, "IBM861", "Icelandic (DOS)"},
    {0x8000041A, "IBM865", "Nordic (DOS)"},
    {0x8000020D, "ISO-8859-13", "Baltic (ISO Latin 7)"},
    {0x80000507, "windows-1257", "Baltic (Windows)"},
    {0x80000406, "IBM775", "Baltic (DOS)"},
    {0x8000020E, "ISO-8859-14", "Celtic (ISO Latin 8)"},
    {0x80000205, "ISO-8859-5", "Cyrillic (ISO 8859-5)"},
    {11, "windows-1251", "Cyrillic (Windows)"},
    {0x80000A02, "KOI8-R", "Cyrillic (KOI8-R)"},
    {0x80000A08, "KOI8-U", "Ukrainian (KOI8-U)"},
    {0x80000007, "x-mac-cyrillic", "Cyrillic (Mac OS)"},
    {0x80000413, "IBM855", "Cyrillic (DOS)"},
    {0x8000041B, "IBM866", "Russian (DOS)"},
    {0x80000207, "ISO-8859-7", "Greek (ISO 8859-7)"},
    {13, "windows-1253", "Greek (Windows)"},
    {0x80000006, "x-mac-greek", "Greek (Mac OS)"},
    {0x80000405, "IBM737", "Greek (DOS)"},
    {0x8000041C, "IBM869", "Greek (DOS Greek 2)"},
    {0x80000209, "ISO-8859-9", "Turkish (ISO Latin 5)"},
    {14, "windows-1254", "Turkish (Windows Latin 5)"},
    {0x80000023, "x-mac-turkish", "Turkish (Mac OS)"},
    {0x80000414, "IBM857", "Turkish (DOS)"},
    {0x80000208, "ISO-8859-8", "Hebrew (ISO 8859-8)"},
    {0x80000505, "windows-1255", "Hebrew (Windows)"},
    {0x80000417, "IBM862", "Hebrew (DOS)"},
    {0x80000206, "ISO-8859-6", "Arabic (ISO 8859-6)"},
    {0x80000506, "windows-1256", "Arabic (Windows)"},
    {0x80000419, "IBM864", "Arabic (DOS)"},
    {0x80000415, "IBM860", "Portuguese (DOS)"},
    {0x80000418, "IBM863", "Canadian French (DOS)"},
    {0x8000020B, "ISO-8859-11", "Thai (ISO 8859-11)"},
    {0x8000041D, "windows-874", "Thai (Windows, DOS)"},
    {0x80000508, "windows-1258", "Vietnamese (Windows)"},
    {8, "Shift_JIS", "Japanese (Shift JIS)"},
    {0x80000420, "windows-31j", "Japanese (Windows, DOS)"},
    {3, "EUC-JP", "Japanese (EUC)"},
    {21, "ISO-2022-JP", "Japanese (ISO 2022-JP)"},
    {0x80000821, "ISO-2022-JP-2", "Japanese (ISO 2022-JP-2)"},
    {0x80000822, "ISO-2022-JP-1", "Japanese (ISO 2022-JP-1)"},
    {0x80000632, "gb18030", "Chinese (GB 18030)"},
    {0x80000631, "GBK", "Simplified Chinese (GBK)"},
    {0x80000421, "windows-936", "Simplified Chinese (Windows, DOS)"},
    {0x80000930, "GB2312", "Simplified Chinese (GB 2312)"},
    {0x80000A05, "HZ-GB-2312", "Simplified Chinese (HZ GB 2312)"},
    {0x80000830, "ISO-2022-CN", "Chinese (ISO 2022-CN)"},
    {0x80000A03, "Big5", "Traditional Chinese (Big 5)"},
    {0x80000A06, "Big5-HKSCS", "Traditional Chinese (Big 5 HKSCS)"},
    {0x80000423, "windows-950", "Traditional Chinese (Windows, DOS)"},
    {0x80000931, "EUC-TW", "Traditional Chinese (EUC)"},
    {0x80000940, "EUC-KR", "Korean (EUC)"},
    {0x80000422, "windows-949", "Korean (Windows, DOS)"},
    {0x80000840, "ISO-2022-KR", "Korean (ISO 2022-KR)"},
};

} // namespace

std::span<const TextEncodingEntry> textEncodingTable() {
    return entries;
}

const TextEncodingEntry* textEncodingEntry(std::uint32_t number) {
    const auto* found = std::ranges::find(entries, number, &TextEncodingEntry::number);
    return found == std::end(entries) ? nullptr : found;
}

} // namespace platform
