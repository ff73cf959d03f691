// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Random.h"

namespace moravel {

/// Random numbers of Qt's generator, which the system seeds.
class QtRandom : public Random
{
public:
    std::uint32_t next() override;
};

} // namespace moravel
