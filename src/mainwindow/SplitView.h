// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace moravel {

/// The main window's two panes: the side bar and the rest. The divider cannot be dragged: the side bar
/// is either 210 points wide or collapsed. A double click on the divider collapses it; on the divider that
/// remains at the edge, brings it back.
class SplitView : public QWidget
{
    Q_OBJECT

public:
    /// Takes both panes over as children.
    SplitView(QWidget *sideBar, QWidget *mainView, QWidget *parent = nullptr);

    static constexpr double SideBarWidth = 210.0;
    static constexpr int DividerWidth = 5; ///< A hair line with room to hit it.

    // The least and the greatest position are the same on purpose.
    double splitViewConstrainMinCoordinate() const { return SideBarWidth; }

    double splitViewConstrainMaxCoordinate() const { return SideBarWidth; }

    bool splitViewCanCollapseSubview(const QWidget *subview) const { return subview == m_sideBar; }

    bool splitViewShouldAdjustSizeOfSubview(const QWidget *subview) const
    {
        return subview != m_sideBar;
    }

    bool isCollapsed() const;
    void setCollapsed(bool collapsed);

Q_SIGNALS:
    void collapsedChanged(bool collapsed);

private:
    QWidget *m_sideBar;
};

} // namespace moravel
