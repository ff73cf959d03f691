// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/ComputedSource.h"

namespace moravel::server {

/// Each day another view of a Julia set or of the Mandelbrot set.
class Fractal : public ComputedSource
{
public:
    QString shortName() const override;
    QString longName() const override;
    QString credit() const override;
    DayText text(QDate date) const override;
    QImage render(QDate date, QSize size) const override;
};

} // namespace moravel::server
