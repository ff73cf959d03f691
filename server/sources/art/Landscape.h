// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/ComputedSource.h"

namespace moravel::server {

/// Each day another painted landscape under the day's sun.
class Landscape : public ComputedSource
{
public:
    QString shortName() const override;
    QString longName() const override;
    QString credit() const override;
    DayText text(QDate date) const override;
    QImage render(QDate date, QSize size) const override;
};

} // namespace moravel::server
