// SPDX-License-Identifier: MIT
#include "mainwindow/Menus.h"

#include <QActionEvent>
#include <QCoreApplication>
#include <QMessageBox>

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

void showAbout(QWidget *window)
{
    auto *box = new QMessageBox(window);
    box->setObjectName(QStringLiteral("aboutBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowTitle(QMenu::tr("About Moravel"));
    box->setTextFormat(Qt::PlainText);
    box->setText(QMenu::tr("Moravel %1").arg(QCoreApplication::applicationVersion()).trimmed());
    box->setInformativeText(QMenu::tr(
        "Shows the pictures of the day of many sources side by side, keeps every one with "
        "its caption, and makes any of them the desktop picture.\n\nFree software under "
        "the MIT licence."));
    const QIcon icon = window->windowIcon();
    if (!icon.isNull())
        box->setIconPixmap(icon.pixmap(64));
    box->open();
}

} // namespace moravel
