// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace moravel {

/// A menu of the menu bar that hides itself while it has no items.
class LateMenu : public QMenu
{
    Q_OBJECT

public:
    LateMenu(const QString &title, QWidget *parent);

protected:
    void actionEvent(QActionEvent *event) override;
};

/// A menu of switches that stays open while they are flipped, so that several can be set in one go.
class SwitchMenu : public LateMenu
{
    Q_OBJECT

public:
    using LateMenu::LateMenu;

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool flipActive();
};

} // namespace moravel
