// SPDX-License-Identifier: MIT
#include "app/LargePicSide.h"

#include "mainwindow/CellWidget.h"

#include <QAction>
#include <QDesktopServices>
#include <QMenu>
#include <QUrl>

namespace moravel {

LargePicSide::LargePicSide(const ServiceContext &context, PictureService &service,
                           const QString &baseUrl, DesktopSide *desktop)
    : m_context(context)
    , m_urls(baseUrl)
    , m_fetch(context.platform.http, context.platform.loop)
    , m_largePic({context.cells, context.platform.files, context.platform.images, context.folders,
                  context.links},
                 ports(service, desktop))
{
    if (desktop)
        desktop->setShowLargePic([this](ThumbView &cell) { m_largePic.showLargePic(cell, 1); });
}

LargePicPorts LargePicSide::ports(PictureService &service, DesktopSide *desktop)
{
    LargePicPorts ports;
    ports.largePicFilePathForThumb = [&service](ThumbView &cell) {
        return service.downloads().largePicFilePathForThumb(cell);
    };
    ports.isDownloading = [&service](const QString &path) {
        return service.downloads().isDownloading(path);
    };
    ports.findPage = [this](const ThumbView &cell,
                            const std::function<void(const QString &)> &done) {
        findPage(cell, done);
    };
    ports.openUrl = [](const QString &address) {
        QDesktopServices::openUrl(QUrl::fromEncoded(address.toLatin1()));
    };
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

void LargePicSide::findPage(const ThumbView &cell,
                            const std::function<void(const QString &)> &done) const
{
    const QString day = m_context.dates.shortDateFromLocalDate(cell.dateString());
    m_fetch.get(m_urls.parent(cell.shortSourceName(), day), httplimits::Text,
                [done](const FetchResult &answer) {
                    done(answer ? QString::fromLatin1(answer->trimmed()) : QString());
                });
}

/// The cell that the keyboard is at, else the desktop's, else the first of the grid.
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

void LargePicSide::attachWindow(MainWindow &window, ToolTips &toolTips)
{
    auto *item = new QAction(MainWindow::tr("Show &Large Picture"), &window);
    item->setObjectName(QStringLiteral("largePicMenuItem"));
    item->setShortcut(Qt::CTRL | Qt::Key_L);
    QObject::connect(item, &QAction::triggered, &window, [this] {
        if (ThumbView *cell = cellToShow())
            m_largePic.showLargePic(*cell, 1);
    });
    QMenu &menu = window.viewMenu();
    menu.insertAction(menu.actions().value(0), item);
    menu.insertSeparator(menu.actions().value(1));
    toolTips.parentButton = [this](const QString &tip) { m_largePic.setParentToolTip(tip); };
}

} // namespace moravel
