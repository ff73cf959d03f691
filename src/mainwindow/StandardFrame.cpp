// SPDX-License-Identifier: MIT
#include "mainwindow/StandardFrame.h"

namespace moravel {

QRect standardFrame(QSize picture, const QRect &current, QSize minimum, QSize screen,
                    const QRect &defaultFrame)
{
    if (picture.isEmpty())
        return defaultFrame;
    const QSize wanted(picture.width() + BesidePicture, picture.height() + BelowPicture);
    return {current.topLeft(), wanted.expandedTo(minimum).boundedTo(screen)};
}

} // namespace moravel
