// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace moravel {

/// Makes a caption as the service sends it readable: decodes its character references, turns "_"
/// into a space, and capitalises the words of a caption that equals its own upper-case form. Words
/// end at Unicode's word boundaries and at full stops; case is mapped the same in every locale. A
/// text too long to be a caption (over 16,384 units) keeps its case.
QString normalisedCaption(QStringView caption);

/// What a cell shows for \a caption: the normalised caption, with a hint how to get the picture
/// back when the caption says "Deleted.".
QString captionForCell(QStringView caption);

} // namespace moravel
