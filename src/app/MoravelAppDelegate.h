// SPDX-License-Identifier: MIT
#pragma once

#include "app/BrowserSide.h"
#include "app/DesktopSide.h"
#include "app/DiskSide.h"
#include "app/LargePicSide.h"
#include "app/Options.h"
#include "app/PictureActions.h"
#include "app/QuietSide.h"
#include "app/ShareSide.h"
#include "app/StartSide.h"
#include "base/DatePicker.h"
#include "base/Dates.h"
#include "base/Preferences.h"
#include "mainwindow/DateNavigation.h"
#include "mainwindow/MainWindow.h"
#include "mainwindow/SourceGrid.h"
#include "mainwindow/ToolTips.h"
#include "platform/Platform.h"
#include "platform/RemoteControl.h"
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
    /// The home address of @p share is the service's. What the platforms name must outlive this object.
    /// Without a @p desktop no command concerning the desktop picture is offered, without @p thumbnails no
    /// browser.
    MoravelAppDelegate(const Platform &platform, const std::optional<DesktopPlatform> &desktop,
                       const ShareSetup &share, Options options, Thumbnails *thumbnails = nullptr);
    ~MoravelAppDelegate() override;

    /// Prepares the window; showWindow() can show it then.
    void applicationWillFinishLaunching();
    /// Shows the window, unless the program is to start without it.
    void showWindow();
    /// Reads the preferences, asks for the sources, and starts the day. Once, after the window is shown.
    void applicationDidFinishLaunching();
    /// Ends what must not be left half done; the application then quits.
    void applicationShouldTerminate();

    /// Keeps what would be lost if the program ended without a word: the session is about to.
    void saveOpenState();

    /// Answers requests of other processes from now on; after applicationWillFinishLaunching().
    void attachRemoteControl(RemoteControl &control);

    void showStatus(const QString &text);

    MainWindow &window() const { return *m_window; }

    const ThumbCells &cells() const { return m_cells; }

    LargePic &largePic() { return m_largePic->largePic(); }

    /// Null where no thumbnails were lent.
    BrowserSide *browser() const { return m_browser.get(); }

private:
    ThumbCommands commands(bool withDesktop);
    void buildDesktop(const DesktopPlatform &desktop);
    void buildPictureActions(Trash &trash);
    void buildQuiet();
    void buildDisk();
    void buildWindow();
    void reopenWindows();
    void quit();
    void startPass(double seconds);
    void logFolders();
    void sourcesAreKnown();
    void askForSourcesAgain();
    void switchOnAsAsked();
    void switchOn(const QStringList &sources);

    Platform m_platform;
    Options m_options;
    Thumbnails *m_thumbnails;
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
    ShareSide m_share;
    std::unique_ptr<PictureActions> m_pictureActions;
    StartSide m_start;
    std::unique_ptr<QuietSide> m_quiet;
    std::unique_ptr<DiskSide> m_disk;
    std::unique_ptr<DateNavigation> m_dateNavigation;
    std::unique_ptr<ToolTips> m_toolTips;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<BrowserSide> m_browser;
    std::unique_ptr<SourceGrid> m_grid;
    std::unique_ptr<LargePicSide> m_largePic;
    DelayedCallHandle m_askAgain;
};

} // namespace moravel
