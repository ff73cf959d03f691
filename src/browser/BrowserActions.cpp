// SPDX-License-Identifier: MIT
#include "browser/BrowserActions.h"

#include "browser/Browser.h"
#include "browser/ImageBrowserView.h"
#include "platform/Texts.h"
#include "store/RecordField.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>

#include <algorithm>

namespace moravel {

namespace {

constexpr int SecondButton = BrowserActions::FirstButton + 1;

/// Asks as a sheet of @p window; its answer comes later, as a return code.
void showDeleteSheet(QWidget *window, const QString &message, std::function<void(int)> closed)
{
    auto *sheet = new QMessageBox(window);
    sheet->setObjectName(QStringLiteral("deleteSheet"));
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->setIcon(QMessageBox::Critical);
    sheet->setText(message);
    sheet->setInformativeText(Texts::tr("This action cannot be undone."));
    QPushButton *remove = sheet->addButton(Texts::tr("Delete"), QMessageBox::AcceptRole);
    QPushButton *cancel = sheet->addButton(Texts::tr("Cancel"), QMessageBox::RejectRole);
    sheet->setDefaultButton(remove);
    sheet->setEscapeButton(cancel);
    QObject::connect(
        sheet, &QMessageBox::finished, sheet, [sheet, remove, closed = std::move(closed)] {
            sheet->hide();
            closed(sheet->clickedButton() == remove ? BrowserActions::FirstButton : SecondButton);
        });
    sheet->open();
}

} // namespace

BrowserActions::BrowserActions(Browser &browser, const BrowserContext &context)
    : m_browser(browser), m_context(context)
{ }

BrowserCommands BrowserActions::commands()
{
    BrowserCommands commands;
    if (m_context.ports.setDesktopToFile)
        commands.desktopFromBrowser = [this] { desktopFromBrowser(); };
    if (m_context.cells.browserThumb().commands().showLargePic)
        commands.infoFromBrowser = [this] { infoFromBrowser(); };
    if (m_context.ports.revealFile)
        commands.finderFromBrowser = [this] { finderFromBrowser(); };
    if (m_context.ports.moveToTrash)
        commands.deleteFromBrowser = [this] { deleteFromBrowser(); };
    return commands;
}

QString BrowserActions::firstSelectedPath() const
{
    const QList<int> selected = m_browser.browserWindow().imageBrowser().selectedItems();
    return selected.isEmpty()
        ? QString()
        : m_browser.images().itemAtIndex(selected.first()).imageRepresentation();
}

void BrowserActions::desktopFromBrowser()
{
    const QString path = firstSelectedPath();
    if (!path.isEmpty() && m_context.ports.setDesktopToFile)
        m_context.ports.setDesktopToFile(path);
}

void BrowserActions::cellWasDoubleClickedAtIndex(int index)
{
    if (m_context.ports.setDesktopToFile)
        m_context.ports.setDesktopToFile(
            m_browser.images().itemAtIndex(index).imageRepresentation());
}

void BrowserActions::finderFromBrowser()
{
    const QString path = firstSelectedPath();
    if (!path.isEmpty() && m_context.ports.revealFile)
        m_context.ports.revealFile(path);
}

void BrowserActions::infoFromBrowser()
{
    if (const QString path = firstSelectedPath(); !path.isEmpty())
        showLarge(path);
}

void BrowserActions::showLarge(const QString &path)
{
    fillBrowserCell(path);
    m_context.cells.browserThumb().setUsedAsDesktop(false);
    m_context.cells.browserThumb().showThumbLarge();
}

void BrowserActions::fillBrowserCell(const QString &path) const
{
    ThumbView &cell = m_context.cells.browserThumb();
    const QString name = QFileInfo(path).fileName();
    const QStringList fields = m_context.records.storedDataForFile(name, true).split(u'\t');
    const auto &sufficient = m_context.ports.sufficientData;
    const bool shows = fields.size() >= RecordFieldCount && sufficient && sufficient(fields);
    const auto field = [&](RecordField which) { return shows ? fields[which] : QString(); };
    const QString source = field(SourceField);
    cell.showSource(m_context.sourceNames.value(source), source);
    cell.showDate(shows ? m_context.dates.localDateFromSqlDate(fields[DateField]) : QString());
    cell.showCaption(field(CaptionField));
    cell.setInfoString(field(InfoField));
    cell.setThumbPath(shows ? fields[ThumbField] : path);
    cell.setPicPath(shows ? fields[PicField] : path);
    cell.setParentPath(field(ParentField));
}

// Deleting ---------------------------------------------------------------------------------------

void BrowserActions::deleteFromBrowser()
{
    const QList<int> selected = m_browser.browserWindow().imageBrowser().selectedItems();
    if (!selected.isEmpty())
        removeItemsAtIndexes(selected);
}

void BrowserActions::removeItemsAtIndexes(const QList<int> &ascending)
{
    const qsizetype count = ascending.size();
    m_indexesForDeletion = ascending;
    m_pathsForDeletion.clear();
    for (const int index : ascending)
        m_pathsForDeletion.append(m_browser.images().itemAtIndex(index).imageRepresentation());
    if (m_context.ports.optionKeyHeld && m_context.ports.optionKeyHeld())
        return didCloseDeleteAlert(FirstButton);
    const QString message = count == 1
        ? Texts::tr("Are you sure you want to delete the selected pic?")
        : Texts::tr("Are you sure you want to delete the %n selected pics?", nullptr,
                    static_cast<int>(count));
    showDeleteSheet(&m_browser.browserWindow(), message,
                    [this](int returnCode) { didCloseDeleteAlert(returnCode); });
}

void BrowserActions::didCloseDeleteAlert(int returnCode)
{
    if (returnCode == FirstButton)
        deleteItems(itemsForDeletion());
}

/// The indexes, unless the items were made anew since: then where the same files are now.
QList<int> BrowserActions::itemsForDeletion() const
{
    const BrowserModel &images = m_browser.images();
    const int count = images.numberOfItemsInImageBrowser();
    bool unchanged = true;
    for (qsizetype i = 0; i < m_indexesForDeletion.size() && unchanged; ++i) {
        const int index = m_indexesForDeletion[i];
        unchanged = index < count
            && images.itemAtIndex(index).imageRepresentation() == m_pathsForDeletion[i];
    }
    if (unchanged)
        return m_indexesForDeletion;
    const QSet<QString> paths(m_pathsForDeletion.begin(), m_pathsForDeletion.end());
    QList<int> items;
    for (int index = 0; index < count; ++index) {
        if (paths.contains(images.itemAtIndex(index).imageRepresentation()))
            items.append(index);
    }
    return items;
}

/// The names by which the records know the files. None for a file from elsewhere that was dropped: it is no
/// one's record, whatever its name.
QStringList BrowserActions::recordedNames(const QStringList &paths) const
{
    const QString folder = m_context.folders.moravelFolder();
    QStringList names;
    for (const QString &path : paths) {
        const QFileInfo file(path);
        names.append(file.path() + u'/' == folder ? file.fileName() : QString());
    }
    return names;
}

/// Whether another record uses a file is not asked, and the desktop before a deleted one is remembered: the
/// user has seen and chosen the picture itself, not a record of it.
void BrowserActions::deleteItems(const QList<int> &indexes)
{
    QStringList paths;
    for (const int index : indexes)
        paths.append(m_browser.images().itemAtIndex(index).imageRepresentation());
    m_browser.removeItems(indexes);
    m_context.updates.storeDeletionsForFileNames(
        recordedNames(paths), m_context.ports.inBackground,
        [this, paths](const QStringList &thumbs) { trash(paths, thumbs); });
}

/// By now the records tell of the deletion: the next desktop is none of the deleted pictures.
void BrowserActions::trash(const QStringList &paths, const QStringList &thumbs) const
{
    QStringList toTrash;
    for (qsizetype i = 0; i < paths.size(); ++i) {
        toTrash.append(paths[i]);
        if (m_context.cells.desktopThumb().picPath() == paths[i] && m_context.ports.rotateDesktop)
            m_context.ports.rotateDesktop();
        if (thumbs[i].isEmpty())
            continue;
        if (const QString thumb = m_context.links.picLinkToPath(thumbs[i], true, true);
            !thumb.isEmpty())
            toTrash.append(thumb);
        if (ThumbView *cell = m_context.cells.thumbForThumbLink(thumbs[i]))
            markDeleted(*cell);
    }
    toTrash.removeDuplicates();
    m_context.ports.moveToTrash(toTrash, [this] { m_browser.assembleBrowserData(); });
}

void BrowserActions::markDeleted(ThumbView &cell) const
{
    cell.setThumbPath(ThumbView::deletedMark());
    cell.showCaption(QStringLiteral("Deleted.")); // a mark that the cell knows: not translated here
    cell.showThumbImage(m_context.cells.images().trashcan, ThumbView::deletedMark());
}

} // namespace moravel
