// SPDX-License-Identifier: MIT
#include "mainwindow/MainWindow.h"

#include "mainwindow/CheckItem.h"
#include "mainwindow/DateNavigation.h"
#include "mainwindow/GridLayout.h"
#include "mainwindow/GridView.h"
#include "mainwindow/Icons.h"
#include "mainwindow/MainView.h"
#include "mainwindow/Menus.h"
#include "mainwindow/SplitView.h"
#include "mainwindow/ToolTips.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace moravel {

namespace {

constexpr int StartColumns = 4;
constexpr int StartHeight = 760;
constexpr int FrameHeight = 40; // points that a window frame takes at most

/// Width of a window whose grid has room for that many columns, with a margin on both sides.
int windowWidthFor(int columns, const GridView &grid)
{
    const int sides = static_cast<int>(std::lround(SplitView::SideBarWidth))
        + SplitView::DividerWidth + grid.verticalScrollBar()->sizeHint().width();
    return sides + columns * grid::ColumnPitch + grid::LeftMargin;
}

QAction *makeAction(const QString &title, const QString &icon, const QString &toolTip,
                    QObject *parent)
{
    auto *action = new QAction(themedIcon(icon), title, parent);
    action->setToolTip(toolTip);
    action->setIconVisibleInMenu(false);
    return action;
}

} // namespace

MainWindow::MainWindow(ThumbCells &cells, DatePicker &datePicker, DateNavigation &navigation,
                       ToolTips &toolTips)
{
    setObjectName(QStringLiteral("window"));
    setWindowTitle(tr("Moravel"));
    setContextMenuPolicy(Qt::NoContextMenu);
    buildDateActions(navigation);
    buildPanes(cells, datePicker);
    buildMenus(toolTips);
    setStartSize();
    grid().setFocus(); // the arrows scroll at once, and no field starts with its text selected
}

void MainWindow::buildDateActions(DateNavigation &navigation)
{
    DateActions &actions = m_dateActions;
    actions.previousDay =
        makeAction(tr("&Previous Day"), QStringLiteral("previous-day"), tr("Previous day"), this);
    actions.nextDay = makeAction(tr("&Next Day"), QStringLiteral("next-day"), tr("Next day"), this);
    actions.today = makeAction(tr("&Today"), QStringLiteral("today"), tr("Today"), this);
    const bool mirrored = isRightToLeft();
    actions.previousDay->setShortcut(Qt::ALT | (mirrored ? Qt::Key_Right : Qt::Key_Left));
    actions.nextDay->setShortcut(Qt::ALT | (mirrored ? Qt::Key_Left : Qt::Key_Right));
    actions.today->setShortcut(Qt::CTRL | Qt::Key_T);
    connect(actions.previousDay, &QAction::triggered, &navigation,
            &DateNavigation::moveToPreviousDay);
    connect(actions.nextDay, &QAction::triggered, &navigation, &DateNavigation::moveToNextDay);
    connect(actions.today, &QAction::triggered, &navigation, &DateNavigation::moveToToday);
    const auto follow = [actions, &navigation] {
        actions.previousDay->setEnabled(navigation.buttons().prevDayButton);
        actions.nextDay->setEnabled(navigation.buttons().nextDayButton);
        actions.today->setEnabled(navigation.buttons().todayButton);
    };
    connect(&navigation, &DateNavigation::buttonsChanged, this, follow);
    follow();
}

void MainWindow::buildPanes(ThumbCells &cells, DatePicker &datePicker)
{
    m_sideBar = new SideBar(cells.desktopThumb(), datePicker, m_dateActions);
    m_mainView = new MainView;
    m_splitView = new SplitView(m_sideBar, m_mainView, this);
    setCentralWidget(m_splitView);
}

void MainWindow::buildMenus(ToolTips &toolTips)
{
    m_fileMenu = menuBar()->addMenu(tr("&File"));
    m_sourcesMenu = new SwitchMenu(tr("&Sources"), this);
    menuBar()->addMenu(m_sourcesMenu);
    m_desktopMenu = new LateMenu(tr("&Desktop"), this);
    menuBar()->addMenu(m_desktopMenu);
    m_viewMenu = menuBar()->addMenu(tr("&View"));
    m_helpMenu = menuBar()->addMenu(tr("&Help"));
    m_fileEnd = m_fileMenu->addSeparator();
    QAction *close = m_fileMenu->addAction(tr("&Close"));
    close->setShortcut(Qt::CTRL | Qt::Key_W);
    QAction *quit = m_fileMenu->addAction(tr("&Quit"));
    quit->setShortcut(Qt::CTRL | Qt::Key_Q);
    quit->setMenuRole(QAction::QuitRole);
    for (const QAction *item : {close, quit}) // closing this window ends the application
        connect(item, &QAction::triggered, this, &QWidget::close);
    buildViewMenu(toolTips);
}

void MainWindow::buildViewMenu(ToolTips &toolTips)
{
    m_viewMenu->addActions({m_dateActions.previousDay, m_dateActions.nextDay, m_dateActions.today});
    m_viewMenu->addSeparator();
    m_viewMenu->addAction(makeSideBarItem());
    m_viewMenu->addAction(toolTips.tooltipsMenuItem());
    m_viewMenu->addSeparator();
    m_viewMenu->addAction(makeFullScreenItem());
}

QAction *MainWindow::makeSideBarItem()
{
    QAction *item = makeCheckItem(tr("Show &Side Bar"), this, [this] {
        m_splitView->setCollapsed(!m_splitView->isCollapsed());
    });
    item->setObjectName(QStringLiteral("sideBarMenuItem"));
    item->setShortcut(Qt::Key_F9);
    item->setChecked(true);
    connect(m_splitView, &SplitView::collapsedChanged, item, [item, this](bool collapsed) {
        item->setChecked(!collapsed);
        Q_EMIT sideBarShown(!collapsed);
    });
    return item;
}

QAction *MainWindow::makeFullScreenItem()
{
    m_fullScreenItem = makeCheckItem(
        tr("&Full Screen"), this, [this] { setWindowState(windowState() ^ Qt::WindowFullScreen); });
    m_fullScreenItem->setShortcut(Qt::Key_F11);
    return m_fullScreenItem;
}

void MainWindow::setStartSize()
{
    setMinimumWidth(windowWidthFor(1, grid()));
    // Where the screen has less room, the status bar and the last column would be off it.
    const QSize room = screen()->availableSize();
    int columns = StartColumns;
    while (columns > 1 && windowWidthFor(columns, grid()) > room.width())
        --columns;
    resize(windowWidthFor(columns, grid()), std::min(StartHeight, room.height() - FrameHeight));
}

GridView &MainWindow::grid() const
{
    return m_mainView->grid();
}

void MainWindow::addFileItem(QAction *item) const
{
    m_fileMenu->insertAction(m_fileEnd, item);
}

void MainWindow::showSideBar(bool shown)
{
    m_splitView->setCollapsed(!shown);
}

void MainWindow::showStatus(const QString &text)
{
    m_mainView->showStatus(text);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(!windowShouldClose || windowShouldClose());
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        grid().followPalette();
    if (event->type() != QEvent::WindowStateChange)
        return;
    const auto before = static_cast<QWindowStateChangeEvent *>(event)->oldState();
    m_fullScreenItem->setChecked(isFullScreen());
    if (before.testFlag(Qt::WindowFullScreen) && !isFullScreen())
        Q_EMIT windowDidExitFullScreen();
}

} // namespace moravel
