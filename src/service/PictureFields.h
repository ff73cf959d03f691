// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace moravel {

/// Tells whether the lines of an answer, or the fields of a stored record, are good enough to show.
/// Fields of a record meet the same rules although they mean other things.
bool sufficientData(const QStringList &list);

/// Returns the picture link of a sufficient answer: the full-size one, unless it is missing or larger
/// than three megabytes (third value of line 6).
QString chosenPictureLink(const QStringList &lines);

/// Returns the information text of an answer in one line: line breaks become spaces, pairs of spaces go.
QString cleanedInfoText(QString text);

} // namespace moravel
