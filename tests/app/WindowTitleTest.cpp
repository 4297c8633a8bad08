// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/WindowTitle.h"

#include "tests/support/PlaybackRig.h"

#include <gtest/gtest.h>

TEST(WindowTitle, names_the_movie_that_is_shown_and_the_program) {
    PlaybackRig rig;
    QStringList titles;
    const WindowTitle title(rig.settings.environment, "Lumaro", [&titles](const QString& text) { titles << text; });
    rig.post(QVPlaylistMovieChangedNotification{rig.open("file:///films/film.mkv")});
    rig.post(QVPlaylistMovieChangedNotification{nullptr});
    EXPECT_EQ(titles, (QStringList{"film.mkv — Lumaro", "Lumaro"}));
}
