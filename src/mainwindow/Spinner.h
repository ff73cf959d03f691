// SPDX-License-Identifier: MIT
#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace moravel {

/// A small wheel that turns while something is awaited, or three dots that stand still. It ticks only while it is really on screen:
/// painting starts the clock, a tick that finds nothing visible stops it.
class Spinner : public QWidget
{
    Q_OBJECT

public:
    explicit Spinner(QWidget *parent = nullptr);

    QSize sizeHint() const override { return {28, 28}; }

    /// Whether spinners may turn, for people whom moving things disturb; else three dots stand still.
    static void setMotionAllowed(bool allowed);

    bool isTicking() const { return m_clock.isActive(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    bool mayMove() const;
    void paintWheel(QPainter &painter, double radius) const;
    void paintDots(QPainter &painter, double radius) const;

    QBasicTimer m_clock;
    int m_step = 0;
};

} // namespace moravel
