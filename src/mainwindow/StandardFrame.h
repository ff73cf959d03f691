// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

namespace moravel {

/// Room that the large picture window takes beside a picture in its own size, in points, with its frame.
inline constexpr int BesidePicture = 34;
inline constexpr int BelowPicture = 254;

/// Returns the frame in which the large picture window shows a picture of that many pixels in its own size,
/// as far as the screen has room: it keeps its upper left corner. Without a picture it is @p defaultFrame.
QRect standardFrame(QSize picture, const QRect &current, QSize minimum, QSize screen,
                    const QRect &defaultFrame);

} // namespace moravel
