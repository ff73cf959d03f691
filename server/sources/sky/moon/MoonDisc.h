// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/paint/Frame.h"

#include <vector>

namespace moravel::server::sky {

class MoonSurface;
struct LunarAspect;
struct MoonView;

/// The lit Moon as a square picture in linear light.
class MoonDisc
{
public:
    MoonDisc(const LunarAspect &aspect, int side, int threads);

    /// Lays the disc over the band: its middle and radius are in samples. Whatever light the band
    /// holds in front of the Moon (@p veil of it) stays, the stars behind go.
    void paint(Band &band, float middleX, float middleY, float radius) const;

private:
    void shadeRow(const MoonSurface &surface, const MoonView &view, const LunarAspect &aspect,
                  int row);
    Colour at(float x, float y) const;

    int m_side;
    std::vector<Colour> m_light;
};

} // namespace moravel::server::sky
