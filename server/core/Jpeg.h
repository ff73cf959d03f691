// SPDX-License-Identifier: MIT
#pragma once

#include "server/core/PictureSource.h"

#include <QImage>

class QFile;

namespace moravel::server {

/// Encodes a picture at the quality of its kind; empty when that fails.
QByteArray encodedJpeg(const QImage &image, PictureKind kind);

/// Whether the open file begins and ends as a JPEG does and tells its size. Leaves it at its start.
bool isWholeJpeg(QFile &file);

} // namespace moravel::server
