// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/astro/PlanetPositions.h"

#include <optional>

namespace moravel::server::sky {

/// Two planets in line with the Sun, on the same side of it.
struct Alignment
{
    Planet inner;
    Planet outer;
};

/// The alignment in heliocentric longitude that happens within half a day of @p julianDay. Of
/// several the one with the outermost planets, which is the rarest.
std::optional<Alignment> alignmentAt(double julianDay);

/// A turning point of a planet's distance from the Sun.
struct Apsis
{
    Planet planet;
    bool nearest; ///< Perihelion, else aphelion.
};

/// The apsis that a planet passes within half a day of @p julianDay. Not told of the Earth, whose
/// distance the Moon disturbs by more than a day, nor of the giants, whose orbits are too disturbed
/// and too slow.
std::optional<Apsis> apsisAt(double julianDay);

} // namespace moravel::server::sky
