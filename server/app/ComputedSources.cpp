// SPDX-License-Identifier: MIT
#include "server/app/ComputedSources.h"

#include "server/sources/art/Fractal.h"
#include "server/sources/art/Landscape.h"
#include "server/sources/sky/Moon.h"
#include "server/sources/sky/Planets.h"

namespace moravel::server {

std::vector<std::unique_ptr<ComputedSource>> computedSources()
{
    std::vector<std::unique_ptr<ComputedSource>> sources;
    sources.push_back(std::make_unique<Fractal>());
    sources.push_back(std::make_unique<Landscape>());
    sources.push_back(std::make_unique<Moon>());
    sources.push_back(std::make_unique<Planets>());
    return sources;
}

} // namespace moravel::server
