// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <cstdint>

/// The encodings that the user may choose for subtitle files, by their names in the user's language. Main thread.
class JHStringEncodings {
public:
    /// What an unknown name answers.
    static constexpr std::uint32_t noEncoding = 0xFFFFFFFF;

    /// The one list, made on the first call.
    static JHStringEncodings& sharedManager();
    JHStringEncodings();

    /// Name to number. "Automatic" is not among them.
    const QHash<QString, std::uint32_t>& availableEncodings() const { return _encodings; }
    /// "Automatic" (0) is known here.
    std::uint32_t encodingForLocalizedEncodingName(const QString& name) const;
    /// The names in the order of the numbers; a number without a name is left out and logged.
    static QStringList localizedNamesOfStringEncodings(const QList<std::uint32_t>& encodings);

private:
    QHash<QString, std::uint32_t> _encodings;
};
