// SPDX-License-Identifier: MIT
#pragma once

#include "base/Preferences.h"

#include <QActionGroup>
#include <QMenu>

#include <functional>

namespace moravel {

/// What the commands of the Desktop menu do.
struct DesktopMenuPorts
{
    std::function<void(int sizingTag)> setSizing;
    std::function<void()> changeNow;
    std::function<void()> backToPrevious;
    std::function<void()> keepForOneHour;
    std::function<void()> showSystemSettings;
    /// Tells whether there is a desktop to go back to; asked when the menu opens.
    std::function<bool()> hasPrevious;
};

/// Fills the Desktop menu; its check marks follow the preferences.
class DesktopMenu : public QObject
{
    Q_OBJECT

public:
    DesktopMenu(QMenu &menu, Preferences &preferences, DesktopMenuPorts ports);

private:
    QActionGroup *addChoices(QMenu &menu, const QList<std::pair<int, QString>> &items);
    QAction *addOption(const QString &title, int tag);
    void addCommands();
    void followPreferences();

    QMenu &m_menu;
    Preferences &m_preferences;
    DesktopMenuPorts m_ports;
    QActionGroup *m_desktopChangeMenu = nullptr;
    QActionGroup *m_desktopSizeMenu = nullptr;
    QAction *m_allScreensMenuItem = nullptr;
    QAction *m_allSpacesMenuItem = nullptr;
};

} // namespace moravel
