// SPDX-License-Identifier: MIT
#include "server/sources/sky/paint/Render.h"

#include <atomic>
#include <cstdint>
#include <thread>

namespace moravel::server::sky {

namespace {

constexpr int bandRows = 24;

/// Linear up to a half, then bending towards 1.
float shoulder(float x)
{
    const float t = x - 0.5f;
    return t <= 0 ? x : 0.5f + t / (1 + 2 * t);
}

/// The sRGB curve, to 0.1 % (Ian Taylor's fit with square roots).
float encoded(float x)
{
    const float s1 = std::sqrt(x), s2 = std::sqrt(s1), s3 = std::sqrt(s2);
    const float y = 0.662002687f * s1 + 0.684122060f * s2 - 0.323583601f * s3 - 0.0225411470f * x;
    return x < 0.0031308f ? x * 12.92f : y;
}

/// Uniform in (-0.5, 0.5) and without pattern.
float ditherAt(unsigned x, unsigned y)
{
    std::uint32_t h = x * 0x9e3779b1U ^ y * 0x85ebca77U;
    h = (h ^ (h >> 15)) * 0x2c1b3c6dU;
    h = (h ^ (h >> 12)) * 0x297a2d39U;
    h ^= h >> 15;
    return static_cast<float>(h >> 8) * 0x1p-24f - 0.5f;
}

int byteOf(float light, float dither)
{
    const float value = encoded(shoulder(light < 0 ? 0 : light)) * 255 + dither + 0.5f;
    return value < 0 ? 0 : value > 255 ? 255 : static_cast<int>(value);
}

Colour averaged(const Band &band, int x, int y)
{
    const int n = band.frame.oversampling;
    Colour sum;
    for (int j = 0; j < n; ++j) {
        const Colour *from =
            band.samples.data() + static_cast<std::ptrdiff_t>(y * n + j) * band.frame.width + x * n;
        for (int i = 0; i < n; ++i)
            sum += from[i];
    }
    return sum * (1.0f / static_cast<float>(n * n));
}

void store(const Band &band, QRgb *line, int width, int firstRow, int localRow)
{
    for (int x = 0; x < width; ++x) {
        const Colour light = averaged(band, x, localRow);
        const float dither =
            ditherAt(static_cast<unsigned>(x), static_cast<unsigned>(firstRow + localRow));
        line[x] = qRgb(byteOf(light.x, dither), byteOf(light.y, -dither), byteOf(light.z, dither));
    }
}

} // namespace

int threadCount()
{
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, 16);
}

void forEachIndex(int count, int threads, const std::function<void(int)> &work)
{
    std::atomic<int> next = 0;
    const auto run = [&] {
        for (int i = next++; i < count; i = next++)
            work(i);
    };
    std::vector<std::jthread> helpers;
    for (int i = 1; i < std::min(threads, count); ++i)
        helpers.emplace_back(run);
    run();
}

QImage renderBands(QSize size, const Frame &frame, int threads,
                   const std::function<void(Band &)> &paint)
{
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    uchar *const pixels = image.bits();
    const qsizetype stride = image.bytesPerLine();
    const int bands = (size.height() + bandRows - 1) / bandRows;
    forEachIndex(bands, threads, [&](int index) {
        const int first = index * bandRows;
        const int rows = std::min(bandRows, size.height() - first);
        Band band{frame, first * frame.oversampling, rows * frame.oversampling, {}};
        band.samples.resize(static_cast<std::size_t>(band.rows)
                            * static_cast<std::size_t>(frame.width));
        paint(band);
        for (int y = 0; y < rows; ++y)
            store(band, reinterpret_cast<QRgb *>(pixels + stride * (first + y)), size.width(),
                  first, y);
    });
    return image;
}

} // namespace moravel::server::sky
