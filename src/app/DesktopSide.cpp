// SPDX-License-Identifier: MIT
#include "app/DesktopSide.h"

#include "app/Question.h"
#include "app/RemoteActions.h"
#include "desktop/DesktopUrls.h"
#include "service/PictureFields.h"

#include <QApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QIcon>

namespace moravel {

namespace {

constexpr int IconPixels = 256;

// Tells two states of a file apart without reading it.
QByteArray fileStamp(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return {};
    return QByteArray::number(file.size()) + ' '
        + QByteArray::number(file.lastModified().toMSecsSinceEpoch());
}

} // namespace

DesktopSide::DesktopSide(const ServiceContext &context, Preferences &preferences,
                         const DesktopPlatform &platform, PictureService &service)
    : m_service(context)
    , m_platform(platform)
    , m_management({context.platform, *platform.pictures, context.dates, preferences, context.cells,
                    context.folders, context.records, context.links, m_ports})
    , m_growl(platform.notifications,
              [this](const QString &path) { m_management.setToChosen(path); })
    , m_preferences(preferences)
{
    fillServicePorts(service);
    fillPlatformPorts();
    tieTray();
}

void DesktopSide::fillServicePorts(PictureService &service)
{
    m_ports.isDownloading = [&service](const QString &path) {
        return service.downloads().isDownloading(path);
    };
    m_ports.loadNextThumb = [&service] { service.thumbPass().loadNextThumb(); };
    m_ports.sufficientData = [](const QStringList &fields) { return sufficientData(fields); };
    m_ports.longSourceName = [this](const QString &name) {
        return m_service.sourceNames.value(name);
    };
    m_ports.pixelSize = [this](const QString &path, std::function<void(QSize)> done) {
        m_service.platform.images.size(path, std::move(done));
    };
    m_ports.fileStamp = fileStamp;
}

void DesktopSide::fillPlatformPorts()
{
    m_ports.ask = [this](const DesktopQuestion &question, std::function<void(int)> answer) {
        QWidget *asking = QApplication::activeWindow(); // where the command was given
        askQuestion(asking ? asking : m_window, {question.title, question.text, question.buttons},
                    std::move(answer));
    };
    m_ports.showNextChange = [this](const QString &text) {
        if (m_window)
            m_window->setNextChange(text);
    };
    m_ports.showKeepButton = [this](bool visible) {
        if (m_window)
            m_window->sideBar().setKeepButtonVisible(visible);
    };
    m_ports.applicationIcon = [] {
        return QIcon(QStringLiteral(":/moravel/icon.svg")).pixmap(IconPixels, IconPixels).toImage();
    };
    m_ports.showDockTile = [this](const QImage &image) { showIcon(image); };
    m_ports.activate = [this] { activate(); };
    m_ports.revealFile = [this](const QString &path) {
        m_platform.workspace.revealInFileManager(path);
    };
    m_ports.runDesktopPrefsScript = [this](std::function<void(const QString &)> done) {
        m_platform.workspace.openDesktopSettings(std::move(done));
    };
}

void DesktopSide::tieTray()
{
    m_platform.tray.onMenuNeeded = [this] {
        QList<TrayMenuItem> items;
        for (const DockMenuItem &item : m_management.applicationDockMenu())
            items.append(
                {item.title, QString::number(static_cast<int>(item.command)), item.isEnabled()});
        return items;
    };
    m_platform.tray.onCommand = [this](const QString &command) {
        m_management.run(static_cast<DockCommand>(command.toInt()));
    };
    m_platform.tray.onActivated = [this] { activate(); };
}

void DesktopSide::attachWindow(MainWindow &window)
{
    m_window = &window;
    DesktopMenuPorts ports;
    ports.setSizing = [this](int tag) { m_management.setSizing(tag); };
    ports.changeNow = [this] { m_management.rotation().rotateDesktop(RotateSender::TimerOrMenu); };
    ports.backToPrevious = [this] { m_management.rotation().previousDesktop(); };
    ports.keepForOneHour = [this] { m_management.rotation().holdDesktopForOneHour(); };
    ports.showSystemSettings = [this] { m_management.showDesktopPrefs(); };
    ports.hasPrevious = [this] { return !m_management.setter().previousDesktopPath().isEmpty(); };
    m_menu = std::make_unique<DesktopMenu>(window.desktopMenu(), m_preferences, std::move(ports));
    connect(&window.sideBar(), &SideBar::keepButtonClicked, this,
            [this] { m_management.rotation().holdDesktopForOneHour(); });
}

QStringList DesktopSide::shownPictures() const
{
    QStringList paths{m_management.currentDesktopPath(),
                      desktopPathFromUrl(m_management.setter().previousDesktopPath())};
    for (const DesktopScreen &screen : m_platform.pictures->screens())
        paths.append(desktopPathFromUrl(m_platform.pictures->desktopImageUrl(screen.id)));
    return paths;
}

void DesktopSide::showIcon(const QImage &image)
{
    const QIcon icon(QPixmap::fromImage(image));
    QApplication::setWindowIcon(icon);
    if (m_window)
        m_window->setWindowIcon(icon);
    m_platform.tray.setImage(image);
}

void DesktopSide::activate()
{
    if (m_window)
        bringToFront(*m_window);
}

} // namespace moravel
