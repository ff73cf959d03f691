// SPDX-License-Identifier: MIT
#include "browser/ImageGrid.h"

#include <algorithm>
#include <cmath>

namespace moravel {

namespace {

constexpr int SmallestFrame = 64;
constexpr int LargestFrame = 384;
constexpr int Margin = 10; ///< Around the whole grid.
constexpr int TitleGap = 6;

} // namespace

QRect frameIn(const QRect &cell, int titleHeight)
{
    return cell.adjusted(CellPadding, CellPadding, -CellPadding,
                         -(CellPadding + TitleGap + titleHeight));
}

int frameWidth(double zoom)
{
    const double within = std::isnan(zoom) ? double(UsualZoom) : std::clamp(zoom, 0.0, 1.0);
    return static_cast<int>(std::lround(SmallestFrame + within * (LargestFrame - SmallestFrame)));
}

ImageGrid::ImageGrid(int width, int count, double zoom, int titleHeight)
    : m_width(std::max(0, width - 2 * Margin)), m_count(count)
{
    const int frame = frameWidth(zoom);
    m_frame = {frame, frame * 3 / 4}; // between the wide pictures and the tall ones
    m_cell = m_frame + QSize(2 * CellPadding, 2 * CellPadding + TitleGap + titleHeight);
    m_columns = std::max(1, m_width / m_cell.width());
}

int ImageGrid::height() const
{
    return m_count == 0 ? 0 : rows() * m_cell.height() + 2 * Margin;
}

/// The room that is left over lies between the cells.
int ImageGrid::columnLeft(int column) const
{
    const int middle = (2 * column + 1) * m_width / (2 * m_columns);
    return Margin + middle - m_cell.width() / 2;
}

QRect ImageGrid::cell(int index) const
{
    return {QPoint(columnLeft(index % m_columns), Margin + index / m_columns * m_cell.height()),
            m_cell};
}

int ImageGrid::indexAt(QPoint point) const
{
    const Span rows = rowsBetween(point.y(), point.y());
    for (int index = rows.first; index <= rows.last; ++index) {
        if (cell(index).contains(point))
            return index;
    }
    return -1;
}

ImageGrid::Span ImageGrid::rowsBetween(int top, int bottom) const
{
    if (m_count == 0 || bottom < Margin || top >= Margin + rows() * m_cell.height())
        return {};
    const int first = std::max(0, top - Margin) / m_cell.height();
    const int last = (bottom - Margin) / m_cell.height();
    return {first * m_columns,
            static_cast<int>(std::min<qint64>((last + 1LL) * m_columns, m_count) - 1)};
}

ImageGrid::Span ImageGrid::columnsBetween(int left, int right) const
{
    Span span{m_columns, -1};
    for (int column = 0; column < m_columns; ++column) {
        const int begin = columnLeft(column);
        if (begin > right || begin + m_cell.width() <= left)
            continue;
        span.first = std::min(span.first, column);
        span.last = column;
    }
    return span;
}

} // namespace moravel
