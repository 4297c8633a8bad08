// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/Environment.h"
#include "platform/movie/PictureShape.h"

#include <QString>

namespace platform {
class UserDefaults;
} // namespace platform

/// The colors in which every movie is shown, as settings: whoever changes one, by keys or in the preferences, changes
/// it for all. Main thread.
namespace PictureColors {

/// As far from 0, which leaves a color as it is in the movie, as one can be taken either way.
inline constexpr int greatest = 100;

/// What is stored, within the bounds.
platform::PictureAdjustment stored(const platform::UserDefaults& settings);
/// Keeps what differs from what is stored, as the user's own choice, and announces each.
void store(const Environment& environment, const platform::PictureAdjustment& adjustment);
/// Whether the setting is one of them.
bool isKey(const QString& key);

} // namespace PictureColors
