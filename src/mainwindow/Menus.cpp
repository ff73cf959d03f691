// SPDX-License-Identifier: MIT
#include "mainwindow/Menus.h"

#include <QActionEvent>

namespace moravel {

LateMenu::LateMenu(const QString &title, QWidget *parent) : QMenu(title, parent)
{
    menuAction()->setVisible(false);
}

void LateMenu::actionEvent(QActionEvent *event)
{
    QMenu::actionEvent(event);
    menuAction()->setVisible(!actions().isEmpty());
}

bool SwitchMenu::flipActive()
{
    QAction *action = activeAction();
    if (!action || !action->isCheckable() || !action->isEnabled())
        return false;
    action->trigger();
    return true;
}

void SwitchMenu::mouseReleaseEvent(QMouseEvent *event)
{
    if (!rect().contains(event->position().toPoint()) || !flipActive())
        QMenu::mouseReleaseEvent(event);
}

void SwitchMenu::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Space || !flipActive())
        QMenu::keyPressEvent(event);
}

} // namespace moravel
