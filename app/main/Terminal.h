// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QString;

/// A line for the person at the terminal.
void complain(const QString& message);
