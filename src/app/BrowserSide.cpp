// SPDX-License-Identifier: MIT
#include "app/BrowserSide.h"

#include "app/DesktopSide.h"
#include "mainwindow/FlippedClipView.h"
#include "mainwindow/Icons.h"
#include "mainwindow/MainWindow.h"
#include "service/PictureFields.h"

#include <QAction>
#include <QGuiApplication>
#include <QMenu>

namespace moravel {

BrowserSide::BrowserSide(const ServiceContext &context, LegacyCaptions &legacy,
                         Preferences &preferences, Thumbnails &thumbnails, DesktopSide *desktop)
    : m_browser({context.platform.files, context.platform.images, thumbnails, context.dates,
                 preferences, context.cells, context.sourceNames, context.folders, legacy,
                 context.records, context.updates, context.links, m_ports, m_look})
{
    fillPorts(context, desktop);
    fillLook();
}

void BrowserSide::fillPorts(const ServiceContext &context, DesktopSide *desktop)
{
    m_ports.inBackground = [this](std::function<void()> work, std::function<void()> done) {
        m_worker.run(std::move(work), std::move(done));
    };
    m_ports.sufficientData = [](const QStringList &fields) { return sufficientData(fields); };
    m_ports.optionKeyHeld = [] {
        return QGuiApplication::keyboardModifiers().testFlag(Qt::AltModifier);
    };
    if (!desktop)
        return;
    MainLoop &loop = context.platform.loop;
    m_ports.setDesktopToFile = [&loop, desktop](const QString &path) {
        loop.inOrder([desktop, path] { desktop->management().setToChosen(path); });
    };
    m_ports.rotateDesktop = [desktop] {
        desktop->management().rotation().rotateDesktop(RotateSender::Button);
    };
    m_ports.revealFile = [desktop](const QString &path) {
        desktop->workspace().revealInFileManager(path);
    };
}

void BrowserSide::setTrash(
    std::function<void(const QStringList &paths, std::function<void()> done)> move)
{
    m_ports.moveToTrash = std::move(move);
}

void BrowserSide::fillLook()
{
    m_look.icon = themedIcon;
    m_look.pixmap = iconPixmap;
    m_look.lightPalette = FlippedClipView::lightPalette;
}

void BrowserSide::attachWindow(MainWindow &window)
{
    auto *item = new QAction(tr("Picture &Browser"), &window);
    item->setObjectName(QStringLiteral("picBrowser"));
    item->setShortcut(Qt::CTRL | Qt::Key_B);
    connect(item, &QAction::triggered, &m_browser, &Browser::picBrowser);
    QAction *first = window.viewMenu().actions().value(0);
    window.viewMenu().insertAction(first, item);
    window.viewMenu().insertSeparator(first);
    connect(&window, &MainWindow::windowDidExitFullScreen, &m_browser, [this] {
        if (m_browser.isWindowBuilt())
            m_browser.setupBrowsing();
    });
}

} // namespace moravel
