// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

namespace moravel {

/// Returns a file's size in readable form: "999 B", "1.0 KB", "1.0 MB", with the digits of the user's region.
/// Empty for an empty file and for -1, a file whose size is not known. A unit begins at 1000 of the one
/// below, but holds 1024 of it.
QString prettyFileSize(qint64 bytes);

/// Returns the caption of a picture with its size: "Name (4000 x 3000 pixels, 2.5 MB)". What is not known
/// (an empty size, an empty text) is left out; with nothing known it is the name alone.
QString pictureSizeText(const QString &name, QSize pixels, const QString &fileSize);

} // namespace moravel
