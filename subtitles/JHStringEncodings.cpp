// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/JHStringEncodings.h"

#include "platform/base/TextEncoding.h"
#include "settings/Tracing.h"

JHStringEncodings& JHStringEncodings::sharedManager() {
    static JHStringEncodings shared;
    return shared;
}

JHStringEncodings::JHStringEncodings() {
    for (const std::uint32_t encoding : platform::availableTextEncodings())
        _encodings.insert(platform::localizedNameOfTextEncoding(encoding), encoding);
}

std::uint32_t JHStringEncodings::encodingForLocalizedEncodingName(const QString& name) const {
    if (name == platform::localizedNameOfTextEncoding(platform::textEncoding::automatic))
        return platform::textEncoding::automatic;
    return _encodings.value(name, noEncoding);
}

QStringList JHStringEncodings::localizedNamesOfStringEncodings(const QList<std::uint32_t>& encodings) {
    QStringList names;
    for (const std::uint32_t encoding : encodings) {
        const QString name = platform::localizedNameOfTextEncoding(encoding);
        if (name.isEmpty())
            logAlways("ERROR: %@: Invalid  encoding in the list: %d\n", "JHStringEncodings",
                      static_cast<std::int32_t>(encoding));
        else
            names.append(name);
    }
    return names;
}
