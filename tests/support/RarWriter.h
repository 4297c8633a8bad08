// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <vector>

/// An entry of an archive that is put together by hand; whatever is given is written, be it true or not.
struct RarEntry {
    QByteArray name; // with slashes, whatever the format wants
    QByteArray data = {};
    std::uint32_t mode = 0100644; // of a Unix file
    std::optional<std::uint64_t> size = {};
    std::optional<std::uint32_t> checksum = {};
    bool isEncrypted = false;
    QByteArray linkTarget = {}; // makes a symbolic link
};

/// Archives with stored entries, in the two formats that are in use.
enum class RarFormat { rar4, rar5 };

QByteArray rarArchive(RarFormat format, const std::vector<RarEntry>& entries);
/// The volumes that one stored entry is spread over. Further volumes of an old numbering are called film.r00, film.r01
/// and so on after film.rar; only the older format has it. Those of the new one are called film.part1.rar and so on.
enum class RarNumbering { old, parts };
std::vector<QByteArray> rarVolumes(RarFormat format, RarNumbering numbering, const RarEntry& entry, int count);
/// One whose very list of entries cannot be read without a password.
QByteArray rarArchiveWithEncryptedHeaders(RarFormat format);
