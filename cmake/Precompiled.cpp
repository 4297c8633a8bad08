// SPDX-License-Identifier: GPL-3.0-or-later
// The target that owns the precompiled headers needs a source.
