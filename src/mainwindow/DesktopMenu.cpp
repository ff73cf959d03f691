// SPDX-License-Identifier: MIT
#include "mainwindow/DesktopMenu.h"

namespace moravel {

DesktopMenu::DesktopMenu(QMenu &menu, Preferences &preferences, DesktopMenuPorts ports)
    : m_menu(menu), m_preferences(preferences), m_ports(std::move(ports))
{
    addCommands();
    m_menu.addSeparator();
    QMenu *change = m_menu.addMenu(tr("Change &Every"));
    m_desktopChangeMenu = addChoices(*change,
                                     {{0, tr("Never")},
                                      {5, tr("5 Minutes")},
                                      {15, tr("15 Minutes")},
                                      {30, tr("30 Minutes")},
                                      {60, tr("Hour")},
                                      {120, tr("2 Hours")},
                                      {240, tr("4 Hours")},
                                      {480, tr("8 Hours")},
                                      {1440, tr("24 Hours")}});
    QMenu *size = m_menu.addMenu(tr("&Sizing"));
    m_desktopSizeMenu = addChoices(*size,
                                   {{1000, tr("Auto")},
                                    {1001, tr("Fit to Screen")},
                                    {1002, tr("Fill Screen")},
                                    {1003, tr("Center")}});
    m_allScreensMenuItem = addOption(tr("All S&creens"), Preferences::AllScreensTag);
    m_allSpacesMenuItem = addOption(tr("All Virtual &Desktops"), Preferences::AllSpacesTag);
    m_menu.addSeparator();
    m_menu.addAction(tr("System Desktop Se&ttings…"), this,
                     [this] { m_ports.showSystemSettings(); });

    connect(m_desktopChangeMenu, &QActionGroup::triggered, this, [this](const QAction *item) {
        m_preferences.setChangeFrequency(item->data().toInt());
    });
    connect(m_desktopSizeMenu, &QActionGroup::triggered, this,
            [this](const QAction *item) { m_ports.setSizing(item->data().toInt()); });
    connect(&m_preferences, &Preferences::menuStateChanged, this, &DesktopMenu::followPreferences);
    followPreferences();
}

void DesktopMenu::addCommands()
{
    QAction *now =
        m_menu.addAction(tr("Change Desktop &Now"), this, [this] { m_ports.changeNow(); });
    now->setShortcut(Qt::CTRL | Qt::Key_N);
    QAction *back = m_menu.addAction(tr("&Back to Previous Desktop"), this,
                                     [this] { m_ports.backToPrevious(); });
    m_menu.addAction(tr("&Keep This Desktop for 1 Hour"), this,
                     [this] { m_ports.keepForOneHour(); });
    connect(&m_menu, &QMenu::aboutToShow, back,
            [this, back] { back->setEnabled(m_ports.hasPrevious()); });
}

QActionGroup *DesktopMenu::addChoices(QMenu &menu, const QList<std::pair<int, QString>> &items)
{
    auto *group = new QActionGroup(this);
    // A stored value that no item has leaves all of them unchecked.
    group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (const auto &[tag, title] : items) {
        QAction *item = menu.addAction(title);
        item->setCheckable(true);
        item->setData(tag);
        group->addAction(item);
    }
    return group;
}

QAction *DesktopMenu::addOption(const QString &title, int tag)
{
    QAction *item = m_menu.addAction(title);
    item->setCheckable(true);
    connect(item, &QAction::triggered, this, [this, tag] { m_preferences.setDesktopOptions(tag); });
    return item;
}

void DesktopMenu::followPreferences()
{
    const auto check = [](const QActionGroup &group, int tag) {
        for (QAction *item : group.actions())
            item->setChecked(item->data().toInt() == tag);
    };
    check(*m_desktopChangeMenu, m_preferences.rotateFrequency());
    check(*m_desktopSizeMenu, m_preferences.desktopSizeSetting());
    m_allScreensMenuItem->setChecked(m_preferences.doSetAllScreens());
    m_allSpacesMenuItem->setChecked(m_preferences.doSetAllSpaces());
}

} // namespace moravel
