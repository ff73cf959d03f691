// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/ComputedSource.h"

namespace moravel::server {

/// The eight planets at their true places around the Sun at 12:00 UT of the day, seen from north of
/// the ecliptic; distances from the Sun are shortened by a power law, sizes are not to scale.
class Planets : public ComputedSource
{
public:
    QString shortName() const override;
    QString longName() const override;
    QString credit() const override;
    DayText text(QDate date) const override;
    QImage render(QDate date, QSize size) const override;
};

} // namespace moravel::server
