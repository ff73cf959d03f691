// SPDX-License-Identifier: MIT
#include "mainwindow/SplitView.h"

#include "mainwindow/Icons.h"

#include <QHBoxLayout>
#include <QPainter>

#include <cmath>

namespace moravel {

namespace {

class Divider : public QWidget
{
public:
    explicit Divider(SplitView *splitView) : QWidget(splitView), m_splitView(splitView)
    {
        setObjectName(QStringLiteral("divider"));
        setFixedWidth(SplitView::DividerWidth);
        setToolTip(SplitView::tr("Double-click to hide or show the side bar."));
    }

protected:
    void mouseDoubleClickEvent(QMouseEvent *) override
    {
        m_splitView->setCollapsed(!m_splitView->isCollapsed());
    }

    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const QColor window = palette().color(QPalette::Window);
        const int line = isRightToLeft() ? 0 : width() - 1;
        painter.fillRect(line, 0, 1, height(),
                         blend(palette().color(QPalette::WindowText), window, 0.22));
    }

private:
    SplitView *m_splitView;
};

} // namespace

SplitView::SplitView(QWidget *sideBar, QWidget *mainView, QWidget *parent)
    : QWidget(parent), m_sideBar(sideBar)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(sideBar, splitViewShouldAdjustSizeOfSubview(sideBar) ? 1 : 0);
    row->addWidget(new Divider(this));
    row->addWidget(mainView, splitViewShouldAdjustSizeOfSubview(mainView) ? 1 : 0);
    sideBar->setMinimumWidth(static_cast<int>(std::lround(splitViewConstrainMinCoordinate())));
    sideBar->setMaximumWidth(static_cast<int>(std::lround(splitViewConstrainMaxCoordinate())));
}

bool SplitView::isCollapsed() const
{
    return m_sideBar->isHidden();
}

void SplitView::setCollapsed(bool collapsed)
{
    if (collapsed == isCollapsed() || !splitViewCanCollapseSubview(m_sideBar))
        return;
    m_sideBar->setVisible(!collapsed);
    Q_EMIT collapsedChanged(collapsed);
}

} // namespace moravel
