// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QImage;
class QSize;

/// Who has the movie's picture. Main thread.
class PictureSource {
public:
    virtual ~PictureSource() = default;

    /// A copy of what is seen of the movie's picture now, shrunk into `bounds` pixels where it is larger; a null image
    /// where none stands. It is rendered for that, which takes a few milliseconds.
    virtual QImage still(const QSize& bounds) = 0;
};
