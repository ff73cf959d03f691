// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace moravel {

/// Contrasts that people with weak sight need, as WCAG 2 measures them.
constexpr double TextContrast = 4.5;
constexpr double ShapeContrast = 3; ///< Of signs and of the mark of the keyboard's focus.

/// Returns the contrast of two opaque colours, from 1 (none) to 21 (black on white).
double contrast(const QColor &one, const QColor &other);

/// Returns @p colour, or where it is hard to see on @p ground the nearest mixture with black or white
/// that is not.
QColor readableOn(const QColor &ground, const QColor &colour, double least = TextContrast);

/// Returns the colour of secondary text: quieter than @p text, yet readable on @p ground.
QColor quietText(const QColor &text, const QColor &ground);

} // namespace moravel
