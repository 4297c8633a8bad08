// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/PictureSource.h"

#include <QImage>

/// The movie's picture is what the test says.
class StandingPicture final : public PictureSource {
public:
    QImage picture; // none at first
    int asked = 0;
    QImage still(const QSize&) override {
        ++asked;
        return picture;
    }
};
