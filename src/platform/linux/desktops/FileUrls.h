// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

/// Returns the URL text "file://localhost/…" of an absolute path, percent-escaped as UTF-8. Empty for a
/// path that is not absolute or holds a NUL.
QString fileUrl(const QString &path);

/// Returns the path that a desktop's setting names: URL text of the scheme "file" with any host or none,
/// or a plain absolute path, which is taken as it stands. Empty for everything else.
QString pathOfUrl(const QString &text);

/// Returns the URL text of the folder that holds the file at @p path, ending in "/": how a folder that the
/// desktop itself rotates through is told.
QString folderUrlOf(const QString &path);

} // namespace moravel
