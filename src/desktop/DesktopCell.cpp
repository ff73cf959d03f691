// SPDX-License-Identifier: MIT
#include "desktop/DesktopCell.h"

#include "store/RecordField.h"

namespace moravel {

namespace {

constexpr QSize ThumbBox{416, 320}; // the cell's picture at twice its size, for dense screens

} // namespace

DesktopCell::DesktopCell(const DesktopContext &context, DockTile &dockTile)
    : m_context(context), m_dockTile(dockTile)
{ }

void DesktopCell::showDesktopThumb(const QString &path)
{
    ThumbView &cell = m_context.cells.desktopThumb();
    const Seen now = look(path);
    if (now == m_seen && cell.picPath() == path)
        return;
    const bool sameFile = now.path == m_seen.path && now.file == m_seen.file;
    const bool shown = sameFile && cell.picPath() == path && !cell.imageView().isNull();
    m_seen = now;
    const QString name = path.section(u'/', -1);
    const QStringList fields = m_context.records.storedDataForFile(name, true).split(u'\t');
    const auto &sufficientData = m_context.ports.sufficientData;
    if (fields.size() >= RecordFieldCount && sufficientData && sufficientData(fields))
        showRecord(fields, path);
    else
        showForeign(path);
    cell.setUsedAsDesktop(true);
    if (shown)
        showImage(path, cell.imageView());
    else
        load(path);
}

DesktopCell::Seen DesktopCell::look(const QString &path)
{
    const auto &stamp = m_context.ports.fileStamp;
    if (!stamp)
        return {path, {}, {}};
    // Asking for the file makes its folder and alerts when it cannot: not at every tick.
    if (path != m_seen.path)
        m_dataFile = m_context.folders.moravelDataFile();
    return {path, stamp(path), stamp(m_dataFile)};
}

void DesktopCell::showRecord(const QStringList &fields, const QString &path)
{
    ThumbView &cell = m_context.cells.desktopThumb();
    const QString &shortName = fields[SourceField];
    const auto &longSourceName = m_context.ports.longSourceName;
    cell.showSource(longSourceName ? longSourceName(shortName) : shortName, shortName);
    cell.showDate(m_context.dates.localDateFromSqlDate(fields[DateField]));
    cell.showCaption(fields[CaptionField]);
    cell.setInfoString(fields[InfoField]);
    cell.setThumbPath(fields[ThumbField]);
    cell.setPicPath(path);
    cell.setParentPath(fields[ParentField]);
}

void DesktopCell::showForeign(const QString &path) const
{
    ThumbView &cell = m_context.cells.desktopThumb();
    cell.showSource({}, {});
    cell.showDate({});
    cell.showCaption(path.section(u'/', -1));
    cell.setInfoString({});
    cell.setThumbPath(path);
    cell.setPicPath(path);
    cell.setParentPath({});
}

void DesktopCell::load(const QString &path)
{
    m_load = std::make_shared<int>();
    m_context.platform.images.load(
        path, ThumbBox, [this, path, load = std::weak_ptr(m_load)](const QImage &image) {
            // Meanwhile another picture may be the desktop, or another load of this one under way.
            if (!load.expired() && m_context.cells.desktopThumb().picPath() == path)
                showImage(path, image);
        });
}

void DesktopCell::showImage(const QString &path, const QImage &image)
{
    ThumbView &cell = m_context.cells.desktopThumb();
    // A record may have come without a thumbnail; without a link the cell would count as empty.
    cell.showThumbImage(image, cell.thumbPath().isEmpty() ? path : cell.thumbPath());
    ThumbButtons buttons = cell.buttons();
    const QString own = m_context.folders.moravelFolder();
    buttons.deleteBtn = !own.isEmpty() && path.startsWith(own);
    cell.setButtons(buttons);
    m_dockTile.showInDock();
}

void DesktopCell::showFolder()
{
    ThumbView &cell = m_context.cells.desktopThumb();
    const bool isShown = cell.usedAsDesktop() && cell.picPath().isEmpty()
        && cell.imageView().cacheKey() == cell.images().prefs.cacheKey();
    if (isShown)
        return;
    cell.clearImage();
    m_dockTile.showInDock();
    cell.prefsImage();
}

} // namespace moravel
