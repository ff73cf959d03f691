// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

namespace moravel {

/// What of a picture is seen on a screen, in which size. Both lie centred: the part in the picture, what
/// is shown on the screen. Neither is larger than the picture and the screen, whatever their shapes.
struct PicturePlacement
{
    QSize part; ///< Pixels of the picture.
    QSize shown; ///< Pixels of the screen that the part is scaled to.
    bool operator==(const PicturePlacement &) const = default;
};

/// Lays a picture onto a screen. Empty sizes when one of both is empty.
PicturePlacement placePicture(QSize picture, QSize screen, DesktopScaling scaling);

} // namespace moravel
