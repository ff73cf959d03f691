// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/PicturePlacement.h"

namespace moravel {

PicturePlacement placePicture(QSize picture, QSize screen, DesktopScaling scaling)
{
    if (picture.isEmpty() || screen.isEmpty())
        return {QSize(0, 0), QSize(0, 0)};
    switch (scaling) {
    case DesktopScaling::Centred:
        return {picture.boundedTo(screen), picture.boundedTo(screen)};
    case DesktopScaling::Fit:
        return {picture, picture.scaled(screen, Qt::KeepAspectRatio).expandedTo(QSize(1, 1))};
    case DesktopScaling::Fill:
        return {screen.scaled(picture, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)), screen};
    }
    return {};
}

} // namespace moravel
