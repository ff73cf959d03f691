// SPDX-License-Identifier: MIT
#include "server/sources/sky/planets/Globe.h"

#include "server/sources/sky/astro/Angles.h"
#include "server/sources/sky/paint/Noise.h"
#include "server/sources/sky/paint/Stars.h"
#include "server/sources/sky/planets/PlanetLooks.h"
#include "server/sources/sky/planets/SolarView.h"

namespace moravel::server::sky {

namespace {

constexpr float ringInner = 1.24f, ringOuter = 2.27f; ///< Saturn's C to A ring in its radii.
constexpr float ambient = 0.022f; ///< Starlight, so that a night side is not a hole.
constexpr float sunPower = 1.0f;

/// Brings the light round to the viewer's side, or near planets would be all but black.
constexpr Vec3f lift{0, 0.15f, 0.60f};

/// Opacity of Saturn's rings at a distance from its middle.
float ringOpacity(float r)
{
    if (r < ringInner || r > ringOuter)
        return 0;
    const float edges =
        smoothstep(ringInner, ringInner + 0.05f, r) * smoothstep(ringOuter, ringOuter - 0.03f, r);
    const float cassini = 1 - 0.92f * smoothstep(0.055f, 0.03f, std::fabs(r - 1.985f));
    const float body = r < 1.53f ? 0.30f : r < 1.98f ? 0.92f : 0.68f;
    const float grooves =
        0.88f + 0.22f * noise({r * 34, 0.5f, 0.5f}) + 0.14f * noise({r * 90, 3.5f, 0.5f});
    return std::min(1.0f, edges * cassini * body * grooves);
}

} // namespace

Globe::Globe(Planet planet, const SolarView &view, const Frame &frame, double julianDay)
    : m_planet(planet)
{
    const Vec3f place = SolarView::scenePlace(planetPlace(planet, julianDay));
    const Projected at = view.project(place);
    m_x = at.x;
    m_y = at.y;
    m_depth = at.depth;
    const PlanetLooks &look = looksOf(planet);
    m_radius = std::max(1.2f, look.radius * frame.fineUnit * at.scale / view.project({}).scale);
    m_sun = view.toView(normalized(place * -1.0f));
    m_light = normalized(m_sun + lift);

    const Vec3f pole = poleOf(planet);
    const Vec3f side = normalized(cross(pole, Vec3f{0.3f, 0.9f, 0.2f}));
    const double turns = julianDay / static_cast<double>(look.rotationDays);
    const double angle = 360 * (turns - std::floor(turns));
    const auto cosine = static_cast<float>(cosDeg(angle)), sine = static_cast<float>(sinDeg(angle));
    const Vec3f across = cross(pole, side);
    m_pole = view.toView(pole);
    m_prime = view.toView(side * cosine + across * sine);
    m_east = cross(m_pole, m_prime);
}

Vec3f Globe::toGlobe(const Vec3f &view) const
{
    return {dot(view, m_prime), dot(view, m_east), dot(view, m_pole)};
}

/// How dark the shadow of the rings is on the ball.
float Globe::ringShadow(const Vec3f &place) const
{
    const float slope = dot(m_sun, m_pole);
    const float t = -dot(place, m_pole) / (std::fabs(slope) < 1e-4f ? 1e-4f : slope);
    const float day = smoothstep(0.0f, 0.35f, dot(place, m_sun));
    return t > 0 ? 0.55f * day * ringOpacity(length(place + m_sun * t)) : 0;
}

/// @p x and @p y in radii, y up.
Globe::Lit Globe::ballAt(float x, float y) const
{
    const float square = x * x + y * y;
    const float edge = (1 - std::sqrt(square)) * m_radius + 0.5f; // one sample wide
    if (edge <= 0)
        return {};
    const float z = std::sqrt(std::max(0.0f, 1 - square));
    const Vec3f up = square < 1 ? Vec3f{x, y, z} : normalized(Vec3f{x, y, 0});
    const PlanetLooks &look = looksOf(m_planet);
    const float sun = dot(up, m_light);
    float day = smoothstep(-0.12f, 1.0f, sun) * 0.55f + 0.45f * std::max(0.0f, sun);
    if (m_planet == Planet::Saturn)
        day *= 1 - ringShadow(up);
    const Colour ground = planetSurface(m_planet, toGlobe(up));
    const float limb = (1 - z) * (1 - z);
    const float airDay = smoothstep(-0.35f, 0.5f, sun) * look.air * limb;
    const Colour light = ground * (day * sunPower * (0.6f + 0.4f * z) + ambient)
        + look.airColour * (airDay * 0.9f + 0.03f * limb * look.air);
    return {light, std::min(edge, 1.0f)};
}

Globe::Lit Globe::ringAt(float x, float y, bool front) const
{
    const float tilt = std::fabs(m_pole.z) < 0.02f ? 0.02f : m_pole.z;
    const float z = -(m_pole.x * x + m_pole.y * y) / tilt;
    if ((z > 0) != front)
        return {};
    const Vec3f place{x, y, z};
    const float opacity = ringOpacity(length(place));
    if (opacity <= 0)
        return {};
    const float along = dot(place, m_sun);
    const Vec3f aside = place - m_sun * along;
    const float shadow = along < 0 ? smoothstep(0.94f, 1.03f, length(aside)) : 1;
    const bool litSide = dot(m_sun, m_pole) * m_pole.z > 0;
    const float light = (litSide ? 1.0f : 0.60f) * (0.08f + 0.92f * shadow);
    return {Colour{0.92f, 0.80f, 0.60f} * (light * (0.55f + 0.45f * opacity)), opacity};
}

/// The mean over a sample's area: rings are thin and have hard edges.
Globe::Lit Globe::ringAround(float x, float y, bool front) const
{
    constexpr int n = 3;
    Lit sum{};
    for (int i = 0; i < n * n; ++i) {
        const float u = (static_cast<float>(i % n) - 1) / (n * m_radius);
        const float v = (static_cast<float>(i / n) - 1) / (n * m_radius);
        const Lit one = ringAt(x + u, y + v, front);
        sum.light += one.light * one.cover;
        sum.cover += one.cover;
    }
    return sum.cover > 0 ? Lit{sum.light * (1 / sum.cover), sum.cover / (n * n)} : Lit{};
}

void Globe::paint(Band &band) const
{
    const bool ringed = m_planet == Planet::Saturn;
    const float reach = m_radius * (ringed ? ringOuter : 1) + 1.5f;
    const PlanetLooks &look = looksOf(m_planet);
    addSpot(band, m_x, m_y, m_radius * 0.75f, look.colour * 0.12f);
    addSpot(band, m_x, m_y, m_radius * 1.5f, look.colour * 0.022f);
    const int y0 = std::max(band.top, static_cast<int>(m_y - reach));
    const int y1 = std::min(band.bottom() - 1, static_cast<int>(m_y + reach));
    const int x0 = std::max(0, static_cast<int>(m_x - reach));
    const int x1 = std::min(band.frame.width - 1, static_cast<int>(m_x + reach));
    const auto lay = [](Colour &under, const Lit &over) {
        under = mix(under, over.light, over.cover);
    };
    for (int j = y0; j <= y1; ++j) {
        Colour *row = band.row(j);
        const float y = (m_y - static_cast<float>(j) - 0.5f) / m_radius;
        for (int i = x0; i <= x1; ++i) {
            const float x = (static_cast<float>(i) + 0.5f - m_x) / m_radius;
            if (ringed)
                lay(row[i], ringAround(x, y, false));
            lay(row[i], ballAt(x, y));
            if (ringed)
                lay(row[i], ringAround(x, y, true));
        }
    }
}

} // namespace moravel::server::sky
