// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

/// A wish to see the picture of a cell large.
struct LargePicWish
{
    int tag = 0;
    bool deleted = false; ///< The picture is in the Trash.
    int clickCount = 0; ///< Of the mouse click that brought the wish; 0 when the program has it.
    bool desktopIsFolder = false; ///< The desktop itself rotates through a folder of pictures.
    QString path; ///< File that the cell's picture has or will have; empty when there can be none.
};

enum class LargePicAnswer {
    Nothing,
    Restore, ///< Fetch the deleted picture back.
    DesktopSettings, ///< Open the system's settings of the desktop picture.
    Show
};

LargePicAnswer answerTo(const LargePicWish &wish);

/// What is known of a picture that is to be shown, after its download was started if it is missing.
struct LargePicFacts
{
    QString longSourceName;
    QString dateString;
    QString captionString;
    QString path; ///< File that the picture has or will have.
    /// The same when it is there, or was on its way already; empty when its download just began or
    /// could not begin.
    QString large;
    bool downloading = false; ///< A download to that path was under way before.
    bool isImage = true; ///< Its extension is one of a picture.
    QString pictureFolder; ///< With a closing slash; empty when there is none.
};

/// What the window shows.
struct LargePicPlan
{
    QString title;
    QString picture; ///< File to show; empty for an empty area.
    QString captionName; ///< Stands in the caption line, before the size of the picture.
    bool isOwn = true; ///< Of a source: it has an original page, can be deleted and shared.
    bool cantShow = false;
    bool progress = false;
    bool info = false;
    bool operator==(const LargePicPlan &) const = default;
};

LargePicPlan planLargePic(const LargePicFacts &facts);

/// Returns the extension that tells whether a path or link names a picture: without the query that the
/// name of a downloaded file can carry along.
QString pictureExtension(const QString &path);

} // namespace moravel
