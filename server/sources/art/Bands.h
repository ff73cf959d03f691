// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <thread>
#include <vector>

namespace moravel::server::art {

/// The number of threads to draw with: one a processor.
inline int defaultThreads()
{
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, 16);
}

/// Calls @p draw(firstRow, endRow) for bands of rows from @p first up to @p end, on @p threads
/// threads (at least the caller's). The bands are the same for any number of threads, so what @p
/// draw writes may depend on its band but not on who draws it.
template <typename Draw>
void forBands(int first, int end, int rowsPerBand, int threads, const Draw &draw)
{
    std::atomic<int> next{first};
    const auto work = [&] {
        for (int row = next.fetch_add(rowsPerBand); row < end; row = next.fetch_add(rowsPerBand))
            draw(row, std::min(end, row + rowsPerBand));
    };
    const int bands = (std::max(0, end - first) + rowsPerBand - 1) / rowsPerBand;
    std::vector<std::jthread> helpers;
    for (int i = 1; i < std::min(threads, bands); ++i)
        helpers.emplace_back(work);
    work();
}

/// The pixels of a 32-bit image for several threads: unlike QImage, rows can be had without
/// detaching.
struct Pixels
{
    explicit Pixels(QImage &image)
        : width(image.width())
        , height(image.height())
        , m_bits(image.bits())
        , m_stride(image.bytesPerLine())
    { }

    std::uint32_t *row(int y) const
    {
        return reinterpret_cast<std::uint32_t *>(m_bits + static_cast<qsizetype>(y) * m_stride);
    }

    int width;
    int height;

private:
    uchar *m_bits;
    qsizetype m_stride;
};

} // namespace moravel::server::art
