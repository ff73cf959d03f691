// SPDX-License-Identifier: MIT
#include "server/sources/sky/moon/MoonScene.h"

#include "server/sources/sky/moon/MoonDisc.h"
#include "server/sources/sky/moon/MoonSky.h"
#include "server/sources/sky/moon/MoonView.h"
#include "server/sources/sky/paint/Render.h"
#include "server/sources/sky/paint/SmoothField.h"
#include "server/sources/sky/paint/Stars.h"

namespace moravel::server::sky {

namespace {

constexpr float meanDiameter = 0.74f; ///< In units of the frame.
constexpr double meanDistanceKm = 384400;
constexpr int largestMap =
    2400; ///< Cells across the disc; bounds time and memory of huge pictures.

struct DiscPlace
{
    float x, y, radius; ///< In samples, the middle on a sample's corner.
    int side; ///< Cells of the map.
};

DiscPlace discPlace(const Frame &frame, const LunarAspect &aspect)
{
    const float scale = static_cast<float>(meanDistanceKm / aspect.distanceKm);
    const int radius =
        std::max(2, static_cast<int>(std::lround(frame.unit * meanDiameter * scale / 2)));
    return {std::round(frame.middleX + 0.1f * static_cast<float>(frame.width)),
            std::round(frame.middleY), static_cast<float>(radius),
            std::min(2 * radius, largestMap)};
}

/// The glow that the lit part spreads in the air and the lens: a sum over some places of the disc.
class Glow
{
public:
    Glow(const Frame &frame, const DiscPlace &disc, const MoonView &view)
    {
        const float radius = disc.radius / frame.cover;
        m_x = (disc.x - frame.middleX) / frame.cover;
        m_y = (disc.y - frame.middleY) / frame.cover;
        m_radius = radius;
        for (int j = -4; j <= 4; ++j) {
            for (int i = -4; i <= 4; ++i) {
                const float u = static_cast<float>(i) / 4.5f, v = static_cast<float>(j) / 4.5f;
                if (u * u + v * v >= 1)
                    continue;
                const Vec3f p{u, -v, std::sqrt(1 - u * u - v * v)};
                const float light = std::max(0.0f, dot(p, view.light));
                m_sources.push_back({m_x + u * radius, m_y + v * radius, light});
            }
        }
        // A thin crescent falls between the places: its own spot at the bright limb.
        const float side = std::hypot(view.light.x, view.light.y);
        if (side > 0.01f) {
            const float edge = 0.97f * radius / side;
            m_sources.push_back(
                {m_x + view.light.x * edge, m_y - view.light.y * edge, 0.8f * side});
        }
    }

    Colour at(float x, float y) const
    {
        float near = 0, wide = 0;
        const float r2 = m_radius * m_radius;
        for (const Vec3f &s : m_sources) {
            const float dx = x - s.x, dy = y - s.y;
            const float d2 = (dx * dx + dy * dy) / r2;
            near += s.z / ((0.10f + d2) * (0.10f + d2));
            wide += s.z / (0.5f + d2);
        }
        return Colour{0.0085f, 0.0105f, 0.0150f} * (0.012f * near)
            + Colour{0.0012f, 0.0024f, 0.0058f} * (0.036f * wide);
    }

private:
    float m_x, m_y, m_radius;
    std::vector<Vec3f> m_sources; ///< Place and light.
};

} // namespace

QImage paintMoon(const LunarAspect &aspect, QSize size, int threads)
{
    const Frame frame(size);
    const DiscPlace place = discPlace(frame, aspect);
    const MoonDisc disc(aspect, place.side, threads);
    const Glow glow(frame, place, MoonView(aspect));
    const auto lit = static_cast<float>(aspect.illuminated);
    const float stars = 1 - 0.55f * lit; // a bright moon drowns the faint ones
    const SmoothField sky(frame, threads, [&](float x, float y) { return skyLight(x, y, stars); });
    const SmoothField veil(frame, threads, [&](float x, float y) { return glow.at(x, y); });
    const std::vector<Star> points = scatterStars(1969, 14000, milkyWayDensity);
    return renderBands(size, frame, threads, [&](Band &band) {
        sky.addTo(band);
        addStars(band, points, stars);
        disc.paint(band, place.x, place.y, place.radius);
        veil.addTo(band);
    });
}

} // namespace moravel::server::sky
