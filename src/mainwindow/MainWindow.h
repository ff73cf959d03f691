// SPDX-License-Identifier: MIT
#pragma once

#include "base/DatePicker.h"
#include "mainwindow/SideBar.h"
#include "thumb/ThumbCells.h"

#include <QMainWindow>

#include <functional>

class QMenu;

namespace moravel {

class DateNavigation;
class GridView;
class MainView;
class SplitView;
class ToolTips;

/// The main window: builds and lays out the side bar, the grid, the status line and the menus, and ties
/// them to the objects that decide. It decides nothing itself.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The special cells must exist. All references must outlive the window.
    MainWindow(ThumbCells &cells, DatePicker &datePicker, DateNavigation &navigation,
               ToolTips &toolTips);

    GridView &grid() const;

    MainView &mainView() const { return *m_mainView; }

    SideBar &sideBar() const { return *m_sideBar; }

    QMenu &fileMenu() const { return *m_fileMenu; }

    QMenu &sourcesMenu() const { return *m_sourcesMenu; }

    QMenu &desktopMenu() const { return *m_desktopMenu; } ///< Hidden while it is empty.

    QMenu &viewMenu() const { return *m_viewMenu; }

    QMenu &helpMenu() const { return *m_helpMenu; }

    void showSideBar(bool shown);

    /// Adds an item above those that end the program.
    void addFileItem(QAction *item) const;

    /// Shows a plain text in the status line, redrawn at once.
    void showStatus(const QString &text);

    /// Shows when the desktop changes next, as plain text.
    void setNextChange(const QString &text) { m_sideBar->setNextChange(text); }

    /// Asked before the window closes; without it the window closes.
    std::function<bool()> windowShouldClose;

Q_SIGNALS:
    void sideBarShown(bool shown);
    void windowDidExitFullScreen();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildDateActions(DateNavigation &navigation);
    void buildPanes(ThumbCells &cells, DatePicker &datePicker);
    void buildMenus(ToolTips &toolTips);
    void buildViewMenu(ToolTips &toolTips);
    void setStartSize();
    QAction *makeSideBarItem();
    QAction *makeFullScreenItem();

    DateActions m_dateActions;
    SideBar *m_sideBar = nullptr;
    MainView *m_mainView = nullptr;
    SplitView *m_splitView = nullptr;
    QMenu *m_fileMenu = nullptr;
    QAction *m_fileEnd = nullptr; ///< Separates the items that end the program.
    QMenu *m_sourcesMenu = nullptr;
    QMenu *m_desktopMenu = nullptr;
    QMenu *m_viewMenu = nullptr;
    QMenu *m_helpMenu = nullptr;
    QAction *m_fullScreenItem = nullptr;
};

} // namespace moravel
