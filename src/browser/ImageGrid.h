// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

namespace moravel {

/// A zoom that was never saved reads as 0.
inline constexpr float UsualZoom = 0.4F;

inline constexpr int CellPadding = 8; ///< Around a picture and its title, in points.

/// Returns the frame of the picture in a cell, above the line of the title.
QRect frameIn(const QRect &cell, int titleHeight);

/// Returns the width of a picture's frame in points: 64 at zoom 0 to 384 at zoom 1. A zoom outside stands for
/// the nearer end, one that is no number for the usual zoom.
int frameWidth(double zoom);

/// Where the cells of the image browser stand: rows of equal cells from the top, as many to a row as fit,
/// spread over the width. All arithmetic, so that a hundred thousand cells cost what ten do.
class ImageGrid
{
public:
    ImageGrid() = default;

    /// @param width of the view; @param titleHeight of the line below a picture, in points.
    ImageGrid(int width, int count, double zoom, int titleHeight);

    int columns() const { return m_columns; }

    int count() const { return m_count; }

    int rows() const { return (m_count + m_columns - 1) / m_columns; }

    int rowHeight() const { return m_cell.height(); }

    int height() const; ///< Of the whole document.

    /// Largest size of a picture, in points.
    QSize frame() const { return m_frame; }

    QRect cell(int index) const;
    /// Returns the cell at a point of the document, or -1 between the cells.
    int indexAt(QPoint point) const;

    /// Positions from first to last, both included; empty when last is before first.
    struct Span
    {
        int first = 0;
        int last = -1;
        bool operator==(const Span &) const = default;
    };

    /// Returns the cells of all rows that meet the stripe from @p top to @p bottom.
    Span rowsBetween(int top, int bottom) const;
    /// Returns the columns that meet the stripe from @p left to @p right.
    Span columnsBetween(int left, int right) const;

private:
    int columnLeft(int column) const;

    int m_width = 0;
    int m_count = 0;
    int m_columns = 1;
    QSize m_frame{1, 1};
    QSize m_cell{1, 1};
};

} // namespace moravel
