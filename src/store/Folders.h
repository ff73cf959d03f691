// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Files.h"

namespace moravel {

class Alerts;

/// The folders and files of the program in the user's home. Every call checks anew, so that a folder the
/// user removes is made again. Folder paths end with "/"; a path is empty when its folder cannot be made.
class Folders
{
public:
    Folders(Files &files, Alerts &alerts);

    /// Folder of the large pictures. Alerts when it cannot be made.
    QString moravelFolder();

    /// Folder of the thumbnails. Alerts when it cannot be made.
    QString thumbsFolder();

    /// The file of the picture records. Moves it here from the picture folder, where it once lived; when
    /// that fails, alerts and returns the old path. Alerts when its folder cannot be made.
    QString moravelDataFile();

    /// The last news that was shown.
    QString moravelNewsFile();

    /// The kept list of sources.
    QString sourcesFile();

    /// The names of the pictures that the user has set as desktop.
    QString desktopsFile();

    /// The names of the pictures that were let go to save space.
    QString letGoFile();

    /// Removes what writes that were interrupted have left in the folders; for the start of the program.
    void removeLeftovers();

private:
    QString picturePath(const QString &name) const;
    QString supportPath(const QString &name = {}) const;
    FileResult<void> provide(const QString &folder);
    QString provideOrAlert(const QString &folder, const QString &alertTitle);
    QString supportFile(const QString &name);

    Files &m_files;
    Alerts &m_alerts;
};

} // namespace moravel
