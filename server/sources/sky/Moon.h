// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/ComputedSource.h"

namespace moravel::server {

/// The Moon as it stands in the sky at 12:00 UT of the day, north up: its phase, size, tilt and
/// libration are those of that day, its face is made of the true maria and craters and of invented
/// small ones.
class Moon : public ComputedSource
{
public:
    QString shortName() const override;
    QString longName() const override;
    QString credit() const override;
    DayText text(QDate date) const override;
    QImage render(QDate date, QSize size) const override;
};

} // namespace moravel::server
