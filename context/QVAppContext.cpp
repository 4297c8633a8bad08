// SPDX-License-Identifier: GPL-3.0-or-later
#include "context/QVAppContext.h"

QVAppContext* gAppController = nullptr;
