// SPDX-License-Identifier: MIT
#include "app/LargePicSide.h"

#include "mainwindow/CellWidget.h"
#include "mainwindow/LargePicWindow.h"
#include "text/InfoText.h"

#include <QAction>
#include <QMenu>

namespace moravel {

LargePicSide::LargePicSide(const ServiceContext &context, PictureService &service, ShareSide &share,
                           DesktopSide *desktop)
    : m_context(context)
    , m_largePic({context.cells, context.platform.files, context.platform.images, context.folders,
                  context.links},
                 ports(service, share, desktop))
{
    share.largeWindow = [this]() -> QWidget * {
        return m_largePic.isVisible() ? m_largePic.pic() : nullptr;
    };
    if (desktop)
        desktop->setShowLargePic([this](ThumbView &cell) { m_largePic.showLargePic(cell, 1); });
}

LargePicPorts LargePicSide::ports(PictureService &service, ShareSide &share, DesktopSide *desktop)
{
    LargePicPorts ports;
    ports.largePicFilePathForThumb = [&service](ThumbView &cell) {
        return service.downloads().largePicFilePathForThumb(cell);
    };
    ports.isDownloading = [&service](const QString &path) {
        return service.downloads().isDownloading(path);
    };
    ports.findPage = [this, &service](const ThumbView &cell,
                                      std::function<void(const QString &)> done) {
        service.pages().find(cell.shortSourceName(),
                             m_context.dates.shortDateFromLocalDate(cell.dateString()),
                             std::move(done));
    };
    ports.refreshCaption = [&service, &loop = m_context.platform.loop](ThumbView &cell) {
        loop.inOrder([&service, &cell] { service.captionRefresh().implementRefreshCaption(cell); });
    };
    ports.sanitised = [](const QString &html) { return sanitisedInfoText(html); };
    if (DefaultPrograms *programs = m_context.platform.programs)
        ports.iconForScheme = [programs](const QString &scheme) {
            return programs->iconForScheme(scheme);
        };
    ports.openUrl = [&share](const QString &address) { share.openUrl(address); };
    ports.shareEmail = [&share](ThumbView &cell) { share.shareEmail(cell); };
    ports.shareFacebook = [&share](ThumbView &cell) { share.shareFacebook(cell); };
    ports.shareTwitter = [&share](ThumbView &cell) { share.shareTwitter(cell); };
    if (desktop)
        addDesktopPorts(ports, *desktop);
    return ports;
}

void LargePicSide::addDesktopPorts(LargePicPorts &ports, DesktopSide &desktop) const
{
    DesktopManagement &management = desktop.management();
    ports.currentDesktopPath = [&management] { return management.currentDesktopPath(); };
    ports.showDesktopPrefs = [&management] { management.showDesktopPrefs(); };
    ports.setDesktop = [&management, &loop = m_context.platform.loop](const QString &path) {
        loop.inOrder([&management, path] { management.setDesktop(path); });
    };
    ports.revealFile = [&desktop](const QString &path) {
        desktop.workspace().revealInFileManager(path);
    };
}

ThumbView *LargePicSide::cellToShow() const
{
    if (ThumbView *cell = focusedCell())
        return cell;
    ThumbView &desktop = m_context.cells.desktopThumb();
    if (!desktop.picPath().isEmpty())
        return &desktop;
    for (const auto &cell : m_context.cells.thumbViews()) {
        if (!cell->isHidden() && !cell->picPath().isEmpty())
            return cell.get();
    }
    return nullptr;
}

QWidget *LargePicSide::showSomePic()
{
    ThumbView *cell = cellToShow();
    if (!cell)
        return nullptr;
    m_largePic.showLargePic(*cell, 1);
    return m_largePic.isVisible() ? m_largePic.pic() : nullptr;
}

void LargePicSide::attachWindow(MainWindow &window, ToolTips &toolTips)
{
    auto *item = new QAction(MainWindow::tr("Show &Large Picture"), &window);
    item->setObjectName(QStringLiteral("largePicMenuItem"));
    item->setShortcut(Qt::CTRL | Qt::Key_L);
    QObject::connect(item, &QAction::triggered, &window, [this] { showSomePic(); });
    QMenu &menu = window.viewMenu();
    menu.insertAction(menu.actions().value(0), item);
    menu.insertSeparator(menu.actions().value(1));
    toolTips.parentButton = [this](const QString &tip) { m_largePic.setParentToolTip(tip); };
}

} // namespace moravel
