// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdint>

/// Which entries of an archive are taken out.
struct ArchiveListing {
    /// Their numbers.
    QStringList indexes;
    /// Bytes in all, as the archive has it.
    std::uint64_t size = 0;
    /// Entries left out: links, devices, pipes, and names that lead out of the archive. Folders are made as needed.
    int leftOut = 0;
    /// Why the archive is refused; empty when it is not.
    QString error;

    /// Chooses among what the program lsar printed as JSON.
    static ArchiveListing fromJson(const QByteArray& json);
};
