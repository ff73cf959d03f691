// SPDX-License-Identifier: MIT
#include "mainwindow/Contrast.h"

#include "mainwindow/Icons.h"

#include <algorithm>
#include <cmath>

namespace moravel {

namespace {

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF())
        + 0.0722 * linear(colour.blueF());
}

} // namespace

double contrast(const QColor &one, const QColor &other)
{
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor readableOn(const QColor &ground, const QColor &colour, double least)
{
    constexpr double Step = 0.05;
    const bool whiteIsBetter = contrast(Qt::white, ground) > contrast(Qt::black, ground);
    const QColor end = whiteIsBetter ? Qt::white : Qt::black;
    for (double share = 0; share < 1; share += Step) {
        const QColor mixed = blend(end, colour, share);
        if (contrast(mixed, ground) >= least)
            return mixed;
    }
    return end;
}

QColor quietText(const QColor &text, const QColor &ground)
{
    constexpr double Share = 0.62;
    return readableOn(ground, blend(text, ground, Share));
}

} // namespace moravel
