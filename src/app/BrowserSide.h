// SPDX-License-Identifier: MIT
#pragma once

#include "browser/Browser.h"
#include "service/ServiceContext.h"

#include <QThreadPool>

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
    ~BrowserSide() override;

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
    void inBackground(std::function<void()> work, std::function<void()> done);

    BrowserPorts m_ports;
    BrowserLook m_look;
    Browser m_browser;
    QObject m_mainThread; ///< Receives the answers; those still posted go with it.
    QThreadPool m_pool; ///< One thread.
};

} // namespace moravel
