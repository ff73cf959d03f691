// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

#include <QString>
#include <QStringList>

namespace moravel {

/// A desktop whose file manager paints the picture and takes it only on its command line.
struct FileManagerDesktop
{
    const char *name; ///< For the log and messages.
    const char *word; ///< Its word in XDG_CURRENT_DESKTOP, lower case.
    const char *program; ///< Also the name of its settings folder.
    const char *centred; ///< Its words for the ways to lay a picture onto a screen.
    const char *fit;
    const char *fill; ///< Null when it can only stretch: it gets a copy in the screen's shape.
    const char *profile; ///< Of the settings.
    const char *settings; ///< File name of the settings.
    bool isKeyFile; ///< GLib's form of settings rather than Qt's.
    bool repaints; ///< Takes the same path again.
    const char *service; ///< Its name on the session bus; null when it has none.
};

/// Finds the row of a desktop by its word in XDG_CURRENT_DESKTOP, any case; null when there is none.
const FileManagerDesktop *fileManagerDesktop(const QString &word);

/// The arguments that set a picture.
QStringList setArguments(const FileManagerDesktop &desktop, const QString &path,
                         DesktopScaling scaling);

/// Tells whether the settings can hold that path: some are written without escapes.
bool canKeep(const FileManagerDesktop &desktop, const QString &path);

/// The settings file below @p configFolder: of the desktop's profile, or the default one where only
/// that exists.
QString settingsPath(const FileManagerDesktop &desktop, const QString &configFolder);

/// What the settings say.
struct FileManagerReading
{
    QString image; ///< Path as the desktop spells it; empty when it shows none.
    QString slideshowFolder; ///< Not empty while the desktop rotates by itself.
};

FileManagerReading readSettings(const FileManagerDesktop &desktop, const QString &file);

} // namespace moravel
