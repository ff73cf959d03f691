// SPDX-License-Identifier: MIT
#include "mainwindow/CellButton.h"

#include "mainwindow/Icons.h"

#include <QHBoxLayout>
#include <QPainter>

namespace moravel {

CellButton::CellButton(QString iconName, const QString &accessibleName, QWidget *parent)
    : QAbstractButton(parent), m_iconName(std::move(iconName))
{
    setAccessibleName(accessibleName);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::ArrowCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void CellButton::paintEvent(QPaintEvent *)
{
    constexpr int Points = 16;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF plate = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    painter.setPen(hasFocus() ? QPen(Qt::white, 1.5) : QPen(Qt::NoPen));
    const int light = isDown() ? 90 : underMouse() ? 55 : 0;
    painter.setBrush(QColor(255, 255, 255, light));
    painter.drawRoundedRect(plate, 5, 5);
    painter.drawPixmap((width() - Points) / 2, (height() - Points) / 2,
                       iconPixmap(m_iconName, Points, Qt::white, devicePixelRatioF()));
}

CellButtonBar::CellButtonBar(QWidget *parent) : QWidget(parent)
{
    setAccessibleName(tr("Commands"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(3, 2, 3, 2);
    layout->setSpacing(1);
    setAttribute(Qt::WA_NoMousePropagation);
}

CellButton *CellButtonBar::addButton(const QString &objectName, const QString &iconName,
                                     const QString &accessibleName)
{
    auto *button = new CellButton(iconName, accessibleName, this);
    button->setObjectName(objectName);
    layout()->addWidget(button);
    return button;
}

void CellButtonBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(20, 20, 24, 185));
    painter.drawRoundedRect(QRectF(rect()), 8, 8);
}

} // namespace moravel
