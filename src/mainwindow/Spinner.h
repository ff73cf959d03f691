// SPDX-License-Identifier: MIT
#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace moravel {

/// A small wheel that turns while something is awaited. It ticks only while it is really on screen:
/// painting starts the clock, a tick that finds nothing visible stops it.
class Spinner : public QWidget
{
    Q_OBJECT

public:
    explicit Spinner(QWidget *parent = nullptr);

    QSize sizeHint() const override { return {28, 28}; }

    bool isTicking() const { return m_clock.isActive(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QBasicTimer m_clock;
    int m_step = 0;
};

} // namespace moravel
