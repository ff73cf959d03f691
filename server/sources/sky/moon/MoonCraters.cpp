// SPDX-License-Identifier: MIT
#include "server/sources/sky/moon/MoonCraters.h"

#include "server/sources/sky/moon/MareField.h"
#include "server/sources/sky/moon/MoonFeatures.h"
#include "server/sources/sky/moon/MoonView.h"
#include "server/sources/sky/paint/Prng.h"

#include <algorithm>
#include <numbers>

namespace moravel::server::sky {

namespace {

constexpr float radiusKm = 1737.4f;
constexpr int smallCraters = 44000;
constexpr float smallestKm = 7, largestKm = 110;

/// Depth and rim height follow R. J. Pike's measurements of fresh lunar craters (1977).
Crater craterOf(const Vec3f &centre, float diameterKm, float freshness, float flooded, bool inMare)
{
    const bool simple = diameterKm < 15;
    const float depthKm =
        simple ? 0.196f * std::pow(diameterKm, 1.01f) : 1.044f * std::pow(diameterKm, 0.301f);
    const float rimKm =
        simple ? 0.036f * std::pow(diameterKm, 1.014f) : 0.236f * std::pow(diameterKm, 0.399f);
    const float wear = 0.30f + 0.70f * freshness;
    const bool peaked = diameterKm > 30 && diameterKm < 180 && flooded < 0.5f;
    Crater crater{};
    crater.centre = centre;
    crater.radius = diameterKm / 2 / radiusKm;
    crater.rim = rimKm * wear / radiusKm;
    crater.depth = depthKm * wear * (1 - 0.45f * flooded) / radiusKm;
    crater.floor = simple ? 0.12f : std::min(0.8f, 0.35f + diameterKm / 300 + 0.25f * flooded);
    crater.peak = peaked ? 0.42f * crater.depth * freshness : 0;
    crater.base = inMare ? -0.9f / radiusKm : 0;
    crater.freshness = freshness;
    return crater;
}

Vec3f anywhere(Prng &prng)
{
    const float z = prng.uniform(-1, 1);
    const float turn = prng.uniform(0, 2 * std::numbers::pi_v<float>);
    const float flat = std::sqrt(1 - z * z);
    return {flat * std::cos(turn), flat * std::sin(turn), z};
}

} // namespace

std::vector<Crater> lunarCraters(const MareField &maria)
{
    std::vector<Crater> craters;
    craters.reserve(smallCraters + namedCraters().size());
    for (const NamedCrater &named : namedCraters()) {
        const Vec3f centre = selenographic(named.latitude, named.longitude);
        craters.push_back(craterOf(centre, named.diameterKm, named.freshness, named.flooded,
                                   maria.isMare(centre)));
    }
    Prng prng(1609);
    for (int i = 0; i < smallCraters; ++i) {
        const Vec3f centre = anywhere(prng);
        const float rank = prng.uniform(0.0005f, 1);
        const float freshness = prng.uniform();
        const float chance = prng.uniform();
        const float diameter = std::min(smallestKm / std::sqrt(rank), largestKm);
        const float spared = diameter > 25 ? 0.03f : 0.16f;
        if (centre.x < -0.3f)
            continue; // the far side is never seen
        const bool inMare = maria.isMare(centre);
        if (!inMare || chance < spared)
            craters.push_back(craterOf(centre, diameter, freshness * freshness, 0, inMare));
    }
    std::stable_sort(craters.begin(), craters.end(),
                     [](const Crater &a, const Crater &b) { return a.radius > b.radius; });
    return craters;
}

float craterHeight(const Crater &crater, float x)
{
    if (x >= 1) {
        const float tail = (craterReach - x) / (craterReach - 1);
        return crater.rim * tail * tail / (x * x);
    }
    const float wall = smoothstep(crater.floor, 1.02f, x);
    const float sharp = mix(wall, wall * wall, 0.4f * crater.freshness);
    const float peak = x < 0.22f ? crater.peak * (1 - x / 0.22f) : 0;
    return crater.rim + crater.depth * (sharp - 1) + peak;
}

} // namespace moravel::server::sky
