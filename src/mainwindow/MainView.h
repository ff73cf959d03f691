// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace moravel {

class CaptionLabel;
class GridView;

/// The pane beside the side bar: the scrolling grid, and below it the status line, 30 points high.
class MainView : public QWidget
{
    Q_OBJECT

public:
    explicit MainView(QWidget *parent = nullptr);

    GridView &grid() const { return *m_grid; }

    /// Shows a plain text in the status line and redraws it at once.
    void showStatus(const QString &text);

private:
    GridView *m_grid;
    CaptionLabel *m_statusBar;
};

} // namespace moravel
