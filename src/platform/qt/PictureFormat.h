// SPDX-License-Identifier: MIT
// Which files count as pictures. A fixed list: vector formats and documents can reach for other
// files, and rare decoders are poorly tested against hostile bytes.
#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

namespace moravel::pictureformat {

/// First bytes of a file that fromContent() wants to see.
inline constexpr qint64 HeadBytes = 64;

/// Name of the format that a file with this beginning has, for QImageReader; empty when it is none
/// of ours. The file's name plays no part.
QByteArray fromContent(const QByteArray &head);

/// Tells whether an open file of this format is as long as it says itself. Some decoders give half a
/// picture for a cut-off file without a word. True for formats that keep no length; moves the position.
bool hasAnnouncedLength(const QByteArray &format, QIODevice &file);

/// Tells whether files with this extension (no dot, any case) are pictures that Qt can read here.
bool isExtension(const QString &extension);

} // namespace moravel::pictureformat
