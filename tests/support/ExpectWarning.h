// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel::testing {

/// Lets the running test meet warnings that contain @p part; every other warning fails it.
void expectWarning(const QString &part);

} // namespace moravel::testing
