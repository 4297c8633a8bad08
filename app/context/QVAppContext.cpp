// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/context/QVAppContext.h"

QVAppContext* gAppController = nullptr;
