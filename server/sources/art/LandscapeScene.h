// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/art/Colour.h"
#include "server/sources/art/SunDay.h"

#include <QDate>

#include <cstdint>
#include <vector>

/// A landscape is a stack of flat layers before a sky. Places are in picture heights: u counts to
/// the right from the middle, v downwards from the upper edge.
namespace moravel::server::art {

enum class Season { Spring, Summer, Autumn, Winter };
enum class Hour { Dawn, Day, Golden, Dusk, Night };
enum class View { Ridges, Lake, Valley, Hills };

/// The colours of an hour.
struct Mood
{
    Gradient sky; ///< From the upper edge to the horizon.
    Rgb haze; ///< What distance fades into.
    Rgb mist;
    Rgb near; ///< Things close by, against the light.
    Rgb light; ///< Of lit faces; multiplies the colour of the land.
    Rgb shade; ///< Of faces turned away.
    Rgb sun;
    Rgb cloudLit;
    Rgb cloudShade;
};

/// One layer, a silhouette with a painted inside.
struct Ridge
{
    std::uint32_t seed = 0;
    float base = 0.6F; ///< v of its feet.
    float height = 0.2F; ///< Of its highest crests above the feet.
    float frequency = 1; ///< Crests a picture height.
    float offset = 0; ///< Where in the noise it begins.
    float valley = 0; ///< How far its sides rise towards the edges of the picture.
    float tilt = 0; ///< How far it rises from the left to the right.
    float rocky = 1; ///< 1 a jagged range, 0 soft hills.
    float trees = 0; ///< Height of the trees on its crest.
    float distance = 0.5F; ///< 0 close by … 1 on the horizon: how much haze lies before it.
    float snow = 0; ///< Share of its height under snow, from the top.
    float mist = 0.4F; ///< How much mist lies at its feet.
    float relief = 0; ///< Contrast of lit and shaded faces.
    Rgb land; ///< Its own colour in white light.
    Rgb accent; ///< Of single trees.
    float accents = 0; ///< Share of such trees.
};

/// A conifer close by.
struct Tree
{
    std::uint32_t seed = 0;
    float u = 0;
    float v = 1; ///< Of its foot.
    float height = 0.3F;
    bool golden = false; ///< A larch in autumn.
};

struct LandscapeScene
{
    Season season = Season::Summer;
    Hour hour = Hour::Day;
    View view = View::Ridges;
    SunDay sunDay;
    MoonNight moonNight;
    double sunAltitude = 0; ///< Degrees.
    bool moonlit = false;
    bool misty = false;
    bool cloudy = false;

    Mood mood;
    std::uint32_t seed = 0;
    float horizon = 0.64F;
    float lightU = 0; ///< Where the sun (by night, the moon) stands.
    float lightV = 0.5F;
    float discRadius = 0; ///< 0: the disc is out of sight.
    float glow = 1;
    float stars = 0;
    float cloudCover = 0.3F;
    float cloudStretch = 2;
    float lake = 2; ///< v of the far shore; beyond 1: there is none.
    std::vector<Ridge> ridges; ///< From the farthest to the nearest.
    std::vector<Tree> trees;
};

Season seasonOf(QDate date);

LandscapeScene landscapeSceneFor(QDate date);

/// The colours of @p hour; there are several for each, told apart by @p choice.
Mood moodOf(Hour hour, std::size_t choice);

} // namespace moravel::server::art
