// SPDX-License-Identifier: MIT
#include "mainwindow/MainView.h"

#include "mainwindow/CaptionLabel.h"
#include "mainwindow/GridLayout.h"
#include "mainwindow/GridView.h"

#include <QVBoxLayout>

namespace moravel {

MainView::MainView(QWidget *parent)
    : QWidget(parent), m_grid(new GridView(this)), m_statusBar(new CaptionLabel(1, this))
{
    setObjectName(QStringLiteral("mainView"));
    m_statusBar->setObjectName(QStringLiteral("statusBar"));
    auto *strip = new QWidget(this);
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
