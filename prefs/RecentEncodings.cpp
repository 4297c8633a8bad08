// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/RecentEncodings.h"

#include <algorithm>

namespace RecentEncodings {

Encodings fromSetting(const QVariantList& stored) {
    Encodings encodings;
    for (const QVariant& entry : stored) {
        bool isNumber = false;
        const qlonglong number = entry.toLongLong(&isNumber);
        if (isNumber)
            encodings.append(static_cast<std::uint32_t>(number));
    }
    return encodings;
}

QVariantList toSetting(const Encodings& encodings) {
    QVariantList stored;
    for (const std::uint32_t encoding : encodings)
        stored.append(static_cast<std::int32_t>(encoding)); // as the encoding itself is stored
    return stored;
}

Encodings withFirst(Encodings encodings, std::uint32_t encoding) {
    if (const auto place = encodings.indexOf(encoding); place > 0)
        encodings.move(place, 0);
    return encodings;
}

Addition adding(Encodings encodings, std::uint32_t encoding, std::int32_t size) {
    Addition result{std::move(encodings), {}};
    result.encodings.prepend(encoding);
    while (result.encodings.size() > std::max(size, 1))
        result.dropped.append(result.encodings.takeLast());
    return result;
}

} // namespace RecentEncodings
