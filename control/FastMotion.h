// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The rates that fast forward and fast rewind set, from the movie's present rate (1.0 normal, 0 stopped, negative
/// backwards). Each press doubles the speed, up to 128.

float fastForwardRate(float rate);
/// A movie that stands still starts backwards, except at its beginning, where there is nothing to rewind: rate 0 stays.
float fastRewindRate(float rate, bool atBeginning);
