// SPDX-License-Identifier: MIT
// Where the great features of the near side are: selenographic degrees (north and east positive),
// after the Gazetteer of Planetary Nomenclature (IAU/USGS). Outlines of maria are built from
// ellipses.
#pragma once

#include <span>

namespace moravel::server::sky {

struct Mare
{
    float latitude, longitude;
    float halfWidth, halfHeight; ///< Degrees of arc, east-west and north-south before the turn.
    float turn; ///< Anticlockwise, degrees.
    float darkness; ///< 0 as bright as highlands, 1 the darkest lava.
    float titanium; ///< Colour: 1 bluish, 0 neutral, -1 brownish.
    float rimKm; ///< Height of the mountains around it.
};

std::span<const Mare> maria();

struct NamedCrater
{
    float latitude, longitude;
    float diameterKm;
    float freshness; ///< 1 crisp with a high rim, 0 nearly worn away.
    float flooded; ///< 1: the floor is filled with lava, flat and without a peak.
};

std::span<const NamedCrater> namedCraters();

struct RayCrater
{
    float latitude, longitude;
    float radiusKm;
    float reach; ///< Length of the rays, degrees of arc.
    float bright; ///< Strength of the rays and the halo.
};

std::span<const RayCrater> rayCraters();

} // namespace moravel::server::sky
