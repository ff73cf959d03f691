// SPDX-License-Identifier: MIT
#pragma once

#include "app/DesktopSide.h"
#include "app/Options.h"
#include "app/PictureActions.h"
#include "base/DatePicker.h"
#include "base/Dates.h"
#include "base/Preferences.h"
#include "mainwindow/DateNavigation.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/SourceGrid.h"
#include "mainwindow/ToolTips.h"
#include "platform/Platform.h"
#include "service/PictureService.h"
#include "store/LegacyCaptions.h"

#include <memory>

namespace moravel {

/// Owns the application: builds the collaborators, ties them, and carries the order of start-up and
/// shutdown. It decides nothing about pictures.
class MoravelAppDelegate : public QObject
{
    Q_OBJECT

public:
    /// @p baseUrl is the service's address. What the platforms name must outlive this object. Without a
    /// @p desktop no command concerning the desktop picture is offered.
    MoravelAppDelegate(const Platform &platform, const std::optional<DesktopPlatform> &desktop,
                       const QString &baseUrl, Options options);
    ~MoravelAppDelegate() override;

    /// Prepares the window; it can be shown then.
    void applicationWillFinishLaunching();
    /// Reads the preferences, asks for the sources, and starts the day. Once, after the window is shown.
    void applicationDidFinishLaunching();
    /// Ends what must not be left half done; the application then quits.
    void applicationShouldTerminate();

    void showStatus(const QString &text);

    MainWindow &window() const { return *m_window; }

    const ThumbCells &cells() const { return m_cells; }

private:
    ThumbCommands commands(bool withDesktop);
    void buildDesktop(const DesktopPlatform &desktop);
    void buildPictureActions(Trash &trash);
    void buildWindow();
    void logFolders();
    void sourcesAreKnown();
    void askForSourcesAgain();
    void switchOnAsAsked();

    Platform m_platform;
    Options m_options;
    Dates m_dates;
    Preferences m_preferences;
    DatePicker m_datePicker;
    ThumbCells m_cells;
    SourceNames m_sourceNames;
    Folders m_folders;
    LegacyCaptions m_legacy;
    RecordFile m_records;
    RecordUpdates m_updates;
    PictureLinks m_links;
    ServicePorts m_ports;
    ServiceContext m_context;
    PictureService m_service;
    std::unique_ptr<DesktopSide> m_desktop;
    std::unique_ptr<PictureActions> m_pictureActions;
    std::unique_ptr<DateNavigation> m_dateNavigation;
    std::unique_ptr<ToolTips> m_toolTips;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<SourceGrid> m_grid;
    DelayedCallHandle m_askAgain;
};

} // namespace moravel
