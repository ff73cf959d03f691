// SPDX-License-Identifier: MIT
#include "mainwindow/MainView.h"

#include "mainwindow/CaptionLabel.h"
#include "mainwindow/GridLayout.h"
#include "mainwindow/GridView.h"
#include "mainwindow/Icons.h"

#include <QPainter>
#include <QVBoxLayout>

namespace moravel {

namespace {

/// The strip of the status line, set off from the grid by a hair line.
class StatusStrip : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(
            0, 0, width(), 1,
            blend(palette().color(QPalette::WindowText), palette().color(QPalette::Window), 0.15));
    }
};

} // namespace

MainView::MainView(QWidget *parent)
    : QWidget(parent), m_grid(new GridView(this)), m_statusBar(new CaptionLabel(1, this))
{
    setObjectName(QStringLiteral("mainView"));
    m_statusBar->setObjectName(QStringLiteral("statusBar"));
    auto *strip = new StatusStrip(this);
    strip->setFixedHeight(grid::StatusHeight);
    auto *row = new QHBoxLayout(strip);
    row->setContentsMargins(12, 0, 12, 0);
    row->addWidget(m_statusBar, 1, Qt::AlignVCenter);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_grid, 1);
    column->addWidget(strip);
}

void MainView::showStatus(const QString &text)
{
    m_statusBar->setText(text);
    m_statusBar->repaint();
}

} // namespace moravel
