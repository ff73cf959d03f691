// SPDX-License-Identifier: MIT
#include "mainwindow/HelpMenu.h"

namespace moravel {

void fillHelpMenu(QMenu &menu, QWidget &window, const HelpMenuPorts &ports)
{
    menu.addAction(QMenu::tr("Service &Home Page"), &window, ports.showHome)
        ->setShortcut(Qt::Key_F1);
    menu.addAction(QMenu::tr("&News"), &window, ports.showNews);
    menu.addAction(QMenu::tr("&Release Notes"), &window, ports.releaseNotes);
    menu.addAction(QMenu::tr("Report a &Bug…"), &window, ports.bugReport);
    menu.addSeparator();
    QAction *about = menu.addAction(QMenu::tr("&About Moravel"), &window,
                                    [&window, ports] { showAbout(&window, ports.about()); });
    about->setMenuRole(QAction::AboutRole);
}

} // namespace moravel
