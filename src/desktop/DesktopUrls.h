// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

/// Removes every "file://localhost" of a desktop's URL text; percent escapes stay.
QString withoutFileHost(const QString &url);

/// Returns the plain path of a desktop's URL text: every "file://localhost" removed, percent escapes
/// undone. What is no escape ("%zz") stays as it is.
QString desktopPathFromUrl(const QString &url);

/// Returns the URL text ("file://localhost/…", percent-escaped) of a plain path.
QString desktopUrlFromPath(const QString &path);

/// Tells whether a desktop path is a folder that the desktop itself takes its pictures from.
bool isDesktopFolder(const QString &path);

} // namespace moravel
