// SPDX-License-Identifier: MIT
#include "mainwindow/GridLayout.h"

#include <algorithm>

namespace moravel::grid {

int thumbsPerRow(int documentWidth)
{
    return std::max(1, documentWidth / ColumnPitch);
}

int numberOfRows(int visibleThumbs, int perRow)
{
    return (visibleThumbs + perRow - 1) / perRow;
}

int heightAfterLayout(int mainViewHeight, int rows)
{
    return std::max(mainViewHeight - StatusHeight, rows * RowPitch - 10);
}

int heightAfterResize(int mainViewHeight, int rows)
{
    return std::max(mainViewHeight - StatusHeight, rows * RowPitch + 20);
}

int topOf(int bottomUpY, int documentHeight)
{
    return documentHeight - bottomUpY - CellHeight;
}

Plan plan(int perRow, int mainViewHeight, const std::vector<bool> &shown)
{
    const auto visible = static_cast<int>(std::count(shown.begin(), shown.end(), true));
    Plan plan;
    plan.origins.resize(shown.size());
    plan.documentHeight = heightAfterLayout(mainViewHeight, numberOfRows(visible, perRow));
    QPoint at(LeftMargin, plan.documentHeight - CellHeight + RowPitch);
    if (!shown.empty())
        plan.origins.front() = at;
    int k = 0;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (!shown[i])
            continue;
        if (k++ % perRow == 0) {
            ++plan.rows;
            at = {LeftMargin, at.y() - RowPitch};
        } else {
            at.rx() += ColumnPitch;
        }
        plan.origins[i] = at;
    }
    return plan;
}

} // namespace moravel::grid
