// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/ComputedSource.h"

namespace moravel::server::sky {

/// Caption and figures of the planets at noon of a day: an event of the day where there is one.
DayText planetsText(double julianDay);

} // namespace moravel::server::sky
