// SPDX-License-Identifier: MIT
#include "platform/linux/desktops/CopyPlan.h"

#include <algorithm>

namespace moravel {

namespace {

qint64 area(QSize size)
{
    return qint64(size.width()) * size.height();
}

/// The largest size that any of the screens shows the picture in.
QSize largestShown(QSize picture, const QList<QSize> &screens, Qt::AspectRatioMode mode)
{
    QSize largest;
    for (const QSize &screen : screens)
        largest = largest.expandedTo(picture.scaled(screen, mode));
    return largest.expandedTo({1, 1});
}

} // namespace

std::optional<CopyPlan> planCopy(QSize picture, const QList<QSize> &screens, DesktopScaling scaling)
{
    if (picture.isEmpty() || screens.isEmpty())
        return std::nullopt;
    CopyPlan plan;
    if (scaling == DesktopScaling::Centred) {
        QSize room;
        for (const QSize &screen : screens)
            room = room.expandedTo(screen);
        // Both sides lose the same number of pixels, or the picture would move by half of one.
        QSize kept = picture.boundedTo(room);
        kept += QSize((picture.width() - kept.width()) % 2, (picture.height() - kept.height()) % 2);
        plan.scaledTo = picture;
        plan.cut = QRect(
            QPoint((picture.width() - kept.width()) / 2, (picture.height() - kept.height()) / 2),
            kept);
    } else {
        plan.scaledTo = largestShown(
            picture, screens,
            scaling == DesktopScaling::Fill ? Qt::KeepAspectRatioByExpanding : Qt::KeepAspectRatio);
        plan.cut = QRect(QPoint(0, 0), plan.scaledTo);
    }
    if (area(plan.cut.size()) * 4 > area(picture) * 3)
        return std::nullopt;
    return plan;
}

std::optional<CopyPlan> planCut(QSize picture, QSize screen)
{
    if (picture.isEmpty() || screen.isEmpty())
        return std::nullopt;
    const QSize whole = picture.scaled(screen, Qt::KeepAspectRatioByExpanding);
    if (whole == screen)
        return std::nullopt;
    QRect cut({}, screen);
    cut.moveCenter(QRect({}, whole).center());
    return CopyPlan{whole, cut};
}

} // namespace moravel
