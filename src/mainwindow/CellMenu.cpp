// SPDX-License-Identifier: MIT
#include "mainwindow/CellMenu.h"

#include "platform/Texts.h"

#include <QMenu>

namespace moravel {

namespace {

constexpr int DoubleClick = 2;

void addPictureCommands(QMenu &menu, ThumbView &view)
{
    const ThumbCommands &commands = view.commands();
    if (view.tag() != ThumbView::DesktopTag && commands.setAsDesktop)
        menu.addAction(Texts::tr("Set as &Desktop"), &view,
                       [&view] { view.setThumbAsDesktop(DoubleClick); });
    if (commands.showLargePic)
        menu.addAction(Texts::tr("Show &Large Picture"), &view, &ThumbView::showThumbLarge);
    if (commands.showInFinder)
        menu.addAction(Texts::tr("Show in &File Manager"), &view, &ThumbView::showThumbInFinder);
    menu.addSeparator();
    if (commands.refreshCaption)
        menu.addAction(Texts::tr("Look Up &Caption Again"), &view,
                       [&view] { view.refreshCaption(DoubleClick); });
}

void addDesktopCommands(QMenu &menu, ThumbView &view)
{
    const ThumbCommands &commands = view.commands();
    const ThumbButtons shown = view.buttons();
    menu.addSeparator();
    if (shown.newDesktopBtn && commands.newDesktop)
        menu.addAction(Texts::tr("&New Desktop"), &view,
                       [&view] { view.commands().newDesktop(view); });
    if (shown.prevDesktopBtn && commands.previousDesktop)
        menu.addAction(Texts::tr("&Previous Desktop"), &view,
                       [&view] { view.commands().previousDesktop(view); });
}

} // namespace

QMenu *makeCellMenu(ThumbView &view, QWidget *parent)
{
    auto menu = std::make_unique<QMenu>(parent);
    const ThumbCommands &commands = view.commands();
    const bool deleted = view.thumbPath() == ThumbView::deletedMark();
    if (deleted && commands.refreshCaption)
        menu->addAction(Texts::tr("&Restore Picture"), &view,
                        [&view] { view.refreshCaption(DoubleClick); });
    if (!deleted && !view.thumbPath().isEmpty())
        addPictureCommands(*menu, view);
    if (view.buttons().refreshButton && commands.refreshDataForThumb)
        menu->addAction(Texts::tr("&Refresh"), &view, &ThumbView::refreshData);
    if (view.tag() == ThumbView::DesktopTag)
        addDesktopCommands(*menu, view);
    if (view.buttons().deleteBtn && commands.deletePic) {
        menu->addSeparator();
        menu->addAction(Texts::tr("D&elete"), &view, [&view] { view.commands().deletePic(view); });
    }
    if (menu->isEmpty())
        return nullptr;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    return menu.release();
}

} // namespace moravel
