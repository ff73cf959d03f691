// SPDX-License-Identifier: MIT
#include "app/StartSide.h"

#include "mainwindow/CheckItem.h"

#include <QMenu>

namespace moravel {

namespace {

// A session starts its programs all at once, and the panel may be the last.
constexpr double TraySeconds = 15;

} // namespace

StartSide::StartSide(const Platform &platform, Preferences &preferences)
    : m_platform(platform), m_preferences(preferences), m_places(preferences, platform.loop)
{ }

void StartSide::attachWindow(MainWindow &window)
{
    m_window = &window;
    m_places.follow(window, QStringLiteral("main"));
    window.showSideBar(!m_preferences.readHideSideBar());
    connect(&window, &MainWindow::sideBarShown, this,
            [this](bool shown) { m_preferences.saveHideSideBar(!shown); });
    if (m_platform.autostart)
        addAutostartItem();
}

void StartSide::addAutostartItem()
{
    m_autostartItem = makeCheckItem(tr("Start at &Login"), m_window,
                                    [this] { setAutostart(!m_platform.autostart->isOn()); });
    m_autostartItem->setObjectName(QStringLiteral("autostartMenuItem"));
    m_window->addFileItem(m_autostartItem);
    // Other programs change it, too: the settings of the desktop.
    connect(&m_window->fileMenu(), &QMenu::aboutToShow, this, &StartSide::showAutostart);
    showAutostart();
}

void StartSide::showAutostart()
{
    if (m_autostartItem)
        m_autostartItem->setChecked(m_platform.autostart->isOn());
}

void StartSide::setAutostart(bool on)
{
    m_platform.autostart->setOn(
        on, [this, self = QPointer(this)](const tl::expected<void, QString> &result) {
            if (!self)
                return;
            showAutostart();
            if (!result)
                m_platform.alerts.alert(tr("Error changing the start at login."), result.error());
        });
}

void StartSide::startHidden(const Tray *tray)
{
    if (!tray) {
        showMinimised();
        return;
    }
    m_patience = m_platform.loop.after(TraySeconds, [this, tray] {
        if (!tray->isShown() && m_window && !m_window->isVisible())
            showMinimised();
    });
}

void StartSide::showMinimised()
{
    if (m_window)
        m_window->showMinimized();
}

} // namespace moravel
