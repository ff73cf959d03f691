// SPDX-License-Identifier: MIT
#include "platform/qt/QtRandom.h"

#include <QRandomGenerator>

namespace moravel {

std::uint32_t QtRandom::next()
{
    return QRandomGenerator::global()->generate();
}

} // namespace moravel
