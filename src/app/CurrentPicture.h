// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>

namespace moravel {

class Dates;
class ThumbView;

/// What other programs are told of the picture at @p path on the desktop: source, date (yyyy-mm-dd), caption,
/// path and page, as far as @p desktopCell knows them.
QVariantMap currentPicture(const QString &path, const ThumbView &desktopCell, const Dates &dates);

/// Returns the same as lines for a terminal; no text of it can steer the terminal.
QString pictureText(const QVariantMap &picture);

/// Returns the same as one JSON object.
QByteArray pictureJson(const QVariantMap &picture);

} // namespace moravel
