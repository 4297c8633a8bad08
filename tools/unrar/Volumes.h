// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Links to an archive, and to its further volumes in the order of their numbers, under names of their own in a folder:
/// by the archive's own name other archives beside it would be taken for its volumes. Both numberings are known:
/// film.rar, film.r00, film.r01 ... film.r99, film.s00 ..., and film.part1.rar, film.part2.rar ... with any number of
/// leading zeros. Answers the link to the first.
QString linkVolumes(const QString& archive, const QString& folder);
