// SPDX-License-Identifier: MIT
#include "mainwindow/Spinner.h"

#include <QPainter>
#include <QStyle>
#include <QTimerEvent>

#include <algorithm>

namespace moravel {

namespace {

constexpr int Spokes = 12;
constexpr int TickMs = 83; // one turn a second

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
    const bool animated =
        style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
    if (animated && !m_clock.isActive())
        m_clock.start(TickMs, Qt::CoarseTimer, this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    const double radius = std::min(width(), height()) / 2.0 - 1.5;
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
    if (visibleRegion().isEmpty())
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
