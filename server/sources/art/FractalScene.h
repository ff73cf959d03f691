// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/art/Colour.h"
#include "server/sources/art/EscapeTime.h"

#include <QDate>

#include <array>

namespace moravel::server::art {

/// Where the picture looks: the frame of 16 : 9 that every picture shows or crops to.
struct FractalView
{
    double re = 0;
    double im = 0;
    double width = 3; ///< Of the 16 : 9 frame, in the plane's units.
    double cosine = 1; ///< Of the angle by which the frame is turned.
    double sine = 0;
    int degrees = 0; ///< That angle.
};

/// The distribution of the step counts over the frame. Colouring by rank instead of by count gives
/// each picture its full range of tones, whatever the region.
class ToneCurve
{
public:
    ToneCurve() = default;

    /// From the counts of a probe; negative ones (inside the set) are left out.
    explicit ToneCurve(const std::vector<float> &steps);

    /// 0 … 1, monotonous in @p steps.
    float at(float steps) const;

private:
    static constexpr int kBins = 128;
    float m_low = 0;
    float m_scale = 1;
    std::array<float, kBins + 1> m_rank{};
};

struct FractalStyle
{
    Gradient gradient;
    Rgb inside; ///< Colour of the set itself.
    Rgb glow; ///< Light that gathers close to the set.
    float stripes = 0; ///< How far the silk of the stripes shifts the tone.
    float relief = 0; ///< How deep the relief lighting goes, 0 … 1.
    float glowStrength = 0;
    float lightX = 0; ///< Direction of the light in the plane, unit length.
    float lightY = 1;
    float folds = 1; ///< How many times the gradient runs through, 1 … 2.
};

/// All that decides the picture of a day.
struct FractalScene
{
    EscapeRule rule;
    FractalView view;
    ToneCurve tones;
    float stripeMean = 0.5F;
    float stripeScale = 1;
    FractalStyle style;
};

/// The scene of @p date: the best of several candidates of the day's family, judged on a small
/// probe for detail, range of tones, share of the set and cost.
FractalScene fractalSceneFor(QDate date);

/// The day's colours.
FractalStyle fractalStyleFor(QDate date);

} // namespace moravel::server::art
