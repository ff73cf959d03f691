// SPDX-License-Identifier: MIT
#include "app/MoravelAppDelegate.h"

#include "app/CurrentPicture.h"
#include "app/Logging.h"
#include "app/RemoteActions.h"

#include <QCoreApplication>

namespace moravel {

namespace {

constexpr double AskAgainSeconds = 60; // for the sources, while none is known
const QString LargeName = QStringLiteral("large");
const QString BrowserName = QStringLiteral("browser");
constexpr int DoubleClick = 2; // where the cell has counted the clicks already

ThumbImages thumbImages(const Images &images)
{
    return {images.resource(QStringLiteral("blank")), images.resource(QStringLiteral("Trashcan")),
            images.resource(QStringLiteral("Prefs"))};
}

} // namespace

MoravelAppDelegate::MoravelAppDelegate(const Platform &platform,
                                       const std::optional<DesktopPlatform> &desktop,
                                       const ShareSetup &share, Options options,
                                       Thumbnails *thumbnails)
    : m_platform(platform)
    , m_options(std::move(options))
    , m_thumbnails(thumbnails)
    , m_preferences(m_platform.defaults)
    , m_cells(thumbImages(m_platform.images), commands(desktop.has_value()))
    , m_folders(m_platform.files, m_platform.alerts)
    , m_legacy(m_folders, m_platform.files, m_dates, m_sourceNames)
    , m_records(m_folders, m_platform.files, m_platform.alerts, m_dates,
                [this](const QString &name) { return m_legacy.oldStoredDataForFile(name); })
    , m_updates(m_records, m_legacy, m_dates)
    , m_links(m_folders, m_platform.files)
    , m_context{m_platform, m_dates,   m_datePicker, m_cells, m_sourceNames,
                m_folders,  m_records, m_updates,    m_links, m_ports}
    , m_service(m_context, share.addresses.home)
    , m_share(m_context, m_preferences, m_service, share, desktop ? desktop->pictures : nullptr)
    , m_start(m_platform, m_preferences)
{
    m_ports.showStatus = [this](const QString &text) { showStatus(text); };
    m_ports.loadNews = [this] { m_service.news().loadNews(); };
    if (desktop)
        buildDesktop(*desktop);
    m_largePic = std::make_unique<LargePicSide>(m_context, m_service, m_share, m_desktop.get());
    m_ports.largePic = m_largePic.get();
    if (m_platform.trash)
        buildPictureActions(*m_platform.trash);
    buildQuiet();
    buildDisk();
}

MoravelAppDelegate::~MoravelAppDelegate() = default;

void MoravelAppDelegate::buildDesktop(const DesktopPlatform &desktop)
{
    m_desktop = std::make_unique<DesktopSide>(m_context, m_preferences, desktop, m_service);
    DesktopManagement &management = m_desktop->management();
    m_ports.currentDesktopPath = [&management] { return management.currentDesktopPath(); };
    m_ports.rotateDesktop = [&management](ThumbView &) {
        management.rotation().rotateDesktop(RotateSender::Button);
    };
    m_ports.newPicture = [this](const ThumbView &cell, const QString &path) {
        m_desktop->growl().newPicture(cell, path);
    };
}

void MoravelAppDelegate::buildPictureActions(Trash &trash)
{
    m_pictureActions =
        std::make_unique<PictureActions>(m_context, m_service, trash, m_desktop.get());
    const auto reload = [this](ThumbView &cell) { m_pictureActions->reloadDeletedPic(cell); };
    m_ports.reloadDeletedPic = reload;
    LargePicPorts &large = m_largePic->largePic().ports();
    large.reloadDeletedPic = reload;
    large.deletePic = [this](ThumbView &cell) {
        m_platform.loop.inOrder(
            [this, &cell] { m_pictureActions->deletePic(cell, DeleteSender::LargePicWindow); });
    };
}

void MoravelAppDelegate::buildQuiet()
{
    QuietPorts ports;
    ports.catchUpDownloads = [this] { m_service.catchUp(); };
    ports.connectionIsBack = [this] { m_service.connectionIsBack(); };
    ports.catchUpRotation = [this] {
        if (m_desktop)
            m_desktop->management().rotation().catchUp();
    };
    m_quiet = std::make_unique<QuietSide>(m_platform, m_preferences, std::move(ports));
    m_ports.whyNotNow = [this] { return m_quiet->whyNoDownload(); };
    if (m_desktop)
        m_desktop->ports().whyNotNow = [this] { return m_quiet->whyNoRotation(); };
}

void MoravelAppDelegate::buildDisk()
{
    DiskPorts ports;
    ports.shownPictures = [this] {
        QStringList paths{largePic().currentLargePicPath()};
        return m_desktop ? paths + m_desktop->shownPictures() : paths;
    };
    ports.fetch = [this](ThumbView &cell) {
        return m_service.downloads().largePicFilePathForThumb(cell);
    };
    ports.setDesktop = [this](const QString &path) {
        if (m_desktop)
            m_desktop->management().setToChosen(path);
    };
    m_disk = std::make_unique<DiskSide>(m_context, m_preferences, m_legacy, std::move(ports));
    m_ports.isLetGo = [this](const QString &path) { return m_disk->isLetGo(path); };
    m_ports.pictureArrived = [this](const QString &path) { m_disk->pictureArrived(path); };
    if (!m_desktop)
        return;
    m_desktop->ports().userChose = [this](const QString &path) { m_disk->keep(path); };
    m_desktop->ports().fetchForDesktop = [this](ThumbView &cell) {
        if (m_disk->isLetGo(cell) || !m_quiet->whyNoDownload().isEmpty())
            m_disk->fetchForDesktop(cell);
    };
}

ThumbCommands MoravelAppDelegate::commands(bool withDesktop)
{
    // A command that comes while the program waits for an answer takes its turn after it.
    const auto inTurn = [this](std::function<void(ThumbView &)> command) {
        return [this, command = std::move(command)](ThumbView &cell) {
            m_platform.loop.inOrder([command, &cell] { command(cell); });
        };
    };
    ThumbCommands commands;
    commands.refreshDataForThumb = inTurn([this](ThumbView &cell) {
        m_disk->wantBack(cell);
        m_service.refreshDataForThumb(cell);
    });
    commands.showLargePic = [this](ThumbView &cell) { // at once: it only looks
        const bool isDesktop = cell.tag() == ThumbView::DesktopTag;
        largePic().showLargePic(cell, isDesktop ? DoubleClick : 1);
    };
    commands.refreshCaption = inTurn(
        [this](ThumbView &cell) { m_service.captionRefresh().implementRefreshCaption(cell); });
    if (m_platform.trash) {
        commands.deletePic = inTurn(
            [this](ThumbView &cell) { m_pictureActions->deletePic(cell, DeleteSender::Cell); });
    }
    if (!withDesktop)
        return commands;
    commands.setAsDesktop = inTurn(
        [this](ThumbView &cell) { m_desktop->management().setAsDesktop(cell, DoubleClick); });
    commands.showInFinder =
        inTurn([this](ThumbView &cell) { m_desktop->management().showInFinder(cell); });
    commands.newDesktop = inTurn([this](ThumbView &) {
        m_desktop->management().rotation().rotateDesktop(RotateSender::Button);
    });
    commands.previousDesktop =
        inTurn([this](ThumbView &) { m_desktop->management().rotation().previousDesktop(); });
    return commands;
}

void MoravelAppDelegate::applicationWillFinishLaunching()
{
    m_datePicker.autoChangeDate = true;
    m_datePicker.userChangeDate = false;
    const QDateTime now = m_platform.loop.now();
    m_datePicker.setMaximumDate(now);
    m_datePicker.setDateValue(now);
    m_dateNavigation = std::make_unique<DateNavigation>(
        m_datePicker, m_platform.loop,
        DateNavigationPorts{[this] { m_service.thumbPass().forgetLastDataCheck(); },
                            [this](double seconds) { m_service.thumbPass().restart(seconds); }});
    m_datePicker.autoChangeDate = false;
    m_cells.createSpecialCells(now);
    buildWindow();
}

void MoravelAppDelegate::buildWindow()
{
    m_toolTips = std::make_unique<ToolTips>(m_cells, m_preferences);
    m_window = std::make_unique<MainWindow>(m_cells, m_datePicker, *m_dateNavigation, *m_toolTips);
    m_window->windowShouldClose = [this] {
        quit(); // also when an alert is still open
        return true;
    };
    SourceGridPorts ports;
    ports.startPass = [this](double seconds) { startPass(seconds); };
    ports.sourcesChosen = [this] { m_service.sourcesChosen(); };
    ports.retry = [this] { askForSourcesAgain(); };
    if (m_thumbnails) {
        m_browser = std::make_unique<BrowserSide>(m_context, m_legacy, m_preferences, *m_thumbnails,
                                                  m_desktop.get());
        m_browser->attachWindow(*m_window);
        if (m_platform.trash)
            m_browser->setTrash(
                [trash = m_platform.trash](const QStringList &paths, std::function<void()> done) {
                    trash->moveToTrash(paths, [done = std::move(done)](const auto &) { done(); });
                });
        ports.addSourcePopupItem = [this](const QString &longName) {
            m_browser->browser().addSourcePopupItem(longName);
        };
    }
    if (m_desktop) {
        m_desktop->attachWindow(*m_window);
        ports.rotateDesktop = [this](double seconds) {
            m_desktop->management().rotation().scheduleRotateDesktop(seconds);
        };
    }
    m_largePic->attachWindow(*m_window, *m_toolTips);
    m_grid = std::make_unique<SourceGrid>(m_cells, m_preferences, m_platform.loop, *m_window,
                                          std::move(ports));
    m_share.attachWindow(*m_window, *m_grid);
    const auto follow = [this](const QString &name) {
        return [this, name](QWidget &window) { m_start.places().follow(window, name); };
    };
    largePic().ports().windowMade = follow(LargeName);
    if (m_browser)
        m_browser->ports().windowMade = follow(BrowserName);
    m_disk->attachWindow(*m_window);
    m_start.attachWindow(*m_window);
    m_quiet->attachWindow(*m_window);
}

void MoravelAppDelegate::reopenWindows()
{
    if (!m_browser)
        return;
    m_start.places().reopen([this](const QString &name, const QString &file) {
        if (name == BrowserName)
            m_browser->browser().picBrowser();
        else if (name == LargeName && m_platform.files.exists(file))
            m_browser->browser().actions().showLarge(file);
    });
}

void MoravelAppDelegate::quit()
{
    m_start.places().endForGood();
    QCoreApplication::quit();
}

// Without cells there is no pass, and nothing to say of it. Where nobody looks, nobody has asked.
void MoravelAppDelegate::startPass(double seconds)
{
    if (m_cells.count() == 0)
        return;
    if (m_window->isVisible() && !m_window->isMinimized())
        m_service.thumbPass().restart(seconds);
    else
        m_service.thumbPass().restartUnasked(seconds);
}

void MoravelAppDelegate::showWindow()
{
    if (m_options.hidden)
        m_start.startHidden(m_desktop ? &m_desktop->tray() : nullptr);
    else
        m_window->show();
}

void MoravelAppDelegate::applicationDidFinishLaunching()
{
    m_preferences.readChangeFrequency();
    m_preferences.readSizeSetting();
    m_preferences.readDesktopOptions();
    m_folders.removeLeftovers();
    m_disk->start();
    logFolders();
    m_service.sources().getSources([this] {
        if (m_desktop && m_preferences.rotateFrequency() > 0)
            m_desktop->management().rotation().markFirstRotationDue();
        sourcesAreKnown();
        reopenWindows();
        if (m_desktop)
            m_desktop->management().start();
        m_service.news().loadNews([this] { m_toolTips->readTooltipOptions(); });
    });
}

void MoravelAppDelegate::logFolders()
{
    qCInfo(lcApp).noquote() << "data file:" << m_folders.moravelDataFile();
    qCInfo(lcApp).noquote() << "picture folder:" << m_folders.moravelFolder();
}

void MoravelAppDelegate::sourcesAreKnown()
{
    qCInfo(lcApp).noquote() << "sources known:" << m_sourceNames.size();
    m_grid->drawCheckboxesAndThumbs(m_sourceNames);
    largePic().forgetCurrentThumb();
    if (m_sourceNames.isEmpty())
        m_askAgain = m_platform.loop.after(AskAgainSeconds, [this] { askForSourcesAgain(); });
    else
        switchOnAsAsked();
}

void MoravelAppDelegate::askForSourcesAgain()
{
    m_askAgain.reset();
    m_service.sources().getSources([this] {
        if (m_cells.count() > 0)
            return;
        m_service.thumbPass().forgetLastDataCheck();
        sourcesAreKnown();
        if (m_cells.count() > 0)
            m_toolTips->readTooltipOptions();
    });
}

void MoravelAppDelegate::switchOnAsAsked()
{
    if (!m_options.sources)
        return;
    for (const QString &unknown : m_grid->switchOn(*m_options.sources))
        qCWarning(lcApp).noquote() << "no source is called" << unknown;
    m_options.sources.reset();
}

void MoravelAppDelegate::switchOn(const QStringList &sources)
{
    m_options.sources = sources;
    if (m_cells.count() > 0)
        switchOnAsAsked(); // else as soon as the sources are known
}

void MoravelAppDelegate::attachRemoteControl(RemoteControl &control)
{
    const auto showBrowser = [this]() -> QWidget * {
        m_browser->browser().picBrowser();
        return &m_browser->browser().browserWindow();
    };
    tieRemoteControl(control,
                     {.platform = m_platform,
                      .desktop = m_desktop ? &m_desktop->management() : nullptr,
                      .pictureOfDesktop =
                          [this](const QString &path) {
                              return currentPicture(path, m_cells.desktopThumb(), m_dates);
                          },
                      .showMainWindow = [this] { return m_window.get(); },
                      .showLargePic = [this] { return m_largePic->showSomePic(); },
                      .showBrowser = m_browser ? ShowsWindow(showBrowser) : ShowsWindow(),
                      .switchOnSources = [this](const QStringList &sources) { switchOn(sources); },
                      .quit = [this] { quit(); }});
}

void MoravelAppDelegate::applicationShouldTerminate()
{
    m_service.downloads().cancelAll();
    saveOpenState();
}

void MoravelAppDelegate::saveOpenState()
{
    m_start.places().save();
}

void MoravelAppDelegate::showStatus(const QString &text)
{
    if (m_window)
        m_window->showStatus(text);
}

} // namespace moravel
