// SPDX-License-Identifier: MIT
#pragma once

#include "base/Preferences.h"
#include "thumb/ThumbCells.h"

#include <QAction>

#include <functional>

namespace moravel {

/// The switch for the tool tips of all cells. Its menu item is checked while they are shown; the stored
/// preference says the opposite.
class ToolTips : public QObject
{
    Q_OBJECT

public:
    ToolTips(ThumbCells &cells, Preferences &preferences);

    /// Applies the stored preference to the menu item, all cells and the button; the cells must exist.
    void readTooltipOptions();
    void toggleToolTips();

    QAction *tooltipsMenuItem() const { return m_tooltipsMenuItem; }

    /// Sets the tool tip of the button that opens the original page; null hides it.
    std::function<void(const QString &toolTip)> parentButton;

private:
    ThumbCells &m_cells;
    Preferences &m_preferences;
    QAction *m_tooltipsMenuItem;
};

} // namespace moravel
