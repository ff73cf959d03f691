// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/sky/Vector.h"

#include <QSize>

#include <algorithm>
#include <vector>

namespace moravel::server::sky {

/// The grid of samples behind a picture. Small pictures take several samples a pixel and a side, so
/// that fine things fade there instead of flickering. Places in a scene are in units from the
/// middle, y down.
struct Frame
{
    explicit Frame(QSize picture)
        : oversampling(picture.height() < 160       ? 3
                           : picture.height() < 700 ? 2
                                                    : 1)
        , width(picture.width() * oversampling)
        , height(picture.height() * oversampling)
    {
        const float w = static_cast<float>(width), h = static_cast<float>(height);
        unit = std::min(h, w * 0.8f);
        fineUnit = std::min(h, w * 9 / 16);
        cover = std::max(w, h * 16 / 9);
        middleX = w / 2;
        middleY = h / 2;
    }

    int oversampling;
    int width; ///< In samples, as all below.
    int height;
    float unit; ///< One unit of a scene that needs a nearly square place.
    float fineUnit; ///< One unit of a scene that needs a 16:9 place.
    float cover; ///< Width of the 16:9 field that covers the frame.
    float middleX;
    float middleY;
};

/// Some rows of a frame in linear light.
struct Band
{
    const Frame &frame;
    int top;
    int rows;
    std::vector<Colour> samples; ///< Row by row.

    Colour *row(int y)
    {
        return samples.data() + static_cast<std::ptrdiff_t>(y - top) * frame.width;
    }

    int bottom() const { return top + rows; } ///< The row after the last.
};

} // namespace moravel::server::sky
