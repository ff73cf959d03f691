// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/DesktopManagement.h"
#include "mainwindow/DesktopMenu.h"
#include "mainwindow/MainWindow.h"
#include "notify/GrowlAlert.h"
#include "platform/Notifications.h"
#include "platform/Tray.h"
#include "platform/Workspace.h"
#include "service/PictureService.h"

#include <memory>

namespace moravel {

/// The touches of the operating system that only the desktop side needs.
struct DesktopPlatform
{
    DesktopPictures *pictures = nullptr; ///< Null where no desktop picture can be set.
    Tray &tray;
    Workspace &workspace;
    Notifications &notifications;
};

/// Ties desktop management to the window, the tray, the notifications and the service client.
class DesktopSide : public QObject
{
    Q_OBJECT

public:
    /// All of @p context, @p platform and @p service must outlive this object; platform.pictures is not
    /// null.
    DesktopSide(const ServiceContext &context, Preferences &preferences,
                const DesktopPlatform &platform, PictureService &service);

    /// Fills the window's Desktop menu and shows the desktop's state in its side bar.
    void attachWindow(MainWindow &window);

    DesktopManagement &management() { return m_management; }

    /// Enters what restores the deleted picture of a cell.
    void setReloadDeletedPic(std::function<void(ThumbView &)> reload)
    {
        m_ports.reloadDeletedPic = std::move(reload);
    }

    /// For what is tied later.
    DesktopPorts &ports() { return m_ports; }

    /// Paths of the pictures on the screens, and of the one to which the user can go back.
    QStringList shownPictures() const;

    GrowlAlert &growl() { return m_growl; }

    const Tray &tray() const { return m_platform.tray; }

    Workspace &workspace() { return m_platform.workspace; }

    void setShowLargePic(std::function<void(ThumbView &)> show)
    {
        m_ports.showLargePic = std::move(show);
    }

private:
    void fillServicePorts(PictureService &service);
    void fillPlatformPorts();
    void tieTray();
    void showIcon(const QImage &image);
    void activate();

    ServiceContext m_service;
    DesktopPlatform m_platform;
    DesktopPorts m_ports;
    DesktopManagement m_management;
    GrowlAlert m_growl;
    Preferences &m_preferences;
    MainWindow *m_window = nullptr;
    std::unique_ptr<DesktopMenu> m_menu;
};

} // namespace moravel
