// SPDX-License-Identifier: MIT
#include "server/sources/sky/moon/MoonDisc.h"

#include "server/sources/sky/astro/LunarAspect.h"
#include "server/sources/sky/moon/MoonLight.h"
#include "server/sources/sky/moon/MoonSurface.h"
#include "server/sources/sky/paint/Render.h"

namespace moravel::server::sky {

namespace {

constexpr int rowsAtOnce = 16;

/// The light of the nearly full Earth in the Moon's night, strongest at new moon. Stronger than in
/// nature next to the lit part, as a long exposure shows it.
Colour earthshine(const LunarAspect &aspect)
{
    const auto dark = static_cast<float>(1 - aspect.illuminated);
    const float strength = 0.009f + 0.036f * dark * dark + 0.055f * smoothstep(0.93f, 1.0f, dark);
    return Colour{0.50f, 0.76f, 1.24f} * strength;
}

/// Sunlight that a cell sends to the viewer. Near the limb, ground behind a crest is out of sight:
/// what is seen there is the crest, shown as the level ground.
float sunlight(const MoonSurface &surface, const MoonView &view, int column, int row,
               const Vec3f &normal)
{
    const Vec3f up = surface.place(column, row);
    const float level = dustyReflection(dot(up, view.light), up.z);
    const float seen = sunVisible(surface, column, row, view.light);
    const float facing = 0.25f * up.z + 0.75f * normal.z;
    const float light = seen > 0 ? seen * dustyReflection(dot(normal, view.light), facing) : 0;
    if (light > 0.7f * level || up.z > 0.45f)
        return light;
    const Vec3f viewer{0, 0, 1};
    const float inSight =
        std::min(smoothstep(0.0f, 0.08f, normal.z), sunVisible(surface, column, row, viewer));
    const float shade =
        smoothstep(1.0f, 0.92f, view.light.z); // no shadows are seen from the Sun's side
    return mix(level, light, inSight * (0.2f + 0.8f * shade));
}

} // namespace

MoonDisc::MoonDisc(const LunarAspect &aspect, int side, int threads)
    : m_side(side), m_light(static_cast<std::size_t>(side) * static_cast<std::size_t>(side))
{
    const MoonView view(aspect);
    const MoonSurface surface(view, side, threads);
    forEachIndex((side + rowsAtOnce - 1) / rowsAtOnce, threads, [&](int strip) {
        const int last = std::min(side, (strip + 1) * rowsAtOnce);
        for (int row = strip * rowsAtOnce; row < last; ++row)
            shadeRow(surface, view, aspect, row);
    });
}

void MoonDisc::shadeRow(const MoonSurface &surface, const MoonView &view, const LunarAspect &aspect,
                        int row)
{
    const Colour night = earthshine(aspect);
    const Colour day =
        Colour{1.0f, 0.985f, 0.955f} * mix(0.76f, 1.0f, static_cast<float>(aspect.illuminated));
    Colour *out = m_light.data() + static_cast<std::ptrdiff_t>(row) * m_side;
    for (int column = 0; column < m_side; ++column) {
        if (!surface.covers(column, row))
            continue;
        const Vec3f normal = groundNormal(surface, column, row);
        const float sun = sunlight(surface, view, column, row, normal);
        const float earth = 0.55f + 0.45f * std::max(0.0f, normal.z);
        const Colour ground = surface.reflectance(column, row);
        out[column] = ground * (day * sun + night * earth);
    }
}

Colour MoonDisc::at(float x, float y) const
{
    const float half = static_cast<float>(m_side) / 2;
    const float limit = static_cast<float>(m_side) - 1.001f;
    const float across = std::clamp((x + 1) * half - 0.5f, 0.0f, limit);
    const float down = std::clamp((y + 1) * half - 0.5f, 0.0f, limit);
    const int column = static_cast<int>(across), row = static_cast<int>(down);
    const float u = across - static_cast<float>(column), v = down - static_cast<float>(row);
    const Colour *c = m_light.data() + static_cast<std::ptrdiff_t>(row) * m_side + column;
    return mix(mix(c[0], c[1], u), mix(c[m_side], c[m_side + 1], u), v);
}

void MoonDisc::paint(Band &band, float middleX, float middleY, float radius) const
{
    const int left = std::max(0, static_cast<int>(middleX - radius) - 1);
    const int right = std::min(band.frame.width - 1, static_cast<int>(middleX + radius) + 1);
    for (int j = band.top; j < band.bottom(); ++j) {
        const float dy = static_cast<float>(j) + 0.5f - middleY;
        if (std::fabs(dy) > radius + 1)
            continue;
        Colour *row = band.row(j);
        for (int i = left; i <= right; ++i) {
            const float dx = static_cast<float>(i) + 0.5f - middleX;
            const float cover = radius + 0.5f - std::sqrt(dx * dx + dy * dy);
            if (cover <= 0)
                continue;
            const float inside = cover > 1 ? 1 : cover;
            row[i] = row[i] * (1 - inside) + at(dx / radius, dy / radius) * inside;
        }
    }
}

} // namespace moravel::server::sky
