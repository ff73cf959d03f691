// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopPictures.h"

#include <QList>
#include <QMap>
#include <QString>

#include <atomic>

namespace moravel {

/// One picture to paint onto one monitor.
struct PaintOrder
{
    QString path;
    DesktopScaling scaling = DesktopScaling::Fill;
};

struct PaintResult
{
    quint32 pixmap = 0; ///< Id of the new root pixmap; 0 when nothing could be painted.
    quint32 previous =
        0; ///< Id of the pixmap of this program that was shown before; 0 when it was another's.
    QMap<QString, QString> failed; ///< What could not be painted: monitor and reason.
};

/// Paints pictures onto monitors of the X root window, on a connection of its own, and leaves the result
/// behind as the root's background, announced in the root's properties; the pictures of the other
/// monitors stay. Fails as a whole when the display does not do its part. For worker threads; @p stop makes
/// it give up.
tl::expected<PaintResult, QString> paintRoot(const QMap<QString, PaintOrder> &orders,
                                             const std::atomic<bool> &stop);

/// The property that names the pixmap on the root, and the one in which this program notes that the pixmap
/// is its own; an id alone may come back in another session.
inline constexpr char RootPixmapProperty[] = "_XROOTPMAP_ID";
inline constexpr char OwnPixmapProperty[] = "_MORAVEL_ROOTPMAP_ID";

} // namespace moravel
