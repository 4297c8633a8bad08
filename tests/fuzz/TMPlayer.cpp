// SPDX-License-Identifier: GPL-3.0-or-later
#include "subtitles/text/QVTMPlayerSubtitles.h"
#include "tests/fuzz/TextFuzz.h"

LUMARO_FUZZ_READER(QVTMPlayerSubtitles)
