// SPDX-License-Identifier: MIT
#include "server/sources/art/LandscapeScene.h"

#include "server/sources/art/Random.h"

namespace moravel::server::art {

namespace {

/// What grows, in white light.
struct Growth
{
    std::uint32_t woods;
    std::uint32_t meadow;
    std::uint32_t accent;
    float accents;
};

Growth growthOf(Season season, Random &random)
{
    switch (season) {
    case Season::Spring:
        return {0x4c7a4a, 0x86ad5b, 0x9cc26a, 0.35F};
    case Season::Summer:
        return {0x376646, 0x6f9650, 0x5f8a4c, 0.25F};
    case Season::Autumn:
        return {0x6a6a3c, 0xa99350, random.chance(0.5) ? 0xd08a34U : 0xbf6230U, 0.5F};
    case Season::Winter:
        return {0x4a6068, 0xc9d6df, 0xdfe8ee, 0.4F};
    }
    return {0x376646, 0x6f9650, 0x5f8a4c, 0.25F};
}

Hour hourOfDay(std::int64_t day)
{
    constexpr Hour kDeck[] = {Hour::Dawn, Hour::Golden, Hour::Dusk,   Hour::Day, Hour::Dawn,
                              Hour::Dusk, Hour::Night,  Hour::Golden, Hour::Day, Hour::Dawn};
    return kDeck[cardOfDay(day, std::size(kDeck), 0x40125)];
}

double altitudeAt(Hour hour, const SunDay &day, Random &random)
{
    switch (hour) {
    case Hour::Dawn:
        return random.between(-1.5, 4);
    case Hour::Day:
        return std::min(day.noonAltitude, random.between(14, 30));
    case Hour::Golden:
        return random.between(3.5, 9);
    case Hour::Dusk:
        return random.between(-5, -1);
    case Hour::Night:
        break;
    }
    return -90 + kLatitude - day.declination; // at midnight
}

/// Puts sun or moon into the sky.
void setLight(LandscapeScene &scene, Random &random)
{
    const double side = random.chance(0.5) ? 1 : -1;
    scene.lightU = static_cast<float>(side * random.between(0.08, 0.5));
    // 45° over the height of the picture; the disc is shown larger than life, as painters do.
    scene.lightV = scene.horizon - static_cast<float>(scene.sunAltitude / 45);
    scene.discRadius = scene.sunAltitude > -1 ? 0.032F : 0;
    if (scene.hour == Hour::Day) { // high and beside the picture: nothing dazzles
        scene.lightU = static_cast<float>(side * random.between(1.0, 1.3));
        scene.discRadius = 0;
    }
    scene.moonlit = scene.hour == Hour::Night && scene.moonNight.lit > 0.12;
    const bool dim = scene.hour == Hour::Night;
    scene.glow = scene.hour == Hour::Dusk ? 0.75F : scene.hour == Hour::Day ? 0.55F : 1.0F;
    if (dim) {
        scene.lightV = random.betweenF(0.16F, 0.32F);
        scene.discRadius = scene.moonlit ? 0.034F : 0;
        scene.glow = scene.moonlit ? 0.12F + 0.22F * static_cast<float>(scene.moonNight.lit) : 0.0F;
    }
    scene.stars = dim                                        ? (scene.moonlit ? 0.7F : 1.0F)
        : scene.hour == Hour::Dusk && scene.sunAltitude < -3 ? 0.3F
                                                             : 0;
}

void setClouds(LandscapeScene &scene, Random &random)
{
    scene.cloudCover = random.betweenF(0.22F, 0.55F);
    if (scene.hour == Hour::Night)
        scene.cloudCover = random.betweenF(0.05F, 0.3F);
    scene.cloudy = scene.cloudCover > 0.42F;
    scene.cloudStretch = random.betweenF(1.0F, 2.6F);
}

/// Fills what all ridges of a scene have in common; @p place runs from 0 (farthest) to 1.
Ridge ridgeAt(const LandscapeScene &scene, float place, Random &random)
{
    Ridge ridge;
    ridge.seed = static_cast<std::uint32_t>(random.next());
    ridge.offset = random.betweenF(-40, 40);
    ridge.distance = 0.03F + 0.84F * (1.0F - place) * (1.0F - 0.3F * place);
    ridge.mist = (scene.misty ? 0.8F : 0.25F) * (1.0F - 0.8F * place);
    return ridge;
}

Ridge mountainAt(const LandscapeScene &scene, float place, float base, float height, Random &random)
{
    Ridge ridge = ridgeAt(scene, place, random);
    ridge.base = base;
    ridge.height = height;
    ridge.frequency = random.betweenF(0.75F, 1.25F) * 0.30F / height * 1.1F;
    ridge.rocky = 1;
    ridge.relief = 0.95F;
    ridge.land = fromHex(0x76777f);
    const float snow = scene.season == Season::Winter ? 0.95F
        : scene.season == Season::Spring              ? 0.62F
        : scene.season == Season::Autumn              ? 0.45F
                                                      : 0.30F;
    ridge.snow = height > 0.2F || scene.season == Season::Winter ? snow : snow * 0.5F;
    return ridge;
}

Ridge woodsAt(const LandscapeScene &scene, float place, float base, float height,
              const Growth &growth, Random &random)
{
    Ridge ridge = ridgeAt(scene, place, random);
    ridge.base = base;
    ridge.height = height;
    ridge.frequency = random.betweenF(0.6F, 1.3F);
    ridge.rocky = random.betweenF(0.1F, 0.4F);
    ridge.tilt = random.betweenF(-0.5F, 0.5F);
    ridge.trees = 0.010F + 0.045F * place * place;
    ridge.land = fromHex(growth.woods);
    ridge.accent = fromHex(growth.accent);
    ridge.accents = growth.accents;
    return ridge;
}

Ridge meadowAt(const LandscapeScene &scene, float place, float base, float height,
               const Growth &growth, Random &random)
{
    Ridge ridge = ridgeAt(scene, place, random);
    ridge.base = base;
    ridge.height = height;
    ridge.frequency = random.betweenF(0.5F, 0.9F);
    ridge.rocky = 0;
    ridge.tilt = random.betweenF(-0.6F, 0.6F);
    ridge.land = adjusted(fromHex(growth.meadow), random.betweenF(0.9F, 1.08F), 1);
    return ridge;
}

/// Conifers in groups at the sides, so that the middle stays open.
void plantTrees(LandscapeScene &scene, int count, float foot, Random &random)
{
    const double heavySide = random.chance(0.5) ? 1 : -1;
    for (int i = 0; i < count; ++i) {
        const double side = random.chance(0.68) ? heavySide : -heavySide;
        const double reach = random.unit();
        Tree tree;
        tree.seed = static_cast<std::uint32_t>(random.next());
        tree.u = static_cast<float>(side * (0.93 - 0.42 * reach * reach));
        const double tall = 0.14 + 0.44 * (1 - reach) * random.between(0.45, 1.0);
        tree.height = static_cast<float>(tall);
        tree.v = foot + random.betweenF(0.0F, 0.07F);
        tree.golden = scene.season == Season::Autumn && random.chance(0.35);
        scene.trees.push_back(tree);
    }
    std::sort(scene.trees.begin(), scene.trees.end(),
              [](const Tree &a, const Tree &b) { return a.v < b.v; });
}

void composeRidges(LandscapeScene &scene, const Growth &growth, Random &random)
{
    const int count = 5 + static_cast<int>(random.below(3));
    for (int i = 0; i < count; ++i) {
        const float place = static_cast<float>(i) / static_cast<float>(count);
        const float base = mix(scene.horizon + 0.03F, 1.0F, place);
        scene.ridges.push_back(
            i < 2 ? mountainAt(scene, place, base, random.betweenF(0.16F, 0.27F), random)
                  : woodsAt(scene, place, base, random.betweenF(0.12F, 0.2F), growth, random));
    }
    scene.ridges.push_back(woodsAt(scene, 1, 1.06F, 0.16F, growth, random));
}

void composeLake(LandscapeScene &scene, const Growth &growth, Random &random)
{
    scene.lake = random.betweenF(0.68F, 0.74F);
    scene.horizon = scene.lake - 0.03F;
    scene.ridges.push_back(
        mountainAt(scene, 0.10F, scene.horizon, random.betweenF(0.20F, 0.28F), random));
    scene.ridges.push_back(
        mountainAt(scene, 0.32F, scene.lake, random.betweenF(0.28F, 0.42F), random));
    scene.ridges.back().valley = 0.25F;
    for (int i = 0; i < 3; ++i) {
        const float place = 0.55F + 0.17F * static_cast<float>(i);
        Ridge ridge = woodsAt(scene, place, scene.lake + 0.012F,
                              0.10F - 0.027F * static_cast<float>(i), growth, random);
        ridge.valley = 0.7F;
        ridge.trees = 0.016F + 0.006F * static_cast<float>(i);
        scene.ridges.push_back(ridge);
    }
    plantTrees(scene, 22, 1.01F, random);
}

void composeValley(LandscapeScene &scene, const Growth &growth, Random &random)
{
    scene.lightU *= 0.5F;
    scene.ridges.push_back(
        mountainAt(scene, 0.05F, scene.horizon + 0.04F, random.betweenF(0.2F, 0.3F), random));
    scene.ridges.push_back(
        mountainAt(scene, 0.25F, scene.horizon + 0.10F, random.betweenF(0.18F, 0.28F), random));
    for (int i = 0; i < 5; ++i) {
        const float place = 0.35F + 0.15F * static_cast<float>(i);
        const float base = scene.horizon + 0.13F + 0.085F * static_cast<float>(i);
        Ridge ridge = woodsAt(scene, place, base, random.betweenF(0.09F, 0.13F), growth, random);
        ridge.valley = 1.6F + 0.25F * static_cast<float>(i);
        scene.ridges.push_back(ridge);
    }
    plantTrees(scene, 12, 1.03F, random);
}

void composeHills(LandscapeScene &scene, const Growth &growth, Random &random)
{
    scene.ridges.push_back(
        mountainAt(scene, 0.02F, scene.horizon + 0.02F, random.betweenF(0.12F, 0.2F), random));
    for (int i = 0; i < 6; ++i) {
        const float place = 0.22F + 0.145F * static_cast<float>(i);
        const float height = random.betweenF(0.18F, 0.30F);
        const float base = scene.horizon + 0.02F + 0.065F * static_cast<float>(i) + 0.45F * height;
        scene.ridges.push_back(i % 2 == 0
                                   ? woodsAt(scene, place, base, height * 0.8F, growth, random)
                                   : meadowAt(scene, place, base, height, growth, random));
    }
    plantTrees(scene, 9, 1.03F, random);
}

} // namespace

Season seasonOf(QDate date)
{
    constexpr Season kSeasons[] = {Season::Winter, Season::Spring, Season::Summer, Season::Autumn};
    return kSeasons[static_cast<std::size_t>(std::max(0, date.month()) % 12 / 3)];
}

LandscapeScene landscapeSceneFor(QDate date)
{
    const std::int64_t day = date.toJulianDay();
    Random random(static_cast<std::uint64_t>(day) * 0xd1342543de82ef95ULL + 3);
    LandscapeScene scene;
    scene.seed = static_cast<std::uint32_t>(random.next());
    scene.season = seasonOf(date);
    scene.sunDay = sunDayOf(date);
    scene.moonNight = moonNightOf(date);
    scene.hour = hourOfDay(day);
    scene.view = static_cast<View>(cardOfDay(day, 4, 0x71e3));
    scene.mood = moodOf(scene.hour, random.below(6));
    scene.sunAltitude = altitudeAt(scene.hour, scene.sunDay, random);
    scene.misty = random.chance(scene.hour == Hour::Dawn             ? 0.75
                                    : scene.season == Season::Autumn ? 0.5
                                                                     : 0.25);
    scene.horizon = random.betweenF(0.56F, 0.66F);
    const Growth growth = growthOf(scene.season, random);
    if (scene.view == View::Lake)
        scene.horizon = 0.68F;
    setLight(scene, random);
    setClouds(scene, random);
    switch (scene.view) {
    case View::Ridges:
        composeRidges(scene, growth, random);
        break;
    case View::Lake:
        composeLake(scene, growth, random);
        break;
    case View::Valley:
        composeValley(scene, growth, random);
        break;
    case View::Hills:
        composeHills(scene, growth, random);
        break;
    }
    return scene;
}

} // namespace moravel::server::art
