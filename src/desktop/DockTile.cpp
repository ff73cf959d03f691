// SPDX-License-Identifier: MIT
#include "desktop/DockTile.h"

#include <QPainter>

#include <algorithm>

namespace moravel {

std::optional<int> dockIconSide(QSize picture)
{
    const double side = 0.5 * std::max(picture.width(), picture.height());
    if (picture.isEmpty() || side > picture.width() || side > picture.height())
        return std::nullopt;
    return std::max(1, static_cast<int>(side));
}

QImage composeDockTile(const QImage &picture, const QImage &icon)
{
    const std::optional<int> side = dockIconSide(picture.size());
    if (!side)
        return icon;
    QImage tile = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    tile.setDevicePixelRatio(1);
    QPainter painter(&tile);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(0, tile.height() - *side, *side, *side), icon);
    painter.end();
    return tile;
}

DockTile::DockTile(const DesktopContext &context) : m_context(context)
{ }

void DockTile::showInDock()
{
    const ThumbView &cell = m_context.cells.desktopThumb();
    const bool hasPicture = !cell.imageView().isNull() && !cell.thumbPath().isEmpty();
    const qint64 key = hasPicture ? cell.imageView().cacheKey() : 0;
    if (m_shownKey == key || !m_context.ports.showDockTile || !m_context.ports.applicationIcon)
        return;
    m_shownKey = key;
    const QImage icon = m_context.ports.applicationIcon();
    m_context.ports.showDockTile(hasPicture ? composeDockTile(cell.imageView(), icon) : icon);
}

} // namespace moravel
