// SPDX-License-Identifier: MIT
#pragma once

#include "app/WindowPlaces.h"
#include "mainwindow/MainWindow.h"
#include "platform/Platform.h"
#include "platform/Tray.h"

#include <QAction>
#include <QPointer>

namespace moravel {

/// Start and end with the session: the command that has the desktop start the program, a start without the
/// window, and what windows and side bar looked like.
class StartSide : public QObject
{
    Q_OBJECT

public:
    /// All references must outlive this object.
    StartSide(const Platform &platform, Preferences &preferences);

    /// Adds the command to the File menu, and puts the window where it was.
    void attachWindow(MainWindow &window);

    /// Starts without the window: in the @p tray, or minimised where none shows up in time. The command
    /// of the icon and a second start show it.
    void startHidden(const Tray *tray);

    WindowPlaces &places() { return m_places; }

private:
    void addAutostartItem();
    void setAutostart(bool on);
    void showAutostart();
    void showMinimised();

    Platform m_platform;
    Preferences &m_preferences;
    WindowPlaces m_places;
    QPointer<MainWindow> m_window;
    QPointer<QAction> m_autostartItem;
    DelayedCallHandle m_patience;
};

} // namespace moravel
