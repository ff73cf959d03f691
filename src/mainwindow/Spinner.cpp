// SPDX-License-Identifier: MIT
#include "mainwindow/Spinner.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QTimerEvent>

#include <algorithm>

namespace moravel {

namespace {

constexpr int Spokes = 12;
constexpr int TickMs = 83; // one turn a second
const char *const Still = "moravelStill"; // property of the application

} // namespace

Spinner::Spinner(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setObjectName(QStringLiteral("spinner"));
    setAccessibleName(tr("Loading"));
}

void Spinner::paintEvent(QPaintEvent *)
{
    const bool moves = mayMove();
    if (moves && !m_clock.isActive())
        m_clock.start(TickMs, Qt::CoarseTimer, this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    const double radius = std::min(width(), height()) / 2.0 - 1.5;
    if (moves)
        paintWheel(painter, radius);
    else
        paintDots(painter, radius);
}

bool Spinner::mayMove() const
{
    return !qApp->property(Still).toBool()
        && style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
}

void Spinner::setMotionAllowed(bool allowed)
{
    qApp->setProperty(Still, !allowed);
    for (QWidget *widget : QApplication::allWidgets()) {
        if (qobject_cast<Spinner *>(widget))
            widget->update();
    }
}

void Spinner::paintDots(QPainter &painter, double radius) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Text));
    painter.setOpacity(0.65);
    for (const int place : {-1, 0, 1})
        painter.drawEllipse(QPointF(place * radius * 0.7, 0), radius / 5.5, radius / 5.5);
}

void Spinner::paintWheel(QPainter &painter, double radius) const
{
    QColor colour = palette().color(QPalette::Text);
    for (int i = 0; i < Spokes; ++i) {
        const int age = (m_step - i + Spokes) % Spokes;
        colour.setAlphaF(static_cast<float>(std::max(0.12, 0.65 - 0.065 * age)));
        painter.setPen(QPen(colour, radius / 5.5, Qt::SolidLine, Qt::RoundCap));
        painter.save();
        painter.rotate(i * 360.0 / Spokes);
        painter.drawLine(QPointF(0, -radius * 0.55), QPointF(0, -radius));
        painter.restore();
    }
}

void Spinner::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_clock.timerId())
        return QWidget::timerEvent(event);
    if (visibleRegion().isEmpty() || !mayMove())
        return m_clock.stop();
    m_step = (m_step + 1) % Spokes;
    update();
}

void Spinner::hideEvent(QHideEvent *event)
{
    m_clock.stop();
    QWidget::hideEvent(event);
}

} // namespace moravel
