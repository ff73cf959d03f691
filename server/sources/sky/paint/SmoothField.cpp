// SPDX-License-Identifier: MIT
#include "server/sources/sky/paint/SmoothField.h"

#include "server/sources/sky/paint/Render.h"

namespace moravel::server::sky {

namespace {

constexpr float cellsAcross = 260;
constexpr int margin = 2; ///< Cells outside the frame that the spline needs.

/// Weights of the four neighbours at @p t between the second and the third.
struct Weights
{
    explicit Weights(float t)
        : a((1 - t) * (1 - t) * (1 - t) / 6)
        , b((4 - 6 * t * t + 3 * t * t * t) / 6)
        , d(t * t * t / 6)
    {
        c = 1 - a - b - d;
    }

    float a, b, c, d;
};

} // namespace

SmoothField::SmoothField(const Frame &frame, int threads,
                         const std::function<Colour(float x, float y)> &light)
    : m_frame(frame)
    , m_cell(frame.cover / cellsAcross)
    , m_columns(static_cast<int>(static_cast<float>(frame.width) / m_cell) + 2 * margin + 2)
    , m_rows(static_cast<int>(static_cast<float>(frame.height) / m_cell) + 2 * margin + 2)
    , m_grid(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows))
{
    forEachIndex(m_rows, threads, [&](int j) {
        const float y = static_cast<float>(j - margin) * m_cell - frame.middleY;
        Colour *row = m_grid.data() + static_cast<std::ptrdiff_t>(j) * m_columns;
        for (int i = 0; i < m_columns; ++i) {
            const float x = static_cast<float>(i - margin) * m_cell - frame.middleX;
            row[i] = light(x / frame.cover, y / frame.cover);
        }
    });
}

void SmoothField::addTo(Band &band) const
{
    std::vector<Colour> columns(static_cast<std::size_t>(m_columns));
    for (int y = band.top; y < band.bottom(); ++y)
        addRow(band.row(y), y, columns);
}

void SmoothField::addRow(Colour *row, int y, std::vector<Colour> &columns) const
{
    const float at = (static_cast<float>(y) + 0.5f) / m_cell;
    const int cell = static_cast<int>(at);
    const Weights v(at - static_cast<float>(cell));
    const Colour *grid = m_grid.data() + static_cast<std::ptrdiff_t>(cell + margin - 1) * m_columns;
    for (int i = 0; i < m_columns; ++i) {
        columns[static_cast<std::size_t>(i)] = grid[i] * v.a + grid[i + m_columns] * v.b
            + grid[i + 2 * m_columns] * v.c + grid[i + 3 * m_columns] * v.d;
    }
    for (int x = 0; x < m_frame.width; ++x) {
        const float across = (static_cast<float>(x) + 0.5f) / m_cell;
        const int column = static_cast<int>(across);
        const Weights h(across - static_cast<float>(column));
        const Colour *c = columns.data() + column + margin - 1;
        row[x] += c[0] * h.a + c[1] * h.b + c[2] * h.c + c[3] * h.d;
    }
}

} // namespace moravel::server::sky
