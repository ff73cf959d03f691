// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/Vector.h"

#include <vector>

namespace moravel::server::sky {

/// The lava plains at one place.
struct MareSample
{
    float cover; ///< 0 highlands, 1 lava.
    float darkness; ///< Of the lava.
    float titanium;
    float rimKm; ///< Mountains that rise at the edge of a basin.
};

/// Ellipses with edges frayed by noise. Built once for a picture; sampled from several threads.
class MareField
{
public:
    MareField();

    /// @p place is a selenographic unit vector.
    MareSample at(const Vec3f &place) const;

    /// Whether a place is lava, without the fine edge.
    bool isMare(const Vec3f &place) const;

private:
    struct Ellipse
    {
        Vec3f centre, along, across; ///< The last two scaled: 1 is the edge.
        float degrees; ///< The smaller half axis.
        float nearest; ///< Cosine of the distance where it still matters.
        float darkness, titanium, rimKm;
    };

    std::vector<Ellipse> m_ellipses;
};

} // namespace moravel::server::sky
