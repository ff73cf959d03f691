// SPDX-License-Identifier: MIT
#include "app/ShareSide.h"

#include "desktop/DesktopSizing.h"
#include "desktop/DesktopUrls.h"
#include "mainwindow/HelpMenu.h"
#include "mainwindow/Sheet.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>

namespace moravel {

ShareSide::ShareSide(const ServiceContext &context, Preferences &preferences,
                     PictureService &service, const ShareSetup &setup, DesktopPictures *pictures)
    : m_context(context)
    , m_preferences(preferences)
    , m_service(service)
    , m_setup(setup)
    , m_pictures(pictures)
    , m_sharing(setup.urls, setup.clipboard, preferences, context.dates, setup.addresses,
                sharePorts())
{ }

SharePorts ShareSide::sharePorts()
{
    SharePorts ports;
    ports.findPage = [this](const QString &source, const QString &day,
                            std::function<void(const QString &)> done) {
        m_service.pages().find(source, day, std::move(done));
    };
    ports.warn = [this](const QString &message, const QString &text) {
        showSheet(m_window, {Sheet::Style::Warning, message, text});
    };
    ports.inform = [this](const QString &message, const QString &text,
                          std::function<void()> ended) {
        QWidget *window = largeWindow ? largeWindow() : nullptr;
        showSheet(window ? window : m_window, {Sheet::Style::Information, message, text},
                  std::move(ended));
    };
    return ports;
}

void ShareSide::attachWindow(MainWindow &window, const SourceGrid &sources)
{
    m_window = &window;
    m_sources = &sources;
    fillNewsPorts(window);
    HelpMenuPorts ports;
    ports.showHome = [this] { m_setup.urls.open(m_setup.addresses.home); };
    ports.showNews = [this] { m_service.news().showNews(); };
    ports.releaseNotes = [this] { releaseNotes(); };
    ports.bugReport = [this] { bugReport(); };
    ports.about = [this] {
        return AboutText{QIcon(QStringLiteral(":/moravel/icon.svg")), m_setup.version,
                         m_setup.addresses.home, m_context.sourceNames.values()};
    };
    fillHelpMenu(window.helpMenu(), window, ports);
}

void ShareSide::fillNewsPorts(MainWindow &window)
{
    NewsPorts ports;
    ports.showButton = [&window](bool visible) { window.sideBar().setNewsButtonVisible(visible); };
    ports.showSheet = [&window](const NewsSheet &sheet) {
        showSheet(&window, {Sheet::Style::Information, sheet.title, sheet.body});
    };
    ports.showNone = [&window] { window.showStatus(tr("There is no news.")); };
    m_service.news().setPorts(ports);
    connect(&window.sideBar(), &SideBar::newsButtonClicked, this,
            [this] { m_service.news().showNews(); });
}

// A command that comes while the program waits for an answer takes its turn after it.
void ShareSide::inTurn(ThumbView &cell, void (Sharing::*command)(ThumbView &))
{
    m_context.platform.loop.inOrder([this, cell = QPointer(&cell), command] {
        if (cell)
            (m_sharing.*command)(*cell);
    });
}

void ShareSide::shareFacebook(ThumbView &currentThumb)
{
    inTurn(currentThumb, &Sharing::shareFacebook);
}

void ShareSide::shareTwitter(ThumbView &currentThumb)
{
    inTurn(currentThumb, &Sharing::shareTwitter);
}

void ShareSide::shareEmail(ThumbView &currentThumb)
{
    inTurn(currentThumb, &Sharing::shareEmail);
}

void ShareSide::releaseNotes()
{
    m_setup.urls.open(m_setup.addresses.home + QLatin1String("/release.html"));
}

void ShareSide::bugReport()
{
    const BugMail mail = bugMail(m_setup.supportAddress, m_setup.version, bugReportText(report()));
    if (!mail.clipboard.isEmpty())
        m_setup.clipboard.setText(mail.clipboard);
    m_setup.urls.open(mail.url);
}

QList<DesktopScreen> ShareSide::screens() const
{
    QList<DesktopScreen> list = m_pictures ? m_pictures->screens() : QList<DesktopScreen>();
    if (!list.isEmpty())
        return list;
    for (const QScreen *screen : QGuiApplication::screens())
        list.append({screen->name(), screen->size() * screen->devicePixelRatio(),
                     screen == QGuiApplication::primaryScreen()});
    return list;
}

BugReport ShareSide::report() const
{
    BugReport report;
    report.date = m_context.platform.loop.now();
    report.version = m_setup.version;
    report.system = QSysInfo::prettyProductName(); // of os-release
    report.location = QCoreApplication::applicationFilePath();
    for (const DesktopScreen &screen : screens()) {
        report.screens.append({screen.pixels, screen.isMain});
        if (screen.isMain && m_pictures)
            report.desktopUrl = withoutFileHost(m_pictures->desktopImageUrl(screen.id));
    }
    for (const QString &source : m_sources->selectedSources()) {
        const ThumbView *cell = source.isEmpty() ? nullptr : m_context.cells.thumbForSource(source);
        if (cell)
            report.pictures.append(cell->debugInfo());
    }
    report.desktopPicture = m_context.cells.desktopThumb().debugInfo();
    report.rotateFrequency = m_preferences.rotateFrequency();
    report.desktopSize = desktopSizeString(m_preferences.desktopSizeSetting());
    return report;
}

} // namespace moravel
