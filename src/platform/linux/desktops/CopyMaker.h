// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

#include <QList>
#include <QSize>
#include <QString>

#include <atomic>

namespace moravel {

/// A copy to be made: of what, for which screens (device pixels), and where.
struct CopyOrder
{
    QString picture; ///< Plain path.
    QList<QSize> screens;
    DesktopScaling scaling = DesktopScaling::Fill;
    QString folder; ///< Made when it is missing.
    int version = 0; ///< Another one gives another name.
    bool link = false; ///< Where no copy is worth it, a symbolic link takes its place.
    /// To be stretched over the first screen: a copy in that shape, see planCut().
    bool cuts = false;
};

/// Makes the copy unless it is there, and returns its file name in the folder. The name changes with
/// the picture's path, time and size. Empty when no copy is worth it, or none can be made (logged).
/// For worker threads; @p stop makes it give up.
QString makeCopy(const CopyOrder &order, const std::atomic<bool> &stop);

/// Tells whether @p name is one that makeCopy() gives.
bool isCopyName(const QString &name);

} // namespace moravel
