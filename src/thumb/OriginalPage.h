// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace moravel {

/// Returns a picture's original page as its record has it; "" where that is no page of the picture itself,
/// so that the service must be asked.
QString originalPage(const QString &shortSourceName, const QString &parentPath);

} // namespace moravel
