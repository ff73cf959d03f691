// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

#include <QImage>

#include <atomic>

namespace moravel {

/// Decodes the picture at @p path, upright and in sRGB, as it is to be seen on a screen of that size; the
/// result is what is to be drawn in the middle of the screen. Only what is seen is kept in memory. Null
/// when the file is not a readable picture. For worker threads; @p stop makes it give up.
QImage decodeForScreen(const QString &path, QSize screen, DesktopScaling scaling,
                       const std::atomic<bool> &stop);

} // namespace moravel
