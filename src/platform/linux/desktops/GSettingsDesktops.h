// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

#include <QString>

#include <optional>

namespace moravel {

/// Where one desktop keeps its picture in GSettings. A null key is one that the desktop does not have.
struct GSettingsDesktop
{
    const char *name; ///< For the log and messages.
    const char *word; ///< Its word in XDG_CURRENT_DESKTOP, lower case.
    const char *schema;
    const char *pictureKey;
    const char *darkKey; ///< The picture while the dark colour scheme is on.
    const char *drawKey; ///< Whether a picture is drawn at all.
    const char *slideshowSchema; ///< Has slideshow-enabled and image-source.
    bool plainPath; ///< The picture is a path rather than a URI.
    bool keepsPictures; ///< The shell never frees a picture: large ones are handed over as copies.
    bool plainNamesOnly =
        false; ///< It undoes escapes twice: names with %, # and ? need a stand-in.
};

/// Finds the row of a desktop by its word in XDG_CURRENT_DESKTOP, any case; null when there is none.
const GSettingsDesktop *gsettingsDesktop(const QString &word);

/// What a desktop's keys hold; a key that is missing holds nothing.
struct GSettingsReading
{
    std::optional<QString> picture;
    std::optional<QString> darkPicture;
    std::optional<QString> options;
    std::optional<QString> colorScheme;
    std::optional<bool> draws;
    std::optional<bool> slideshowEnabled;
    std::optional<QString> slideshowSource;
};

/// The plain path of what is shown: a picture, or a folder ending in "/" where the desktop rotates by
/// itself. Empty when no picture is shown, or it is not a file.
QString shownPath(const GSettingsReading &reading);

/// Tells whether the desktop changes its picture by itself.
bool isSlideshow(const GSettingsReading &reading);

/// The text for a desktop's key: the path, or its URI "file:///…".
QString pictureValue(const QString &path, bool plainPath);

/// The desktops' common names of the ways to lay a picture onto a screen.
QString pictureOptions(DesktopScaling scaling);

} // namespace moravel
