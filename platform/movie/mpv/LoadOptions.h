// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace platform {

struct MovieInfo;

/// The options of the core's own that a movie is loaded with, as its loadfile command takes them: empty, or names and
/// values with commas in between. It starts at `start` seconds.
QByteArray loadOptions(const MovieInfo& movie, double start);

} // namespace platform
