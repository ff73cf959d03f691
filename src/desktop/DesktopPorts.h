// SPDX-License-Identifier: MIT
#pragma once

#include "thumb/ThumbView.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QStringList>

#include <functional>

namespace moravel {

/// A question with some answers; the first button is the default one.
struct DesktopQuestion
{
    QString title;
    QString text;
    QStringList buttons;
};

/// What desktop management needs of its neighbours. An empty port is skipped.
struct DesktopPorts
{
    /// Tells whether a large picture is on its way to this path.
    std::function<bool(const QString &path)> isDownloading;
    /// Finds the upright pixel size of a picture file (empty if it is none), later than the call.
    std::function<void(const QString &path, std::function<void(QSize)> done)> pixelSize;
    /// Something that differs when the file was changed (size and time), empty without a file. Cheap: it
    /// is asked for at each tick.
    std::function<QByteArray(const QString &path)> fileStamp;
    /// Asks without blocking; gives the index of the button, or -1 when the question was dismissed.
    std::function<void(const DesktopQuestion &, std::function<void(int button)> answer)> ask;

    /// Runs one step of the thumbnail pass.
    std::function<void()> loadNextThumb;
    /// Tells whether the fields of a stored record are good enough to show.
    std::function<bool(const QStringList &fields)> sufficientData;
    /// Long name of a source by its short one; "" when it is unknown.
    std::function<QString(const QString &shortName)> longSourceName;
    /// Restores the deleted picture of a cell.
    std::function<void(ThumbView &)> reloadDeletedPic;

    /// The user has chosen this picture for the desktop.
    std::function<void(const QString &path)> userChose;
    /// The user wants a picture as desktop that is not here: where it was not to be fetched unasked, it is
    /// now, and set when it is here.
    std::function<void(ThumbView &)> fetchForDesktop;
    /// Why the desktop may not be changed now unless the user asks for it; empty when it may.
    std::function<QString()> whyNotNow;
    /// Shows when the desktop changes next.
    std::function<void(const QString &text)> showNextChange;
    std::function<void(bool visible)> showKeepButton;
    /// Shows the icon of the program: window and tray.
    std::function<void(const QImage &)> showDockTile;
    std::function<QImage()> applicationIcon;
    /// Brings the program's windows to the front.
    std::function<void()> activate;
    std::function<void(ThumbView &)> showLargePic;
    /// Shows a file, marked, in the file manager.
    std::function<void(const QString &path)> revealFile;
    /// Opens the settings of the running desktop; gives the message of what failed, or "".
    std::function<void(std::function<void(const QString &error)> done)> runDesktopPrefsScript;
};

} // namespace moravel
