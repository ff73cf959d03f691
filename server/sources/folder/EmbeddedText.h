// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QFile;

namespace moravel::server {

/// What a picture file says of itself, on one line each; empty where it says nothing.
struct EmbeddedText
{
    QString title;
    QString description;
};

/// Reads title and description from XMP, else IPTC, else EXIF. Takes any file; never throws.
EmbeddedText readEmbeddedText(const QFile &file);

/// A caption made of a file name: "IMG_harbour-at_dusk.jpg" gives "IMG harbour at dusk".
QString captionFromName(const QString &fileName);

} // namespace moravel::server
