// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

class QIODevice;

namespace moravel::server {

/// Whether the content, whatever its name says, is of a kind of picture that loads nothing else.
bool isRaster(QIODevice &file);

/// The size at which a picture is shown, its orientation taken into account; invalid when it is
/// none.
QSize shownSize(QIODevice &file);

/// The size of a picture of @p size within @p box, never enlarged.
QSize sizeWithin(QSize size, QSize box);

/// Decodes a picture into at most @p box, never enlarging it, on white where it is transparent; null
/// when it does not decode or would take too much memory.
QImage fittedPicture(QIODevice &file, QSize box);

} // namespace moravel::server
