// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

class Files;
class Folders;

/// Cuts a link that holds a second absolute link down to that one.
QString removeDoubleDomain(const QString &link);

/// Returns the file name of a link or path: what follows its last "/", as it stands there. Returns ""
/// where that cannot safely name a file in the program's folders, be it as it stands or with its percent
/// escapes undone: ".", "..", hidden, over 200 bytes of UTF-8, holding "/" or control characters, or
/// the name of one of the program's own files.
QString fileNameOfLink(const QString &link);

/// Returns the bare name of the file that keeps a link's picture: fileNameOfLink(), with ".jpg" added where
/// it has no extension.
QString pictureFileName(const QString &link);

/// Finds the files of links on the disk.
class PictureLinks
{
public:
    PictureLinks(Folders &folders, const Files &files);

    /// Returns the path of a link's picture in the picture folder or the folder of thumbnails; ".jpg" is
    /// added to a name without extension. Returns "" when the link cannot name a file, when the folder
    /// cannot be made (after its alert), and, with @p checkForFile, when there is no such file.
    QString picLinkToPath(const QString &link, bool isThumb, bool checkForFile) const;

private:
    Folders &m_folders;
    const Files &m_files;
};

} // namespace moravel
