// SPDX-License-Identifier: MIT
#include "mainwindow/Deletion.h"

#include "platform/Files.h"
#include "store/RecordField.h"

#include <QLoggingCategory>

namespace moravel {

namespace {

Q_LOGGING_CATEGORY(lcDeletion, "moravel.mainwindow.deletion")

void logFailures(const char *what, const QList<FileResult<void>> &results)
{
    for (const FileResult<void> &result : results) {
        if (!result)
            qCInfo(lcDeletion).noquote()
                << what << result.error().path << result.error().description;
    }
}

} // namespace

Deletion::Deletion(const DeletionContext &context, DeletionPorts ports)
    : m_context(context), m_ports(std::move(ports))
{ }

void Deletion::deletePic(ThumbView &cell, DeleteSender sender)
{
    if (m_ports.setDeletingDesktop)
        m_ports.setDeletingDesktop(false);
    if (cell.thumbPath() == ThumbView::deletedMark()
        || (cell.thumbPath().isEmpty() && cell.picPath().isEmpty()))
        return; // by a command that came late: there is no picture (any more)
    const bool fromDesktopCell =
        sender == DeleteSender::Cell && cell.tag() == ThumbView::DesktopTag;
    if (sender == DeleteSender::Cell && m_context.cells.thumbForTag(cell.tag()) != &cell)
        return;
    const QString picPath = cell.picPath();
    const QStringList files =
        unsharedFiles(cell); // by the links, which showing it deleted takes away
    if (!fromDesktopCell)
        showDeleted(cell);
    if (!files.isEmpty()) {
        m_context.trash.moveToTrash(files, [](const QList<FileResult<void>> &results) {
            logFailures("stays, not in the Trash:", results);
        });
    }
    m_context.updates.storeDeletionForSource(cell.shortSourceName(), cell.dateString());
    if (cell.tag() == ThumbView::DesktopTag)
        showDeletedInGrid(cell);
    if (!fromDesktopCell && !isOfDesktop(picPath))
        return;
    if (m_ports.setDeletingDesktop)
        m_ports.setDeletingDesktop(true);
    if (m_ports.rotateDesktop)
        m_ports.rotateDesktop();
}

void Deletion::showDeleted(ThumbView &cell) const
{
    cell.setThumbPath(ThumbView::deletedMark());
    cell.showCaption(QStringLiteral("Deleted."));
    cell.showThumbImage(m_context.cells.images().trashcan, ThumbView::deletedMark());
}

void Deletion::showDeletedInGrid(const ThumbView &cell) const
{
    ThumbView *same = m_context.cells.thumbForSource(cell.shortSourceName());
    if (same && same->dateString() == cell.dateString())
        showDeleted(*same);
}

QStringList Deletion::unsharedFiles(const ThumbView &cell) const
{
    QStringList files;
    for (const bool isThumb : {true, false}) {
        const QString link = isThumb ? cell.thumbPath() : cell.picPath();
        const QString path = m_context.links.picLinkToPath(link, isThumb, true);
        if (!path.isEmpty() && isUnshared(path, link, cell))
            files.append(path);
    }
    return files;
}

// A file may be named otherwise than the link, which has no extension then: both names are looked for.
bool Deletion::isUnshared(const QString &path, const QString &link, const ThumbView &cell) const
{
    const QString day = m_context.dates.shortDateFromLocalDate(cell.dateString());
    for (const QString &name : {path.section(u'/', -1), fileNameOfLink(link)}) {
        if (m_context.records.isAnyoneUsingPicFile(name, cell.shortSourceName(), day))
            return false;
    }
    return true;
}

bool Deletion::isOfDesktop(const QString &picPath) const
{
    const QString desktopPic = m_context.cells.desktopThumb().picPath();
    return !desktopPic.isEmpty()
        && (desktopPic == picPath
            || desktopPic == m_context.links.picLinkToPath(picPath, false, false));
}

void Deletion::reloadDeletedPic(ThumbView &cell)
{
    const QString source = cell.shortSourceName();
    const QString day = m_context.dates.shortDateFromLocalDate(cell.dateString());
    const QString record = m_context.records.storedDataFor(source, day);
    if (record.isEmpty())
        return;
    cell.showCaption(record.split(u'\t').value(CaptionField));
    m_ports.findThumb(
        source, day,
        [this, &cell, source, day, alive = std::weak_ptr(m_alive)](const QString &link) {
            if (alive.expired())
                return;
            cell.setThumbPath(link);
            m_context.updates.storeThumbForSource(source, day, link);
            restoreFiles(cell, link);
        });
}

void Deletion::restoreFiles(ThumbView &cell, const QString &thumbLink)
{
    const QString thumbFile = m_context.links.picLinkToPath(thumbLink, true, false);
    QStringList files{thumbFile, m_context.links.picLinkToPath(cell.picPath(), false, false)};
    files.removeAll(QString());
    // The program's own sequence goes on when the files are back.
    std::shared_ptr<LoopHold> hold = m_context.loop.hold();
    m_context.trash.restore(files,
                            [this, &cell, thumbFile, hold, alive = std::weak_ptr(m_alive)](
                                const QList<FileResult<void>> &results) {
                                logFailures("not restored:", results);
                                if (!alive.expired())
                                    showRestored(cell, thumbFile);
                            });
}

void Deletion::showRestored(ThumbView &cell, const QString &thumbFile)
{
    if (thumbFile.isEmpty() || !m_context.files.exists(thumbFile))
        cell.blankImage();
    m_ports.displayThumbForSource(cell.shortSourceName(), m_ports.loadNextPic);
}

} // namespace moravel
