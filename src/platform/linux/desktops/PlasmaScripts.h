// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

#include <QByteArray>
#include <QList>
#include <QPoint>
#include <QString>

#include <optional>

namespace moravel {

/// What the shell says of one of its desktops.
struct PlasmaDesktop
{
    QPoint corner; ///< Top left of its screen.
    QString plugin; ///< Of the wallpaper.
    QString image; ///< As set: URL text or plain path of a file or a wallpaper package.
    QString folders; ///< Of a slideshow, parted by commas.
};

/// A script that prints the desktops of the current activity, for parsePlasmaDesktops().
QString plasmaReadScript();

/// A script that puts a picture onto the screen at @p corner, in all activities, and prints an
/// empty list. Throws when there is no such screen.
QString plasmaSetScript(const QPoint &corner, const QString &image, DesktopScaling scaling);

/// Reads what a script printed; none when that is damaged.
std::optional<QList<PlasmaDesktop>> parsePlasmaDesktops(const QString &printed);

/// The plain path of what a desktop shows; a slideshow's folder ends in "/". Empty when it shows
/// something else, or the theme's own picture. Looks into wallpaper packages on the disk.
QString plasmaShownPath(const PlasmaDesktop &desktop);

/// URL text for the shell, with one of two spellings of the same file: the shell only reads a file
/// again when the text differs from the one before.
QString plasmaImage(const QString &path, bool otherSpelling);

/// A JSON string literal that is also one of every JavaScript.
QString scriptString(const QString &text);

} // namespace moravel
