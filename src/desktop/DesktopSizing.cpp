// SPDX-License-Identifier: MIT
#include "desktop/DesktopSizing.h"

namespace moravel {

DesktopScaling desktopScaling(QSize picture, QSize screen, int setting)
{
    const bool smaller = picture.width() < screen.width() && picture.height() < screen.height();
    const bool larger = picture.width() > screen.width() && picture.height() > screen.height();
    if (setting == sizing::FitToScreen)
        return DesktopScaling::Fit;
    if (setting == sizing::FillScreen)
        return DesktopScaling::Fill;
    if (setting == sizing::Center || smaller)
        return DesktopScaling::Centred;
    return larger ? DesktopScaling::Fill : DesktopScaling::Fit;
}

QString desktopSizeString(int setting)
{
    switch (setting) {
    case sizing::Auto:
        return QStringLiteral("auto");
    case sizing::FitToScreen:
        return QStringLiteral("fit to screen");
    case sizing::FillScreen:
        return QStringLiteral("fill screen");
    case sizing::Center:
        return QStringLiteral("center");
    default:
        return QStringLiteral("unknown");
    }
}

} // namespace moravel
