// SPDX-License-Identifier: MIT
#pragma once

#include "server/sources/ComputedSource.h"

#include <memory>
#include <vector>

namespace moravel::server {

/// All computed sources, in the order in which they are listed.
std::vector<std::unique_ptr<ComputedSource>> computedSources();

} // namespace moravel::server
