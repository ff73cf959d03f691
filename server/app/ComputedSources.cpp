// SPDX-License-Identifier: MIT
#include "server/app/ComputedSources.h"

#if __has_include("server/sources/art/Fractal.h")
#include "server/sources/art/Fractal.h"
#include "server/sources/art/Landscape.h"
#define MORAVEL_HAS_ART
#endif
#if __has_include("server/sources/sky/Moon.h")
#include "server/sources/sky/Moon.h"
#include "server/sources/sky/Planets.h"
#define MORAVEL_HAS_SKY
#endif

namespace moravel::server {

std::vector<std::unique_ptr<ComputedSource>> computedSources()
{
    std::vector<std::unique_ptr<ComputedSource>> sources;
#ifdef MORAVEL_HAS_ART
    sources.push_back(std::make_unique<Fractal>());
    sources.push_back(std::make_unique<Landscape>());
#endif
#ifdef MORAVEL_HAS_SKY
    sources.push_back(std::make_unique<Moon>());
    sources.push_back(std::make_unique<Planets>());
#endif
    return sources;
}

} // namespace moravel::server
