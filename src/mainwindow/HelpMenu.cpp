// SPDX-License-Identifier: MIT
#include "mainwindow/HelpMenu.h"

#include "platform/Texts.h"

namespace moravel {

void fillHelpMenu(QMenu &menu, QWidget &window, const HelpMenuPorts &ports)
{
    menu.addAction(Texts::tr("Service &Home Page"), &window, ports.showHome)
        ->setShortcut(Qt::Key_F1);
    menu.addAction(Texts::tr("&News"), &window, ports.showNews);
    menu.addAction(Texts::tr("&Release Notes"), &window, ports.releaseNotes);
    menu.addAction(Texts::tr("Report a &Bug…"), &window, ports.bugReport);
    menu.addSeparator();
    QAction *about = menu.addAction(Texts::tr("&About Moravel"), &window,
                                    [&window, ports] { showAbout(&window, ports.about()); });
    about->setMenuRole(QAction::AboutRole);
}

} // namespace moravel
