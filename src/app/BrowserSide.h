// SPDX-License-Identifier: MIT
#pragma once

#include "app/Worker.h"
#include "browser/Browser.h"
#include "service/ServiceContext.h"

namespace moravel {

class DesktopSide;
class LegacyCaptions;
class MainWindow;
class Preferences;

/// Ties the picture browser to the store, the desktop and the main window.
class BrowserSide : public QObject
{
    Q_OBJECT

public:
    /// What the arguments name must outlive this object. Without a @p desktop no command concerning the
    /// desktop is offered.
    BrowserSide(const ServiceContext &context, LegacyCaptions &legacy, Preferences &preferences,
                Thumbnails &thumbnails, DesktopSide *desktop);

    /// Offers deletion; before the browser is opened.
    void setTrash(std::function<void(const QStringList &paths, std::function<void()> done)> move);

    /// Adds the command to the window's View menu.
    void attachWindow(MainWindow &window);

    /// For what is tied later: a port counts from the first showing on.
    BrowserPorts &ports() { return m_ports; }

    Browser &browser() { return m_browser; }

private:
    void fillPorts(const ServiceContext &context, DesktopSide *desktop);
    void fillLook();

    BrowserPorts m_ports;
    BrowserLook m_look;
    Browser m_browser;
    Worker m_worker;
};

} // namespace moravel
