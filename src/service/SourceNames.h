// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>

namespace moravel {

/// Short source name to long source name, in the order of the grid (plain string comparison).
using SourceNames = QMap<QString, QString>;

} // namespace moravel
