// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/ComputedSource.h"

namespace moravel::server::sky {

/// Caption and figures of the Moon at noon of a day.
DayText moonText(double julianDay);

} // namespace moravel::server::sky
