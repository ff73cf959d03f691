// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

#include <QRect>
#include <QSize>

#include <optional>

namespace moravel {

/// What to make of a picture so that the desktop need not decode all of it.
struct CopyPlan
{
    QSize scaledTo; ///< Size of the whole picture in the copy, before cutting.
    QRect cut; ///< The part of it that the copy holds.
    bool operator==(const CopyPlan &) const = default;
};

/// Tells how large a copy of a picture of @p picture pixels must be to look the same on all @p screens
/// (device pixels) as the picture itself. None when the copy would not be worth it: it has to save at
/// least a quarter of the pixels.
std::optional<CopyPlan> planCopy(QSize picture, const QList<QSize> &screens,
                                 DesktopScaling scaling);

/// Tells how to cut a picture so that it fills @p screen when it is stretched over it. None when it has
/// that shape already.
std::optional<CopyPlan> planCut(QSize picture, QSize screen);

} // namespace moravel
