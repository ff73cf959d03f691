// SPDX-License-Identifier: MIT
#include "server/sources/art/LandscapeScene.h"

namespace moravel::server::art {

namespace {

struct MoodColours
{
    Hour hour;
    std::initializer_list<std::uint32_t> sky;
    std::uint32_t haze, mist, near, light, shade, sun, cloudLit, cloudShade;
};

const MoodColours kMoods[] = {
    {Hour::Dawn,
     {0x35507f, 0x6d7fae, 0xb9a6bf, 0xefbfa6, 0xffdfb2},
     0xe0b9a8,
     0xf6ddc8,
     0x1f2a3f,
     0xffd9b8,
     0x5a5f86,
     0xfff0cf,
     0xffd2b4,
     0x9f92b4},
    {Hour::Dawn,
     {0x3b3768, 0x77659b, 0xc68aa4, 0xf2a894, 0xffd5a4},
     0xd79da2,
     0xf5cdbf,
     0x241f3d,
     0xffcfb4,
     0x5b4d80,
     0xffecc4,
     0xffb9a2,
     0x8d739f},
    {Hour::Dawn,
     {0x274a6b, 0x5f8fa6, 0xa9c0bd, 0xe9d9b4, 0xffeac0},
     0xbfc8bd,
     0xece6d2,
     0x14303a,
     0xffedc8,
     0x4d7480,
     0xfff6da,
     0xfff0d2,
     0x8fa9b2},
    {Hour::Day,
     {0x2e6cae, 0x5c9bd2, 0x96c3e4, 0xcbe2ee, 0xeef3ec},
     0xb9d3e2,
     0xe9f1f3,
     0x17323c,
     0xfff6e4,
     0x6f93b4,
     0xfffdf0,
     0xffffff,
     0xa9bfd2},
    {Hour::Day,
     {0x41779f, 0x79a9c6, 0xafcdd8, 0xdbe6e1, 0xf6efdc},
     0xc4d4d3,
     0xeff0e8,
     0x1d3338,
     0xfff2d6,
     0x7792a6,
     0xfffbe8,
     0xfffaf0,
     0xaebbc4},
    {Hour::Golden,
     {0x43608a, 0x8197ab, 0xd0b690, 0xf7c377, 0xffdf9a},
     0xe6b884,
     0xfbdba6,
     0x2a2530,
     0xffd090,
     0x6c607c,
     0xfff3c9,
     0xffdba0,
     0x9c8b98},
    {Hour::Golden,
     {0x4b4672, 0x93698e, 0xdb8a7c, 0xf9ad6c, 0xffd68a},
     0xe09a7c,
     0xf9c596,
     0x2b1f35,
     0xffbd82,
     0x6d4f7c,
     0xffedbe,
     0xffbd88,
     0x8b6690},
    {Hour::Dusk,
     {0x141c3f, 0x34356d, 0x7b4c86, 0xcf6d78, 0xf7a268},
     0x8c5c82,
     0xb98496,
     0x0e1128,
     0xdc8f8e,
     0x3a3266,
     0xffd9a0,
     0xf08e7a,
     0x4b3a70},
    {Hour::Dusk,
     {0x0f2440, 0x24507a, 0x5a7fa0, 0xb9a49c, 0xf4c08c},
     0x70869e,
     0xa3afb8,
     0x0a1a2a,
     0xc9ad9e,
     0x2c4a6c,
     0xffe3b4,
     0xe8b79c,
     0x3f5a7c},
    {Hour::Dusk,
     {0x1d1a3a, 0x4a2f5f, 0x953f62, 0xdf6350, 0xfba25a},
     0x8f4a62,
     0xb9716f,
     0x140d20,
     0xe88a70,
     0x46294f,
     0xffd590,
     0xff8f66,
     0x5c3358},
    {Hour::Night,
     {0x040a1a, 0x0a1a38, 0x153055, 0x27496c, 0x48688a},
     0x2b4866,
     0x54708c,
     0x030710,
     0x7d9cc0,
     0x142440,
     0xf4f3e6,
     0x5f7a9c,
     0x142744},
    {Hour::Night,
     {0x07081c, 0x121438, 0x24265a, 0x3f3f78, 0x6b6394},
     0x3d3d70,
     0x6a6896,
     0x05050f,
     0x9590c8,
     0x1c1c42,
     0xf6f0e4,
     0x6f6aa4,
     0x1d1c48},
};

} // namespace

Mood moodOf(Hour hour, std::size_t choice)
{
    std::vector<const MoodColours *> fitting;
    for (const MoodColours &colours : kMoods)
        if (colours.hour == hour)
            fitting.push_back(&colours);
    const MoodColours &c = *fitting[choice % fitting.size()];
    return {Gradient(c.sky), fromHex(c.haze),     fromHex(c.mist),
            fromHex(c.near), fromHex(c.light),    fromHex(c.shade),
            fromHex(c.sun),  fromHex(c.cloudLit), fromHex(c.cloudShade)};
}

} // namespace moravel::server::art
